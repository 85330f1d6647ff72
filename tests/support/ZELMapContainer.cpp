#include "tests/support/ZELMapContainer.h"

#include <algorithm>
#include <stdexcept>

KORISpecObject_var ZELMapContainer::MakeMember(const std::string& lateType, const KORUnicodeString& name) {
    if (!World()->document || !World()->types.Find(lateType)) return nullptr;
    members_.push_back(KORVar<ZELMapFeature>::Adopt(new ZELMapFeature(World(), lateType, name, this)));
    return KORISpecObject_var(static_cast<KORISpecObject*>(members_.back().Get()));
}

void ZELMapContainer::Remove(KORISpecObject* feature) {
    const auto found = std::ranges::find_if(
        members_, [&](const auto& member) { return static_cast<KORISpecObject*>(member.Get()) == feature; });
    if (found == members_.end()) throw std::runtime_error("no member of the container");
    (*found)->LeaveContainer();
    members_.erase(found);
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
    if (verdict == ZELVerdict::Refuse || catalog != "ZELMaterialPropertiesCatalog.KORfct") return E_FAIL;
    opened =
        verdict == ZELVerdict::SuccessWithNull ? nullptr : KORICatalog_var::Adopt(new ZELMapCatalog(World()));
    return S_OK;
}

HRESULT ZELMapCatalog::RetrieveStartUp(const KORUnicodeString& lateType, const char* interfaceName,
                                       void** out) {
    *out = nullptr;
    const std::string type(lateType.View());
    const ZELVerdict verdict = Calls().Record("RetrieveStartUp", type + " " + interfaceName, true);
    if (verdict == ZELVerdict::SuccessWithNull) return S_OK;
    if (verdict == ZELVerdict::Refuse || !World()->types.Find(type)) return E_FAIL;
    const auto startUp = KORVar<ZELMapFeature>::Adopt(new ZELMapFeature(World(), type, "", nullptr));
    return SUCCEEDED(startUp->QueryInterface(KORName::Intern(interfaceName), out)) ? S_OK : E_FAIL;
}

ZELMapDocument::ZELMapDocument(const std::shared_ptr<ZELMapWorld>& world)
    : ZELMapObject(world, "Document"),
      container_(KORVar<ZELMapContainer>::Adopt(new ZELMapContainer(world))) {
    world->document = this;
}

void ZELMapDocument::Close() {
    World()->document = nullptr;
    // Held while they are emptied: one feature's value may be the last reference on another.
    std::vector<KORVar<ZELMapFeature>> all(World()->features.begin(), World()->features.end());
    for (const auto& feature : all) feature->EmptyAll();
    container_->RemoveAll();
    container_ = nullptr;
}

KORBaseUnknown* ZELMapDocument::GetFeatContainer() {
    const ZELVerdict verdict = Calls().Record("GetFeatContainer", Label(), true);
    KORVar<ZELMapContainer> container = verdict == ZELVerdict::Answer ? container_ : nullptr;
    return container.Detach();
}
