#pragma once

#include <string>

/// The folder with the catalogs as they are installed.
std::string CatalogFolderOfTheModule();

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
