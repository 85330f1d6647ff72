#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/catalog/KORCatalogFile.h"

/// The catalogs that one document uses, in the order in which they were opened, and behind them the
/// platform's own.
class KORCatalogSet {
public:
    struct Catalog {
        std::string name;  ///< the file name it was opened by
        std::shared_ptr<const KORCatalogFile> file;
    };

    void Add(std::string_view name, const std::shared_ptr<const KORCatalogFile>& file);  ///< once per name
    const std::vector<Catalog>& Catalogs() const { return catalogs_; }

    /// The late type, from the first catalog that declares it; null for null and when none does.
    const KORCatalogType* Find(const KORName* lateType) const;

private:
    std::vector<Catalog> catalogs_;
};
