#pragma once

#include <string>

/// The folder with the module's catalog as it is.
std::string CatalogFolderOfTheModule();

/// A folder with a copy of the module's catalog in which one text is replaced by another, for as long as a
/// test needs it.
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
