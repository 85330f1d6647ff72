#pragma once

#include "framework/KORImplements.h"
#include "interfaces/KORICatalog.h"
#include "interfaces/KORICutAndPastable.h"
#include "platform/store/KORIFeatureContainer.h"

class KORMemoryDocument;

/// A container of features of a document in memory, in which catalogs can be opened and between which
/// features can be copied. Which features lie in it is written in the features themselves: each holds its
/// container, and lives at least as long as it lies in one. Once the document is closed it takes no features
/// and opens no catalogs.
class KORMemoryContainer final
    : public KORImplements<KORIContainer, KORICatalogAccess, KORIFeatureContainer, KORICutAndPastable> {
public:
    explicit KORMemoryContainer(KORMemoryDocument& document) : document_(&document) {}

    HRESULT QueryInterface(KORIID iid, void** out) override { return QueryOwnFirst(iid, out); }
    KORDocument* GetDocument() override;

    /// The catalog of that file name in the platform's catalog folder. The client identifier is for platforms
    /// that license their catalogs; this one asks nobody.
    [[nodiscard]] HRESULT OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString& client,
                                      KORICatalog_var& opened) override;

    KORVar<KORFeature> NewFeature(const KORLayoutHandle& layout, const KORUnicodeString& name) override;

    /// E_FAIL when one of the features does not lie here. One that is given twice is extracted twice.
    [[nodiscard]] HRESULT Extract(const KORListValKORISpecObject_var& features,
                                  KORListValKORISpecObject_var& extracted) override;

    /// E_FAIL, and nothing is made, when one of them is no feature of this document. Copies have the
    /// originals' instance names and aliases and share their lists of doubles. In an undo step, undoing it
    /// takes them away again.
    [[nodiscard]] HRESULT Paste(const KORListValKORISpecObject_var& extracted,
                                KORListValKORISpecObject_var& copies) override;

    [[nodiscard]] HRESULT Remove(KORISpecObject* feature) override;

    void ForgetDocument() { document_ = nullptr; }

private:
    bool Holds(const KORFeature& feature) const;

    KORMemoryDocument* document_;  ///< null once it is closed
};
