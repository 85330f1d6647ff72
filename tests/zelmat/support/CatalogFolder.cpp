#include "tests/zelmat/support/CatalogFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

std::string CatalogFolderOfTheModule() {
    const std::string catalog = ZELMAT_CATALOG;
    return catalog.substr(0, catalog.rfind('/'));
}

CatalogFolder::CatalogFolder(const std::string& text, const std::string& replacement) {
    static int made = 0;  // a catalog file is parsed once per process: each folder has a name of its own
    path_ = testing::TempDir() + "zelmat-catalogs-" + std::to_string(getpid()) + "-" + std::to_string(++made);
    std::ifstream original(ZELMAT_CATALOG, std::ios::binary);
    std::string catalog{std::istreambuf_iterator<char>(original), {}};
    const auto found = catalog.find(text);
    if (found == std::string::npos) {
        ADD_FAILURE() << "the catalog does not hold " << text;
    } else {
        catalog.replace(found, text.size(), replacement);
    }
    std::filesystem::create_directories(path_);
    std::ofstream(path_ + "/ZELMaterialPropertiesCatalog.KORfct", std::ios::binary) << catalog;
}

CatalogFolder::~CatalogFolder() {
    std::filesystem::remove_all(path_);
}
