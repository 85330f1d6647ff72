#include "tests/zelmat/support/CatalogFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

namespace {

constexpr const char* kModuleCatalog = "ZELMaterialPropertiesCatalog.KORfct";

}  // namespace

std::string CatalogFolderOfTheModule() {
    return ZELMAT_CATALOGS;
}

std::size_t FeaturesOfAMaterial() {
    constexpr std::size_t kOthers = 2 + 1 + 3 + 2;
    std::ifstream file(CatalogFolderOfTheModule() + "/" + kModuleCatalog);
    const auto catalog = nlohmann::json::parse(file);
    const auto& types = catalog.at("types");
    const auto material = std::find_if(types.begin(), types.end(),
                                       [](const auto& type) { return type.at("name") == "ZELMaterialLT"; });
    const auto& attributes = material->at("attributes");
    const auto behaviors = std::count_if(attributes.begin(), attributes.end(), [](const auto& attribute) {
        return attribute.at("kind") == "component" && !attribute.contains("role");
    });
    return static_cast<std::size_t>(behaviors) + kOthers;
}

CatalogFolder::CatalogFolder(const std::string& text, const std::string& replacement) {
    static int made = 0;  // a catalog file is parsed once per process: each folder has a name of its own
    path_ = testing::TempDir() + "zelmat-catalogs-" + std::to_string(getpid()) + "-" + std::to_string(++made);
    std::filesystem::copy(ZELMAT_CATALOGS, path_);
    std::ifstream original(path_ + "/" + kModuleCatalog, std::ios::binary);
    std::string catalog{std::istreambuf_iterator<char>(original), {}};
    const auto found = catalog.find(text);
    if (found == std::string::npos) {
        ADD_FAILURE() << "the catalog does not hold " << text;
    } else {
        catalog.replace(found, text.size(), replacement);
    }
    std::ofstream(path_ + "/" + kModuleCatalog, std::ios::binary) << catalog;
}

CatalogFolder::~CatalogFolder() {
    std::filesystem::remove_all(path_);
}
