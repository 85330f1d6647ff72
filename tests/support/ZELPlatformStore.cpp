#include "tests/support/ZELPlatformStore.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "platform/catalog/KORPlatformCatalog.h"
#include "tests/support/ZELCatalogText.h"

namespace {

constexpr const char* kCatalog = "ZELMaterialPropertiesCatalog.KORfct";

std::string NewFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "zel_store_XXXXXX").string();
    if (!mkdtemp(folder.data())) throw std::runtime_error("no folder for the test's catalog: " + folder);
    return folder;
}

}  // namespace

ZELPlatformStore::ZELPlatformStore() : folder_(NewFolder()), types_(ZELModuleTypes()) {
    KORFileError error;
    catalog_ = KORCatalogFile::Open(ZELModuleCatalog(), error);
    std::filesystem::copy_file(ZELModuleCatalog(), std::filesystem::path(folder_) / kCatalog);
    platform_ = std::make_unique<KORPlatform>(folder_);
    if (!platform_->ShareCatalog(ZELSharedCatalog(), error)) throw std::runtime_error(error.Text());
    document_ = KORMemoryDocument::New(*platform_);
}

ZELPlatformStore::~ZELPlatformStore() {
    document_->Close();
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

void ZELPlatformStore::WriteCatalog() {
    const std::string text = ZELCatalogText(types_);
    std::ofstream(std::filesystem::path(folder_) / kCatalog) << text;
    KORFileError error;
    catalog_ = KORCatalogFile::FromText(text, kCatalog, error);
    if (!catalog_) throw std::runtime_error(error.Text());
}

KORISpecObject_var ZELPlatformStore::Make(const char* lateType) {
    return MakeIn(Container(), lateType);
}

KORIContainer_var ZELPlatformStore::AddContainer(const char* name) {
    return KORIContainer_var(document_->AddContainer(name));
}

KORISpecObject_var ZELPlatformStore::MakeIn(const KORIContainer_var& container, const char* lateType) {
    const KORCatalogType* type = catalog_->Find(KORName::Find(lateType));
    if (!type) return nullptr;
    const KORIFeatureContainer_var holder = container;
    return KORISpecObject_var(holder->NewFeature(type->layout, lateType));
}

KORISpecObject_var ZELPlatformStore::MakePlatformMaterial(const KORIContainer_var& container) {
    const KORCatalogType* type = KORPlatformCatalog().Find(KORName::Find("KORMaterialLT"));
    const KORIFeatureContainer_var holder = container;
    return KORISpecObject_var(holder->NewFeature(type->layout, "Material"));
}

KORIContainer_var ZELPlatformStore::Container() {
    return KORIContainer_var(KORBaseUnknown_var::Adopt(document_->GetFeatContainer()));
}

KORDocument* ZELPlatformStore::Document() {
    return document_.Get();
}

KORISpecObject_var ZELPlatformStore::AddAnalysisModel() {
    return KORISpecObject_var(document_->AddAnalysisModel());
}

void ZELPlatformStore::Remove(const KORISpecObject_var& feature) {
    if (FAILED(document_->Remove(feature.Get()))) throw std::runtime_error("no member of the container");
}

long ZELPlatformStore::LiveFeatures() const {
    return static_cast<long>(document_->Features().Size());
}

void ZELPlatformStore::DefineType(const char* lateType, std::vector<ZELAttribute> attributes) {
    types_.Define(lateType, std::move(attributes));
    WriteCatalog();
}

void ZELPlatformStore::OmitAttribute(const char* lateType, const char* attribute) {
    types_.OmitAttribute(lateType, attribute);
    WriteCatalog();
}

void ZELPlatformStore::OmitType(const char* lateType) {
    types_.OmitType(lateType);
    WriteCatalog();
}
