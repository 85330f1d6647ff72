#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "platform/document/KORTextDocument.h"
#include "platform/document/KORUpgradeRun.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/ZELMaterialModel/older/ZELCatalogFolder.h"

using ZELChanges = std::vector<std::string>;

/// What an upgrade tells of one material, as tests write it down.
struct ZELTold {
    std::string name;
    std::uint32_t feature;
    std::uint32_t replacement;  ///< 0: it stays itself
    HRESULT status;
    bool stillNeeded;
    ZELChanges changes;  ///< "<number of the feature> <attribute>", in order
    std::vector<std::uint32_t> unlisted;

    bool operator==(const ZELTold&) const = default;
};
std::ostream& operator<<(std::ostream& out, const ZELTold& told);

std::vector<ZELTold> ZELToldOf(const KORUpgradeReport& report);

/// The text of one of the documents in tests/data/older, by its file name without ".json".
std::string ZELOlderText(const std::string& name);

/// The same text, but with its late types from the complete catalog that lies beside the module's.
std::string ZELOlderTextOverCompleteCatalog(const std::string& name);

/// An older document that was opened, on a platform of its own, whose services are the current ones while it
/// lives.
class ZELOlderDocument {
public:
    ZELOlderDocument(const ZELCatalogFolder& catalogs, const std::string& text);
    ~ZELOlderDocument();
    ZELOlderDocument(const ZELOlderDocument&) = delete;
    ZELOlderDocument& operator=(const ZELOlderDocument&) = delete;

    /// Asks and upgrades every material, as the platform does when it opens a document.
    KORUpgradeReport Upgrade();

    std::string Text() const;
    KORMemoryDocument& Document() { return *document_; }
    KORVar<KORFeature> Find(int id) const { return text_.Find(id); }  ///< by its id in the text

    /// Of the first material that lies in a container: what its current model lists, and the six current
    /// Johnson-Cook parameters in their order; nothing where it has none.
    ZELRows Coefficients() const;
    std::vector<double> JohnsonCook() const;

private:
    KORISpecObject_var Material() const;

    KORPlatform platform_;
    KORServicesScope scope_{platform_.Services()};
    KORVar<KORMemoryDocument> document_ = KORMemoryDocument::New(platform_);
    KORTextDocument text_{*document_};
};
