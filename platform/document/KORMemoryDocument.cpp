#include "platform/document/KORMemoryDocument.h"

#include <algorithm>

#include "platform/store/KORRoles.h"

namespace {

constexpr const char* kAnalysisModelType = "KORAnalysisModelLT";

}  // namespace

KORMemoryDocument::KORMemoryDocument(KORPlatform& platform)
    : platform_(platform),
      container_(KORVar<KORMemoryContainer>::Adopt(new KORMemoryContainer(*this))),
      catalogs_(std::make_shared<KORCatalogSet>(platform.SharedCatalogs())) {}

KORVar<KORMemoryDocument> KORMemoryDocument::New(KORPlatform& platform) {
    return KORVar<KORMemoryDocument>::Adopt(new KORMemoryDocument(platform));
}

KORBaseUnknown* KORMemoryDocument::GetFeatContainer() {
    if (container_) container_->AddRef();
    return container_.Get();
}

KORVar<KORFeature> KORMemoryDocument::NewPlatformFeature(const char* lateType, const KORUnicodeString& name) {
    const KORCatalogType* type = platform_.SharedCatalogs()->Find(KORName::Find(lateType));
    return type && container_ ? container_->NewFeature(type->layout, name) : nullptr;
}

KORVar<KORMemoryContainer> KORMemoryDocument::AddContainer(const char* name) {
    const std::string text(name);
    if (!container_ || text.empty()) return nullptr;
    const auto known = std::ranges::find(containerNames_, text);
    if (known != containerNames_.end()) {
        return applicativeContainers_[static_cast<std::size_t>(known - containerNames_.begin())];
    }
    applicativeContainers_.push_back(KORVar<KORMemoryContainer>::Adopt(new KORMemoryContainer(*this)));
    containerNames_.push_back(text);
    return applicativeContainers_.back();
}

KORBaseUnknown* KORMemoryDocument::FindContainer(const char* name) {
    const auto known = std::ranges::find(containerNames_, std::string_view(name));
    return known != containerNames_.end() ? AddContainer(name).Detach() : nullptr;
}

std::shared_ptr<const KORCatalogFile> KORMemoryDocument::OpenCatalog(std::string_view fileName) {
    auto file = platform_.OpenCatalog(fileName);
    if (file) catalogs_->Add(fileName, file);
    return file;
}

KORVar<KORFeature> KORMemoryDocument::AddAnalysisModel() {
    KORVar<KORFeature> model(FindAnalysisModel());
    return model ? model : NewPlatformFeature(kAnalysisModelType, "AnalysisModel");
}

HRESULT KORMemoryDocument::LoadCatalog(const KORUnicodeString& catalog) {
    return container_ && OpenCatalog(catalog.View()) ? S_OK : E_FAIL;
}

KORISamAnalysisModelFactory* KORMemoryDocument::GetFactory() {
    return container_ ? new KORAnalysisModelFactory(catalogs_) : nullptr;
}

KORISamAnalysisModel* KORMemoryDocument::GetAnalysisModel() {
    return KORISamAnalysisModel_var::Of(FindAnalysisModel()).Detach();
}

KORFeature* KORMemoryDocument::FindAnalysisModel() {
    // Undo and redo take it away and bring it back. A number is never another feature's.
    KORFeature* known = Features().Find(analysisModel_);
    if (known && known->LiesInContainer()) return known;
    KORFeature* found = nullptr;
    ForEachFeature(nullptr, [&found, role = KORName::Intern(kKORModelRole)](KORFeature& feature) {
        if (!found && feature.Layout().Role() == role) found = &feature;
    });
    if (found) analysisModel_ = found->Number();
    return found;
}

HRESULT KORMemoryDocument::Remove(KORISpecObject* feature) {
    const auto own = KORVar<KORFeature>::Of(feature);
    if (!own || own->StoreDocument() != this || !own->LiesInContainer()) return E_FAIL;
    own->SetContainer(nullptr);
    return S_OK;
}

void KORMemoryDocument::Close() noexcept {
    if (!container_) return;
    container_->ForgetDocument();  // first: they take no features any more
    for (const auto& container : applicativeContainers_) container->ForgetDocument();
    CloseStore();
    container_ = nullptr;
    applicativeContainers_.clear();
    containerNames_.clear();
}

void* KORMemoryDocument::OwnInterface(KORIID iid) {
    return iid == IID_KORMemoryDocument ? this : KORImplements::OwnInterface(iid);
}
