#pragma once

#include "framework/KORVar.h"

class KORDocument;

inline const KORIID IID_KORILinkableObject = KORName::Intern("KORILinkableObject");

/// A live object of a document: every feature of one is linkable.
class KORILinkableObject : public KORInterface<IID_KORILinkableObject> {
public:
    virtual KORDocument* GetDocument() = 0;  ///< no reference; null once the document is closed

protected:
    ~KORILinkableObject() = default;
};

using KORILinkableObject_var = KORVar<KORILinkableObject>;
