#pragma once

#include "framework/KORImplements.h"
#include "interfaces/KORICatalog.h"
#include "platform/store/KORIFeatureContainer.h"

class KORMemoryDocument;

/// A container of features of a document in memory, in which catalogs can be opened. Which features lie in it
/// is written in the features themselves: each holds its container, and lives at least as long as it lies in
/// one. Once the document is closed it takes no features and opens no catalogs.
class KORMemoryContainer final
    : public KORImplements<KORIContainer, KORICatalogAccess, KORIFeatureContainer> {
public:
    explicit KORMemoryContainer(KORMemoryDocument& document) : document_(&document) {}

    KORDocument* GetDocument() override;

    /// The catalog of that file name in the platform's catalog folder. The client identifier is for platforms
    /// that license their catalogs; this one asks nobody.
    [[nodiscard]] HRESULT OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString& client,
                                      KORICatalog_var& opened) override;

    KORVar<KORFeature> NewFeature(const KORLayoutHandle& layout, const KORUnicodeString& name) override;

    void ForgetDocument() { document_ = nullptr; }

private:
    KORMemoryDocument* document_;  ///< null once it is closed
};
