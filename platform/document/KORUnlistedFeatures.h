#pragma once

#include <span>

#include "platform/document/KORMemoryDocument.h"
#include "platform/store/KORFeaturePlaces.h"

/// Finds the features that changes have left in a container without anything that leads to them: no feature
/// in a container lists them any more, other than such as are unlisted themselves.
class KORUnlistedFeatures {
public:
    /// Suspects what these changes took out of an attribute, and what they created or removed and all it
    /// consists of. `cause` is the caller's, and is given back with what is found.
    void Suspect(std::span<const KORUndoEntry> changes, std::uint32_t cause);

    struct Unlisted {
        std::uint32_t feature;  ///< its number
        std::uint32_t cause;
    };

    /// The suspects that are unlisted now, in the order in which they were suspected. Goes through the
    /// document once.
    std::vector<Unlisted> Find(const KORMemoryDocument& document);

private:
    void Add(KORBaseUnknown* object, std::uint32_t cause);
    void FollowSuspects();

    struct Entry {
        KORVar<KORFeature> feature;
        std::uint32_t cause;
        bool listed = false;
    };
    std::vector<Entry> suspects_;
    KORFeaturePlaces places_;
};
