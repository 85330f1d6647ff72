#pragma once

#include <cstddef>
#include <string>

/// The folder with the catalogs as they are installed.
std::string CatalogFolderOfTheModule();

/// How many features a new material makes in a document, by what the module's catalog hangs on a material. Of
/// the platform: the material and the entry on it. Of the factory: the root, a feature for each behavior, and
/// three tables of the gasket. Of the first query for the material interface: the model of hyperelasticity,
/// which is replaced once.
std::size_t FeaturesOfAMaterial();

/// A folder with copies of these catalogs, the module's with one text replaced by another, for as long
/// as a test needs it.
class CatalogFolder {
public:
    CatalogFolder(const std::string& text, const std::string& replacement);
    ~CatalogFolder();
    CatalogFolder(const CatalogFolder&) = delete;
    CatalogFolder& operator=(const CatalogFolder&) = delete;

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};
