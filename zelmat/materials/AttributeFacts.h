#pragma once

#include <string>

#include "platform/store/KORAttributeKind.h"

namespace zelmat {

/// What the program takes from the catalog for an attribute that it reads and writes.
struct AttributeFacts {
    std::string title;  ///< the attribute's meaning up to the first semicolon: "Young's modulus"
    KORAttributeKind kind = KORAttributeKind::Double;
    std::string unit;  ///< SI; "-" for pure numbers, empty for what is no number
};

/// An attribute of a late type. Naming one that the catalog does not declare is a mistake in the program
/// (std::logic_error).
AttributeFacts FactsOf(const char* lateType, const char* attribute);

}  // namespace zelmat
