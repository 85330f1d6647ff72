#include "platform/catalog/KORCatalogSet.h"

#include <algorithm>

#include "platform/catalog/KORPlatformCatalog.h"

KORCatalogSet::KORCatalogSet(std::shared_ptr<const KORCatalogSet> behind) : behind_(std::move(behind)) {
    // Read by now at the latest: a late type can only be looked up by name once a catalog has named it.
    if (!behind_) KORPlatformCatalog();
}

void KORCatalogSet::Add(std::string_view name, const std::shared_ptr<const KORCatalogFile>& file) {
    if (!Opened(name)) catalogs_.push_back({std::string(name), file});
}

std::shared_ptr<const KORCatalogFile> KORCatalogSet::Opened(std::string_view name) const {
    const auto found = std::ranges::find(catalogs_, name, &Catalog::name);
    return found != catalogs_.end() ? found->file : nullptr;
}

const KORCatalogType* KORCatalogSet::Find(const KORName* lateType) const {
    for (const Catalog& catalog : catalogs_) {
        if (const KORCatalogType* type = catalog.file->Find(lateType)) return type;
    }
    return behind_ ? behind_->Find(lateType) : KORPlatformCatalog().Find(lateType);
}
