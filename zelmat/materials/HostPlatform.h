#pragma once

#include <string>

#include "platform/document/KORMemoryDocument.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// The platform under the module while a command runs, with one document in memory on which the command
/// works. While it lives the platform's services are the current ones.
class HostPlatform {
public:
    /// `catalogs`: the folder of the feature catalogs.
    explicit HostPlatform(std::string catalogs);
    HostPlatform(const HostPlatform&) = delete;
    HostPlatform& operator=(const HostPlatform&) = delete;

    KORPlatform& Platform() { return platform_; }
    KORMemoryDocument& Document() { return *document_; }
    std::string CatalogPath() const;  ///< of the module's catalog

    /// Opens the module's catalog, the one that the add-on shares among all documents, and the program's own.
    /// False, and a finding with the reason and its place, when one of them cannot be opened.
    [[nodiscard]] bool OpenCatalog(Findings& findings);

private:
    // Let go of from the last to the first.
    std::string catalogs_;
    KORPlatform platform_;
    KORServicesScope services_;
    KORVar<KORMemoryDocument> document_;
};

}  // namespace zelmat
