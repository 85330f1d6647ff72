#pragma once

#include <cstdint>

/// What an attribute of a late type holds. Fixed with the type: a feature's attribute never changes its kind.
enum class KORAttributeKind : std::uint8_t {
    Boolean,
    Integer,
    Double,
    String,
    ListOfDoubles,
    Component,
    ListOfComponents,
};

constexpr bool KORIsList(KORAttributeKind kind) {
    return kind == KORAttributeKind::ListOfDoubles || kind == KORAttributeKind::ListOfComponents;
}
