#pragma once

#include <string>

#include "platform/store/KORAttributeKind.h"

namespace zelmat {

/// What the module's catalog says of an attribute. The program has the catalog built in, as it stood when the
/// program was built: the facts need no file.
struct AttributeFacts {
    std::string title;    ///< the attribute's meaning up to the first semicolon: "Young's modulus"
    std::string meaning;  ///< in full
    KORAttributeKind kind = KORAttributeKind::Double;
    std::string unit;  ///< SI; "-" for pure numbers, empty for what is no number
    int since = 0;     ///< the release that introduced it
};

/// An attribute of a late type. Naming one that the catalog does not declare is a mistake in the program
/// (std::logic_error).
AttributeFacts FactsOf(const char* lateType, const char* attribute);

}  // namespace zelmat
