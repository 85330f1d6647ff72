#include "platform/analysis/KORMaterialExtension.h"

#include "platform/analysis/KORPlatformModule.h"
#include "platform/catalog/KORPlatformCatalog.h"
#include "platform/store/KORIFeatureContainer.h"

KORImplementClass(KORMaterialExtension, KORClassKind::CodeExtension, "KORMaterialLT", kKORPlatformModule)

KORBaseUnknown* KORMaterialExtension::CreateItself() {
    return new KORMaterialExtension;
}

namespace {

const KORName* const kList = KORName::Intern("ApplicativeData");
const KORName* const kName = KORName::Intern("Name");
const KORName* const kData = KORName::Intern("Data");
const KORName* const kEntryType = KORName::Intern("KORApplicativeDataLT");

/// A feature whose type has no attribute for it hangs on the material all the same.
void SetFather(KORISpecObject* hung, KORBaseUnknown* father) {
    const auto feature = KORVar<KORFeature>::Of(hung);
    const KORSlot slot = feature ? feature->Layout().FatherSlot() : KORSlot{0};
    if (slot != 0) feature->Write(slot, KORValue::OfComponent(father));
}

}  // namespace

KORISpecObject* KORMaterialExtension::GetApplicativeFeature(const KORUnicodeString& name) {
    return KORISpecObject_var(KORBaseUnknown_var::Adopt(FindApplicative(name))).Detach();
}

HRESULT KORMaterialExtension::SetApplicativeFeature(const KORUnicodeString& name, KORISpecObject* hung) {
    if (!hung) return E_FAIL;
    KORVar<KORFeature> entry = EntryOf(name);
    if (entry) {
        LetGoOf(KORBaseUnknown_var::Adopt(entry->GetComponent(kData, 0)).Get());
    } else {
        entry = NewEntry(name);
    }
    if (!entry) return E_FAIL;
    entry->SetComponent(kData, KORBaseUnknown_var::Of(hung).Get(), 0);
    SetFather(hung, Material().Get());
    return S_OK;
}

HRESULT KORMaterialExtension::RemoveApplicativeFeature(const KORUnicodeString& name) {
    const KORVar<KORFeature> entry = EntryOf(name);
    if (!entry) return E_FAIL;
    LetGoOf(KORBaseUnknown_var::Adopt(entry->GetComponent(kData, 0)).Get());
    const KORVar<KORFeature> material = Material();
    KORValue left = KORValue::EmptyList(KORAttributeKind::ListOfComponents);
    for (int position = 1; position <= material->GetListSize(kList); ++position) {
        const auto other = KORBaseUnknown_var::Adopt(material->GetComponent(kList, position));
        if (other.Get() != entry.Get()) left.Append(other.Get());
    }
    material->Write(material->Layout().Find(kList).slot, std::move(left));
    entry->SetContainer(nullptr);
    return S_OK;
}

KORBaseUnknown* KORMaterialExtension::GetSupport() {
    return Material().Detach();
}

KORBaseUnknown* KORMaterialExtension::FindApplicative(const KORUnicodeString& name) {
    const KORVar<KORFeature> entry = EntryOf(name);
    return entry ? entry->GetComponent(kData, 0) : nullptr;
}

KORVar<KORFeature> KORMaterialExtension::EntryOf(const KORUnicodeString& name) {
    const KORVar<KORFeature> material = Material();
    for (int position = 1; position <= material->GetListSize(kList); ++position) {
        KORVar<KORFeature> entry(KORBaseUnknown_var::Adopt(material->GetComponent(kList, position)));
        if (entry && entry->GetString(kName, 0) == name) return entry;
    }
    return nullptr;
}

KORVar<KORFeature> KORMaterialExtension::NewEntry(const KORUnicodeString& name) {
    const KORVar<KORFeature> material = Material();
    const KORIFeatureContainer_var container(KORBaseUnknown_var::Adopt(material->GetFeatContainer()));
    const KORCatalogType* type = KORPlatformCatalog().Find(kEntryType);
    auto entry = container ? container->NewFeature(type->layout, kEntryType->c_str()) : nullptr;
    if (!entry) return nullptr;
    entry->SetString(kName, name, 0);
    material->AppendComponent(kList, entry.Get());
    return entry;
}

void KORMaterialExtension::LetGoOf(KORBaseUnknown* data) {
    const auto hung = KORISpecObject_var::Of(data);
    if (!hung) return;
    const KORBaseUnknown_var father(KORISpecObject_var::Adopt(hung->GetFather()));
    if (father.Get() == Material().Get()) SetFather(hung.Get(), nullptr);
}
