#pragma once

#include <string>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// Short things as a JSON text, for string attributes of documents; what is empty is the empty text. A text
/// that is none of the kind, which some other program may have written, reads as empty.

std::string TextOfTexts(const std::vector<std::string>& texts);
std::vector<std::string> TextsOfText(const std::string& json);

std::string TextOfKept(const std::vector<KeptValue>& kept);
std::vector<KeptValue> KeptOfText(const std::string& json);

/// The values of these names, those that there are; one that was written in another unit as
/// {"number": 20, "unit": "degC"}.
std::string TextOfValues(const Values& values, const std::map<std::string, WrittenNumber>& written,
                         const std::vector<std::string>& names);

/// Values and written numbers of a block of this kind. A value that was written in another unit is the one
/// that is stored for it; it is left out where that cannot be told, and so is a value of another kind than
/// the setting's.
void ValuesOfText(const std::string& json, const BlockKind& kind, Values& values,
                  std::map<std::string, WrittenNumber>& written);

}  // namespace zelmat
