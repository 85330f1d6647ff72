#include "platform/catalog/KORCatalogSet.h"

#include <algorithm>

#include "platform/catalog/KORPlatformCatalog.h"

void KORCatalogSet::Add(std::string_view name, const std::shared_ptr<const KORCatalogFile>& file) {
    const auto same = [name](const Catalog& catalog) { return catalog.name == name; };
    if (std::ranges::none_of(catalogs_, same)) catalogs_.push_back({std::string(name), file});
}

const KORCatalogType* KORCatalogSet::Find(const KORName* lateType) const {
    for (const Catalog& catalog : catalogs_) {
        if (const KORCatalogType* type = catalog.file->Find(lateType)) return type;
    }
    return KORPlatformCatalog().Find(lateType);
}
