#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORISamAnalysisModel = KORName::Intern("KORISamAnalysisModel");
inline const KORIID IID_KORISamAnalysisModelFactory = KORName::Intern("KORISamAnalysisModelFactory");
inline const KORIID IID_KORISamAnalysisScan = KORName::Intern("KORISamAnalysisScan");

/// The analysis model of a document: the root of its sets and entities. It is a feature itself.
class KORISamAnalysisModel : public KORInterface<IID_KORISamAnalysisModel> {
protected:
    ~KORISamAnalysisModel() = default;
};

using KORISamAnalysisModel_var = KORVar<KORISamAnalysisModel>;

/// Makes the entities of a document's analysis model.
class KORISamAnalysisModelFactory : public KORInterface<IID_KORISamAnalysisModelFactory> {
public:
    /// A new entity of a late type under a model, with that instance name. One reference for the caller;
    /// null when the late type is in none of the document's catalogs, and when `model` is no feature that can
    /// have children.
    [[nodiscard]] virtual KORBaseUnknown* CreateEntity(const KORUnicodeString& lateType,
                                                       const KORUnicodeString& name,
                                                       KORISpecObject* model) = 0;

protected:
    ~KORISamAnalysisModelFactory() = default;
};

using KORISamAnalysisModelFactory_var = KORVar<KORISamAnalysisModelFactory>;

/// Finds features in an analysis model.
class KORISamAnalysisScan : public KORInterface<IID_KORISamAnalysisScan> {
public:
    /// The features of a late type, in document order. Mode 1: the model's own children; 2: the children
    /// of its sets; 3: both, at any depth.
    virtual KORListValKORISpecObject_var Scan(const KORUnicodeString& lateType, int mode) = 0;

protected:
    ~KORISamAnalysisScan() = default;
};

using KORISamAnalysisScan_var = KORVar<KORISamAnalysisScan>;
