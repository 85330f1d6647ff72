#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "framework/KORServices.h"
#include "platform/analysis/KORUnitsService.h"
#include "platform/catalog/KORCatalogSet.h"

/// The stand-alone platform as its host sets it up: where catalogs lie, and the services its free functions
/// work on. The host makes it once, keeps it longer than every document, and makes its services the current
/// ones (KORServicesScope) while it calls modules. The document that the user works on is the host's to set
/// there. It knows no module.
class KORPlatform {
public:
    explicit KORPlatform(std::string catalogFolder);
    KORPlatform(const KORPlatform&) = delete;
    KORPlatform& operator=(const KORPlatform&) = delete;

    KORServices& Services() { return services_; }
    KORUnitsService& Units() { return *units_; }  ///< in the services, too

    /// The catalog of a file name in the catalog folder. Null when it is missing, malformed or incomplete;
    /// then CatalogError says so, and so does standard error, once per error.
    [[nodiscard]] std::shared_ptr<const KORCatalogFile> OpenCatalog(std::string_view fileName);

    /// Makes the late types of a catalog known to every document of this platform, beside the platform's own
    /// and without being opened by it. False, as when it is opened, when it cannot be.
    [[nodiscard]] bool ShareCatalog(std::string_view fileName);
    std::shared_ptr<const KORCatalogSet> SharedCatalogs() const { return shared_; }

    /// What was wrong with the catalog opened last, as "file:line: what was expected"; empty when nothing
    /// was.
    const std::string& CatalogError() const { return catalogError_; }

private:
    std::string catalogFolder_;
    KORVar<KORUnitsService> units_ = KORVar<KORUnitsService>::Adopt(new KORUnitsService);
    KORServices services_;
    const std::shared_ptr<KORCatalogSet> shared_ = std::make_shared<KORCatalogSet>();
    std::string catalogError_;
    std::set<std::string> reported_;
};
