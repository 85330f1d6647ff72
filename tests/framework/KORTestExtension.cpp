#include "tests/framework/KORTestExtension.h"

KORImplementClass(KORTestExtension, KORClassKind::DataExtension, "ExtendedLT", "ExtensionModule");
KORBaseUnknown* KORTestExtension::CreateItself() {
    return create ? create() : new KORTestExtension;
}

KORImplementClass(KORTestNeighbour, KORClassKind::CodeExtension, "ExtendedLT", "ExtensionModule");
KORBaseUnknown* KORTestNeighbour::CreateItself() {
    return new KORTestNeighbour;
}

namespace {

template <class Implementation>
class TIEKORITestStranger final : public KORTie<KORITestStranger, Implementation> {
public:
    using KORTie<KORITestStranger, Implementation>::KORTie;
};

const KORFillDictionary kValue(KORTestExtension::MetaObject(), KORITestValue::MetaObject(),
                               &KORCreateTie<TIEKORITestValue<KORTestExtension>>, nullptr, 1);
const KORFillDictionary kName(KORTestExtension::MetaObject(), KORITestName::MetaObject(),
                              &KORCreateTie<TIEKORITestName<KORTestExtension>>, nullptr, 1);
const KORFillDictionary kStranger(KORTestNeighbour::MetaObject(), KORITestStranger::MetaObject(),
                                  &KORCreateTie<TIEKORITestStranger<KORTestNeighbour>>, nullptr, 1);

}  // namespace
