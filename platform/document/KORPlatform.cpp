#include "platform/document/KORPlatform.h"

#include <filesystem>
#include <iostream>

#include "platform/analysis/KORAnalysisExtensions.h"

KORPlatform::KORPlatform(std::string catalogFolder) : catalogFolder_(std::move(catalogFolder)) {
    KORAnalysisExtensions();
    services_.units = units_.Get();
}

std::shared_ptr<const KORCatalogFile> KORPlatform::OpenCatalog(std::string_view fileName) {
    KORJsonError error;
    auto catalog = KORCatalogFile::Open((std::filesystem::path(catalogFolder_) / fileName).string(), error);
    catalogError_ = catalog ? std::string() : error.Text();
    if (!catalog && reported_.insert(catalogError_).second) std::cerr << catalogError_ << std::endl;
    return catalog;
}

bool KORPlatform::ShareCatalog(std::string_view fileName) {
    const auto catalog = OpenCatalog(fileName);
    if (catalog) shared_->Add(fileName, catalog);
    return catalog != nullptr;
}
