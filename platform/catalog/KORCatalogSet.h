#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/catalog/KORCatalogFile.h"

/// Catalogs in the order in which they were opened, and behind them others: a document's own, behind them
/// those that its platform shares among all documents, behind them the platform's own one.
class KORCatalogSet {
public:
    struct Catalog {
        std::string name;  ///< the file name it was opened by
        std::shared_ptr<const KORCatalogFile> file;
    };

    /// Behind a set without others stands the platform's own catalog.
    explicit KORCatalogSet(std::shared_ptr<const KORCatalogSet> behind = nullptr);

    void Add(std::string_view name, const std::shared_ptr<const KORCatalogFile>& file);  ///< once per name
    const std::vector<Catalog>& Catalogs() const { return catalogs_; }

    /// The catalog that was opened by that file name; null when it is none of this set's own.
    std::shared_ptr<const KORCatalogFile> Opened(std::string_view name) const;

    /// The late type, from the first catalog that declares it; null for null and when none does.
    const KORCatalogType* Find(const KORName* lateType) const;

private:
    std::shared_ptr<const KORCatalogSet> behind_;
    std::vector<Catalog> catalogs_;
};
