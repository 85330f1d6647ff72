#include "tests/support/ZELMapContainer.h"

#include <algorithm>
#include <map>

KORISpecObject_var ZELMapContainer::MakeMember(const std::string& lateType, const KORUnicodeString& name) {
    if (!World()->document || !World()->types.Find(lateType)) return nullptr;
    members_.push_back(KORVar<ZELMapFeature>::Adopt(new ZELMapFeature(World(), lateType, name, this)));
    return KORISpecObject_var(static_cast<KORISpecObject*>(members_.back().Get()));
}

void ZELMapContainer::RemoveAll() {
    for (const auto& member : members_) member->LeaveContainer();
    members_.clear();
}

KORDocument* ZELMapContainer::GetDocument() {
    const ZELVerdict verdict = Calls().Record("GetDocument", Label(), true);
    return verdict == ZELVerdict::Answer ? World()->document : nullptr;
}

HRESULT ZELMapContainer::OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString& client,
                                     KORICatalog_var& opened) {
    const std::string details = std::string(catalog.View()) + " " + std::string(client.View());
    const ZELVerdict verdict = Calls().Record("OpenCatalog", details, true);
    if (verdict == ZELVerdict::Refuse) return Calls().StatusOf(verdict);
    if (catalog != "ZELMaterialPropertiesCatalog.KORfct") return E_FAIL;
    opened =
        verdict == ZELVerdict::SuccessWithNull ? nullptr : KORICatalog_var::Adopt(new ZELMapCatalog(World()));
    return Calls().StatusOf(verdict);
}

bool ZELMapContainer::Holds(const KORISpecObject* feature) const {
    return std::ranges::any_of(members_, [feature](const auto& member) { return member.Get() == feature; });
}

HRESULT ZELMapContainer::Extract(const KORListValKORISpecObject_var& features,
                                 KORListValKORISpecObject_var& extracted) {
    const ZELVerdict verdict =
        Calls().Record("Extract", Label() + " " + std::to_string(features.Size()), true);
    if (verdict != ZELVerdict::Answer) return Calls().StatusOf(verdict);
    const ZELUnrecorded unrecorded;
    KORListValKORISpecObject_var found;
    const auto isFound = [&found](const KORISpecObject* feature) {
        for (int position = 1; position <= found.Size(); ++position) {
            if (found[position].Get() == feature) return true;
        }
        return false;
    };
    for (int position = 1; position <= features.Size(); ++position) {
        if (!Holds(features[position].Get())) return E_FAIL;
        found.Append(features[position]);
    }
    for (int position = 1; position <= found.Size(); ++position) {
        for (KORISpecObject* other : dynamic_cast<ZELMapFeature&>(*found[position]).Referenced()) {
            if (Holds(other) && !isFound(other)) found.Append(KORISpecObject_var(other));
        }
    }
    extracted = found;
    return S_OK;
}

HRESULT ZELMapContainer::Paste(const KORListValKORISpecObject_var& extracted,
                               KORListValKORISpecObject_var& copies) {
    const ZELVerdict verdict =
        Calls().Record("Paste", Label() + " " + std::to_string(extracted.Size()), true);
    if (verdict != ZELVerdict::Answer) return Calls().StatusOf(verdict);
    if (!World()->document) return E_FAIL;
    const ZELUnrecorded unrecorded;
    std::map<KORISpecObject*, ZELMapFeature*> copyOf;  // the first one of what is given twice
    std::vector<ZELMapFeature*> made;
    KORListValKORISpecObject_var list;
    for (int position = 1; position <= extracted.Size(); ++position) {
        const auto& original = dynamic_cast<ZELMapFeature&>(*extracted[position]);
        members_.push_back(KORVar<ZELMapFeature>::Adopt(original.Copy(this)));
        made.push_back(members_.back().Get());
        copyOf.emplace(extracted[position].Get(), made.back());
        list.Append(KORISpecObject_var(static_cast<KORISpecObject*>(made.back())));
    }
    for (ZELMapFeature* copy : made) copy->Redirect(copyOf);
    copies = list;
    return S_OK;
}

HRESULT ZELMapContainer::Remove(KORISpecObject* feature) {
    const ZELVerdict verdict = Calls().Record("Remove", Label(), true);
    if (verdict != ZELVerdict::Answer) return Calls().StatusOf(verdict);
    const auto found =
        std::ranges::find_if(members_, [feature](const auto& member) { return member.Get() == feature; });
    if (found == members_.end()) return E_FAIL;
    (*found)->LeaveContainer();
    members_.erase(found);
    return S_OK;
}

HRESULT ZELMapCatalog::RetrieveStartUp(const KORUnicodeString& lateType, const char* interfaceName,
                                       void** out) {
    *out = nullptr;
    const std::string type(lateType.View());
    const ZELVerdict verdict = Calls().Record("RetrieveStartUp", type + " " + interfaceName, true);
    if (verdict != ZELVerdict::Answer) return Calls().StatusOf(verdict);
    if (!World()->types.Find(type)) return E_FAIL;
    const auto startUp = KORVar<ZELMapFeature>::Adopt(new ZELMapFeature(World(), type, "", nullptr));
    return SUCCEEDED(startUp->QueryInterface(KORName::Intern(interfaceName), out)) ? S_OK : E_FAIL;
}

ZELMapDocument::ZELMapDocument(const std::shared_ptr<ZELMapWorld>& world)
    : ZELMapObject(world, "Document"),
      container_(KORVar<ZELMapContainer>::Adopt(new ZELMapContainer(world))) {
    world->document = this;
}

ZELMapDocument::~ZELMapDocument() {
    Close();
}

void ZELMapDocument::Close() {
    if (!container_) return;
    World()->document = nullptr;
    // Held while they are emptied: one feature's value may be the last reference on another.
    std::vector<KORVar<ZELMapFeature>> all(World()->features.begin(), World()->features.end());
    for (const auto& feature : all) feature->EmptyAll();
    model_ = nullptr;
    container_->RemoveAll();
    container_ = nullptr;
    for (const auto& [name, container] : applicative_) container->RemoveAll();
    applicative_.clear();
}

KORVar<ZELMapContainer> ZELMapDocument::AddContainer(const std::string& name) {
    KORVar<ZELMapContainer>& container = applicative_[name];
    if (!container) container = KORVar<ZELMapContainer>::Adopt(new ZELMapContainer(World(), name));
    return container;
}

KORBaseUnknown* ZELMapDocument::FindContainer(const char* name) {
    const ZELVerdict verdict = Calls().Record("FindContainer", name, true);
    const auto found = applicative_.find(name);
    if (verdict != ZELVerdict::Answer || found == applicative_.end()) return nullptr;
    return KORVar<ZELMapContainer>(found->second).Detach();
}

KORBaseUnknown* ZELMapDocument::GetFeatContainer() {
    const ZELVerdict verdict = Calls().Record("GetFeatContainer", Label(), true);
    KORVar<ZELMapContainer> container = verdict == ZELVerdict::Answer ? container_ : nullptr;
    return container.Detach();
}

HRESULT ZELMapDocument::LoadCatalog(const KORUnicodeString& catalog) {
    const ZELVerdict verdict = Calls().Record("LoadCatalog", std::string(catalog.View()), true);
    if (verdict != ZELVerdict::Answer) return Calls().StatusOf(verdict);
    return catalog == "ZELMaterialPropertiesCatalog.KORfct" ? S_OK : E_FAIL;
}

KORISamAnalysisModelFactory* ZELMapDocument::GetFactory() {
    const ZELVerdict verdict = Calls().Record("GetFactory", Label(), true);
    return verdict == ZELVerdict::Answer ? new ZELMapModelFactory(World()) : nullptr;
}

KORISamAnalysisModel* ZELMapDocument::GetAnalysisModel() {
    const ZELVerdict verdict = Calls().Record("GetAnalysisModel", Label(), true);
    return verdict == ZELVerdict::Answer ? KORISamAnalysisModel_var(model_).Detach() : nullptr;
}
