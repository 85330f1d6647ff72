#pragma once

#include "framework/KORVar.h"

class KORDocument;

inline const KORIID IID_KORIContainer = KORName::Intern("KORIContainer");

/// A container of features inside a document. It holds its members; which features those are is the store's
/// business.
class KORIContainer : public KORInterface<IID_KORIContainer> {
public:
    virtual KORDocument* GetDocument() = 0;  ///< the document it belongs to, no reference; null once that
                                             ///< is closed

protected:
    ~KORIContainer() = default;
};

using KORIContainer_var = KORVar<KORIContainer>;
