#include "ZELShared/ZELShellSectionExtension.h"

#include "ZELShared/TIEZELIShellSection.h"
#include "ZELShared/ZELSharedModule.h"
#include "framework/KORDictionary.h"

KORImplementClass(ZELShellSectionExtension, KORClassKind::CodeExtension, "ZELShellSectionEnhLT",
                  kZELSharedModule)

KORBaseUnknown* ZELShellSectionExtension::CreateItself() {
    return new ZELShellSectionExtension;
}

namespace {

const KORFillDictionary entry(ZELShellSectionExtension::MetaObject(), ZELIShellSection::MetaObject(),
                              KORCreateTie<TIEZELIShellSection<ZELShellSectionExtension>>, nullptr, 1);

KORISpecAttrKey* const kSectionType = KORName::Intern("SectionType");

}  // namespace

int ZELShellSectionExtension::GetSectionType() {
    const auto access = KORISpecAttrAccess_var::Of(this);
    return access ? access->GetInteger(kSectionType, 0) : 0;
}

KORISpecObject* ZELShellSectionExtension::GetLayup() {
    const auto access = KORISpecAttrAccess_var::Of(this);
    return access ? access->GetSpecObject("Layup", 0) : nullptr;
}
