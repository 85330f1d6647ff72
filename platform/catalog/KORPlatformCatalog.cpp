#include "platform/catalog/KORPlatformCatalog.h"

namespace {

constexpr const char* kTypes = R"json({
  "format": 1,
  "types": [
    {"name": "KORMaterialLT", "since": 1, "meaning": "A material of the platform; its alias is what users call it",
     "attributes": [
       {"name": "ApplicativeData", "kind": "list of components", "since": 1, "meaning": "what applications attached to the material"}
     ]}
  ]
})json";

std::shared_ptr<const KORCatalogFile> Read() {
    KORJsonError error;
    return KORCatalogFile::FromText(kTypes, "KORPlatformCatalog", error);
}

}  // namespace

const KORCatalogFile& KORPlatformCatalog() {
    static const auto catalog = Read();
    return *catalog;
}
