#include "zelmat/materials/HostPlatform.h"

#include <filesystem>
#include <utility>

namespace zelmat {

namespace {

constexpr const char* kCatalog = "ZELMaterialPropertiesCatalog.KORfct";
constexpr const char* kSharedCatalog = "ZELSharedCatalog.KORfct";
constexpr const char* kCardCatalog = "ZelmatCardCatalog.KORfct";

}  // namespace

HostPlatform::HostPlatform(std::string catalogs)
    : catalogs_(std::move(catalogs)),
      platform_(catalogs_),
      services_(platform_.Services()),
      document_(KORMemoryDocument::New(platform_)) {}

std::string HostPlatform::CatalogPath() const {
    return (std::filesystem::path(catalogs_) / kCatalog).string();
}

bool HostPlatform::OpenCatalog(Findings& findings) {
    KORFileError error;
    if (KORCatalogFile::Open(CatalogPath(), error) && platform_.ShareCatalog(kSharedCatalog, error) &&
        platform_.ShareCatalog(kCardCatalog, error)) {
        return true;
    }
    findings.Add({FindingKind::UNREADABLE, {error.file, error.line}, "bad-catalog", error.Sentence(), {}});
    return false;
}

}  // namespace zelmat
