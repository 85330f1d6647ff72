#include "platform/document/KORPlatform.h"

#include <filesystem>
#include <iostream>

#include "platform/analysis/KORAnalysisExtensions.h"

KORPlatform::KORPlatform(std::string catalogFolder) : catalogFolder_(std::move(catalogFolder)) {
    KORAnalysisExtensions();
    services_.units = units_.Get();
}

std::shared_ptr<const KORCatalogFile> KORPlatform::OpenCatalog(std::string_view fileName,
                                                               KORFileError& error) {
    const std::filesystem::path name(fileName);
    const bool plain = !name.empty() && name == name.filename() && name != "." && name != "..";
    if (!plain || fileName.find('\0') != std::string_view::npos) {
        error = {std::string(fileName), 0, 0, "expected the name of a file in the catalog folder"};
        return nullptr;
    }
    return KORCatalogFile::Open((std::filesystem::path(catalogFolder_) / name).string(), error);
}

void KORPlatform::Report(const KORFileError& error) {
    const std::string text = error.Text();
    if (reported_.insert(text).second) std::cerr << text << std::endl;
}

bool KORPlatform::ShareCatalog(std::string_view fileName, KORFileError& error) {
    const std::filesystem::path path = std::filesystem::path(catalogFolder_) / fileName;
    const auto catalog = KORCatalogFile::Open(path.string(), error);
    if (catalog) shared_->Add(fileName, catalog);
    return catalog != nullptr;
}
