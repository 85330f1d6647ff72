#include "platform/catalog/KORPlatformCatalog.h"

namespace {

constexpr const char* kTypes = R"json({
  "format": 1,
  "types": [
    {"name": "KORMaterialLT", "since": 1, "meaning": "A material of the platform; its alias is what users call it",
     "attributes": [
       {"name": "ApplicativeData", "kind": "list of components", "since": 1, "meaning": "what applications hang on the material: KORApplicativeDataLT"}
     ]},
    {"name": "KORApplicativeDataLT", "since": 1, "meaning": "A feature that an application hangs on another, under a name",
     "attributes": [
       {"name": "Name", "kind": "string", "default": "", "since": 1, "meaning": "the name, one of its kind on the object"},
       {"name": "Data", "kind": "component", "since": 1, "meaning": "the application's feature"}
     ]},
    {"name": "KORAnalysisModelLT", "role": "model", "since": 1, "meaning": "The analysis model of a document",
     "attributes": [
       {"name": "Children", "kind": "list of components", "since": 1, "meaning": "its sets, and the entities that are in none"}
     ]}
  ]
})json";

std::shared_ptr<const KORCatalogFile> Read() {
    KORFileError error;
    return KORCatalogFile::FromText(kTypes, "KORPlatformCatalog", error);
}

}  // namespace

const KORCatalogFile& KORPlatformCatalog() {
    static const auto catalog = Read();
    return *catalog;
}
