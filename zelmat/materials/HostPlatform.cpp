#include "zelmat/materials/HostPlatform.h"

#include <filesystem>
#include <utility>

namespace zelmat {

namespace {

constexpr const char* kCatalog = "ZELMaterialPropertiesCatalog.KORfct";

}  // namespace

HostPlatform::HostPlatform(std::string catalogs)
    : catalogs_(std::move(catalogs)),
      platform_(catalogs_),
      services_(platform_.Services()),
      document_(KORMemoryDocument::New(platform_)) {}

std::string HostPlatform::CatalogPath() const {
    return (std::filesystem::path(catalogs_) / kCatalog).string();
}

bool HostPlatform::OpenCatalog(Findings& findings) const {
    KORJsonError error;
    if (KORCatalogFile::Open(CatalogPath(), error)) return true;
    findings.Add({FindingKind::UNREADABLE, {CatalogPath(), error.line}, "bad-catalog", error.message, {}});
    return false;
}

}  // namespace zelmat
