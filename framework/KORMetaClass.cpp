#include "framework/KORMetaClass.h"

#include "framework/KORBaseUnknown.h"

namespace {

/// The framework's own records: the root class and the interfaces. They belong to no module and stay for
/// ever.
KORModule& Framework() {
    static KORModule& framework = KORModule::Of("framework");
    return framework;
}

const KORMetaClass& Retrieve(KORModule& module, KORClassId name, KORClassKind kind, const KORMetaClass* base,
                             const KORName* lateType) {
    for (const auto& record : module.classes) {
        if (record->ClassId() == name && record->Kind() == kind) return *record;
    }
    module.classes.push_back(std::make_unique<KORMetaClass>(name, kind, base, lateType, &module));
    return *module.classes.back();
}

}  // namespace

bool KORMetaClass::IsAKindOf(std::string_view name) const {
    for (const KORMetaClass* record = this; record; record = record->Base()) {
        if (record->name_->Text() == name) return true;
    }
    return false;
}

void KORMetaClass::DropUse() const {
    if (--uses_ == 0) module_->Forget(*this);
}

const KORMetaClass& fct_RetrieveMetaObject(const char* className, KORClassKind kind, const KORMetaClass& base,
                                           const char* lateType, const char* module) {
    return Retrieve(KORModule::Of(module), KORName::Intern(className), kind, &base,
                    KORName::Intern(lateType));
}

const KORMetaClass& KORInterfaceMetaClass(KORIID iid) {
    return Retrieve(Framework(), iid, KORClassKind::Interface, nullptr, nullptr);
}

const KORMetaClass& KORBaseUnknown::MetaObject() {
    static const KORMetaClass& record =
        Retrieve(Framework(), IID_KORBaseUnknown, KORClassKind::Root, nullptr, nullptr);
    return record;
}
