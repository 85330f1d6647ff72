#pragma once

#include <optional>
#include <vector>

#include "platform/disk/KORPackedBytes.h"
#include "platform/store/KORFeature.h"

// Values as a document's file holds them, in the attributes of a feature and in the steps of its history.
// Byte for byte they are described in docs/document.md. A reference is the number of a feature.

/// The number of a referenced object; nothing when it is no feature of the document.
std::optional<std::uint32_t> KORReferenceOf(const KORStoreDocument& document, KORBaseUnknown* object);

/// Appends a value. False, with something useless appended, when it references what is no feature of the
/// document.
[[nodiscard]] bool KORPackValue(KORPacker& packer, const KORValue& value, const KORStoreDocument& document);

/// A value as it was packed, its references still as numbers: the features need not be there yet.
struct KORUnpackedValue {
    KORValue value{KORAttributeKind::Boolean};  ///< without references; that of a list is empty
    std::size_t references = 0;                 ///< how many were appended; 0 where they are none

    bool Refers() const { return references > 0; }
};

/// Takes a value apart and appends the numbers it references, 0 for an empty entry. What makes no sense fails
/// the unpacker.
KORUnpackedValue KORUnpackValue(KORUnpacker& packed, std::vector<std::uint32_t>& references);
