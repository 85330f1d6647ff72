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

    /// The catalog of a file name in the catalog folder. Null, and `error` filled, when it is missing,
    /// malformed or incomplete, and for a name that leads out of the folder.
    [[nodiscard]] std::shared_ptr<const KORCatalogFile> OpenCatalog(std::string_view fileName,
                                                                    KORFileError& error);

    /// Makes the late types of a catalog known to every document of this platform, beside the platform's own
    /// and without being opened by it. It is the host's choice: also a path is taken. False, and `error`
    /// filled, when it cannot be opened.
    [[nodiscard]] bool ShareCatalog(std::string_view fileName, KORFileError& error);
    std::shared_ptr<const KORCatalogSet> SharedCatalogs() const { return shared_; }

    /// Says on standard error what went wrong where the caller gets a status only; each error once.
    void Report(const KORFileError& error);

private:
    std::string catalogFolder_;
    KORVar<KORUnitsService> units_ = KORVar<KORUnitsService>::Adopt(new KORUnitsService);
    KORServices services_;
    const std::shared_ptr<KORCatalogSet> shared_ = std::make_shared<KORCatalogSet>();
    std::set<std::string> reported_;
};
