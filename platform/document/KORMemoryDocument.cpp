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

KORVar<KORMemoryContainer> KORMemoryDocument::AddContainer(std::string_view name) {
    if (!container_ || name.empty() || name.front() == '\0') return nullptr;
    const auto [known, fresh] = containerPlaces_.try_emplace(std::string(name), containerNames_.size());
    if (fresh) {
        applicativeContainers_.push_back(KORVar<KORMemoryContainer>::Adopt(new KORMemoryContainer(*this)));
        containerNames_.emplace_back(name);
    }
    return applicativeContainers_[known->second];
}

KORBaseUnknown* KORMemoryDocument::FindContainer(const char* name) {
    return containerPlaces_.contains(name) ? AddContainer(name).Detach() : nullptr;
}

std::shared_ptr<const KORCatalogFile> KORMemoryDocument::OpenCatalog(std::string_view fileName) {
    if (auto known = catalogs_->Opened(fileName)) return known;
    KORFileError error;
    auto file = platform_.OpenCatalog(fileName, error);
    if (file) {
        catalogs_->Add(fileName, file);
    } else {
        platform_.Report(error);
    }
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
    containerPlaces_.clear();
}

void* KORMemoryDocument::OwnInterface(KORIID iid) {
    return iid == IID_KORMemoryDocument ? this : KORImplements::OwnInterface(iid);
}
