#include "framework/KORExport.h"
#include "framework/KORTrace.h"
#include "tests/framework/KORTestParts.h"

// A module as small as can be, loaded and unloaded by KORLibrary_test.
namespace {

const KORTrace kTrace("LoadedTrace", "Traces for the test module", 1, "STDERR", 1024);

}  // namespace

class LoadedClass final : public KORBaseUnknown {
    KORDeclareClass

        public : int
                 Value() {
        return value_;
    }
    void SetValue(int value) { value_ = value; }

private:
    int value_ = 1;
};
KORImplementClass(LoadedClass, KORClassKind::DataExtension, "LoadedLT", "LoadedModule");

KORBaseUnknown* LoadedClass::CreateItself() {
    return new LoadedClass;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEKORITestValueLoadedClass(KORBaseUnknown* implementation,
                                                                     KORBaseUnknown* outer) {
    return KORCreateTie<TIEKORITestValue<LoadedClass>>(implementation, outer);
}

static const KORFillDictionary kEntry(LoadedClass::MetaObject(), KORITestValue::MetaObject(),
                                      &CreateTIEKORITestValueLoadedClass, nullptr, 1);
