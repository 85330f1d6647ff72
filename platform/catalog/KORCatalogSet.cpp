#include "platform/catalog/KORCatalogSet.h"

#include <algorithm>

#include "platform/catalog/KORPlatformCatalog.h"

KORCatalogSet::KORCatalogSet(std::shared_ptr<const KORCatalogSet> behind) : behind_(std::move(behind)) {
    // Read by now at the latest: a late type can only be looked up by name once a catalog has named it.
    if (!behind_) KORPlatformCatalog();
}

void KORCatalogSet::Add(std::string_view name, const std::shared_ptr<const KORCatalogFile>& file) {
    const auto same = [name](const Catalog& catalog) { return catalog.name == name; };
    if (std::ranges::none_of(catalogs_, same)) catalogs_.push_back({std::string(name), file});
}

const KORCatalogType* KORCatalogSet::Find(const KORName* lateType) const {
    for (const Catalog& catalog : catalogs_) {
        if (const KORCatalogType* type = catalog.file->Find(lateType)) return type;
    }
    return behind_ ? behind_->Find(lateType) : KORPlatformCatalog().Find(lateType);
}
