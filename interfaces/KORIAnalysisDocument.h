#pragma once

#include "interfaces/KORISamAnalysisModel.h"

inline const KORIID IID_KORIAnalysisDocument = KORName::Intern("KORIAnalysisDocument");

/// The analysis side of a document, offered by documents.
class KORIAnalysisDocument : public KORInterface<IID_KORIAnalysisDocument> {
public:
    /// Makes the late types of a catalog known to the document's analysis model. E_FAIL when it cannot be
    /// opened.
    [[nodiscard]] virtual HRESULT LoadCatalog(const KORUnicodeString& catalog) = 0;

    virtual KORISamAnalysisModelFactory* GetFactory() = 0;  ///< one reference for the caller; null: none
    virtual KORISamAnalysisModel* GetAnalysisModel() = 0;   ///< one reference for the caller; null: none

protected:
    ~KORIAnalysisDocument() = default;
};

using KORIAnalysisDocument_var = KORVar<KORIAnalysisDocument>;
