#pragma once

#include <vector>

#include "platform/disk/KORDiskNames.h"
#include "platform/store/KORFeature.h"

/// Where in today's features the attributes of a document's file lie. An attribute that the catalogs of today
/// do not declare, or declare of another kind, is an undeclared one of its feature.
class KORDiskSlots {
public:
    explicit KORDiskSlots(const KORDiskNames& names);  ///< it outlives this object, and takes no new names

    bool HasName(std::uint64_t name) const { return names_.Has(name); }

    /// The slot of an attribute. Throws std::length_error when the feature has too many undeclared ones.
    KORSlot Of(KORFeature& feature, std::uint64_t name, KORAttributeKind kind) const;

    KORSlot UndeclaredOf(KORFeature& feature, std::uint64_t name) const;

private:
    const KORDiskNames& names_;
    std::vector<const KORName*> keys_;  ///< by the name's number less 1; null: no catalog has that name
};
