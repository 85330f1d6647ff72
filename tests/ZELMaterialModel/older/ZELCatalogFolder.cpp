#include "tests/ZELMaterialModel/older/ZELCatalogFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "tests/support/ZELCatalogText.h"

namespace {

using nlohmann::json;

std::string NewFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "zel_older_XXXXXX").string();
    if (!mkdtemp(folder.data())) throw std::runtime_error("no folder for the test's catalogs: " + folder);
    return folder;
}

/// The entry of that name in an array of named ones.
json::iterator Find(json& entries, const std::string& name) {
    const auto found =
        std::ranges::find_if(entries, [&name](const json& entry) { return entry["name"] == name; });
    if (found == entries.end()) throw std::runtime_error("the catalog has no " + name);
    return found;
}

}  // namespace

ZELCatalogFolder::ZELCatalogFolder()
    : path_(NewFolder()), catalog_(json::parse(std::ifstream(ZELModuleCatalog()))) {
    Write(kModuleCatalog);
    Write(kCompleteCatalog);
}

ZELCatalogFolder::~ZELCatalogFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void ZELCatalogFolder::DropType(const std::string& lateType) {
    catalog_["types"].erase(Find(catalog_["types"], lateType));
    Write(kModuleCatalog);
}

void ZELCatalogFolder::DropAttribute(const std::string& lateType, const std::string& attribute) {
    json& attributes = (*Find(catalog_["types"], lateType))["attributes"];
    attributes.erase(Find(attributes, attribute));
    // An old key names the one that took its place, which must be there.
    for (json& other : attributes) {
        if (other.value("superseded_by", "") == attribute) other.erase("superseded_by");
    }
    Write(kModuleCatalog);
}

void ZELCatalogFolder::DropCatalog() {
    std::filesystem::remove(std::filesystem::path(path_) / kModuleCatalog);
}

void ZELCatalogFolder::Write(const char* name) const {
    std::ofstream(std::filesystem::path(path_) / name) << catalog_.dump(1);
}
