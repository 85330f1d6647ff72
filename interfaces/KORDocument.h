#pragma once

#include "framework/KORVar.h"

inline const KORIID IID_KORDocument = KORName::Intern("KORDocument");

/// A document: what is opened, saved and undone as one. Its features lie in its containers.
class KORDocument : public KORInterface<IID_KORDocument> {
public:
    /// The container for the document's own features, with one reference for the caller; null once it is
    /// closed.
    virtual KORBaseUnknown* GetFeatContainer() = 0;

protected:
    ~KORDocument() = default;
};

using KORDocument_var = KORVar<KORDocument>;
