#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

/// A catalog folder of a test's own, with the module's catalog as it is or with something missing from it.
/// Beside it lies the complete catalog under another name, for documents with features of a type that is
/// missing from the module's. Every folder has a path of its own: a catalog file is parsed once per process.
class ZELCatalogFolder {
public:
    static constexpr const char* kModuleCatalog = "ZELMaterialPropertiesCatalog.KORfct";
    static constexpr const char* kCompleteCatalog = "Complete.KORfct";

    ZELCatalogFolder();
    ~ZELCatalogFolder();
    ZELCatalogFolder(const ZELCatalogFolder&) = delete;
    ZELCatalogFolder& operator=(const ZELCatalogFolder&) = delete;

    const std::string& Path() const { return path_; }

    /// Before anything opens the module's catalog. What is dropped must be there.
    void DropType(const std::string& lateType);
    void DropAttribute(const std::string& lateType, const std::string& attribute);
    void DropCatalog();

private:
    void Write(const char* name) const;

    std::string path_;
    nlohmann::json catalog_;
};
