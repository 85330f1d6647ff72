#pragma once

#include <vector>

#include "platform/document/KORMemoryDocument.h"
#include "platform/store/KORFeaturePlaces.h"

/// The features of a document to which something leads: a container, a feature that is reached itself, or a
/// step that can be undone or redone. What the others are held by, they are of no use to the document any
/// more.
class KORReachedFeatures {
public:
    /// Goes through the whole document once.
    explicit KORReachedFeatures(const KORMemoryDocument& document);

    bool Contains(const KORFeature& feature) const { return reached_.Contains(&feature); }

private:
    void Reach(KORBaseUnknown* object);
    void ReachFrom(const KORValue& value);
    void Follow();

    KORFeaturePlaces reached_;
    std::vector<KORFeature*> next_;
};
