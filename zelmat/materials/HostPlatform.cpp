#include "zelmat/materials/HostPlatform.h"

#include <filesystem>
#include <utility>

namespace zelmat {

namespace {

constexpr const char* kCatalog = "ZELMaterialPropertiesCatalog.KORfct";
constexpr const char* kSharedCatalog = "ZELSharedCatalog.KORfct";

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
    const std::string shared = (std::filesystem::path(catalogs_) / kSharedCatalog).string();
    KORJsonError error;
    return Open(CatalogPath(), findings) && Open(shared, findings) &&
           platform_.ShareCatalog(kSharedCatalog, error);
}

bool HostPlatform::Open(const std::string& path, Findings& findings) const {
    KORJsonError error;
    if (KORCatalogFile::Open(path, error)) return true;
    findings.Add({FindingKind::UNREADABLE, {path, error.line}, "bad-catalog", error.message, {}});
    return false;
}

}  // namespace zelmat
