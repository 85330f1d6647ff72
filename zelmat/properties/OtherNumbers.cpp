#include "zelmat/properties/OtherNumbers.h"

#include <algorithm>
#include <cctype>
#include <nlohmann/json.hpp>

#include "zelmat/quantities/Measured.h"

namespace zelmat {

namespace {

using Json = nlohmann::json;

std::string Letters(const std::string& name) {
    constexpr std::size_t kLongestSymbol = 2;
    std::string letters;
    for (const char character : name) {
        if (std::isalnum(static_cast<unsigned char>(character)) != 0) letters += character;
    }
    if (letters.size() <= kLongestSymbol) return letters;
    for (char& letter : letters) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return letters;
}

bool IsOneOf(const std::string& name, const std::vector<std::string>& names) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& each) { return Letters(each) == Letters(name); });
}

std::optional<double> NumberOf(const Json& value, const Quantity& quantity) {
    if (value.is_number()) return value.get<double>();
    if (!value.is_string()) return std::nullopt;
    const auto measured = ReadMeasured(value.get<std::string>(), quantity);
    const auto stored = measured ? measured->Stored(quantity) : measured.Error();
    return stored ? std::optional(*stored) : std::nullopt;
}

std::optional<double> Search(const std::vector<KeptValue>& kept, const std::vector<std::string>& names,
                             const Quantity& quantity) {
    for (const KeptValue& value : kept) {
        const Json json = Json::parse(value.json, nullptr, false);
        if (IsOneOf(value.name, names)) {
            if (const auto number = NumberOf(json, quantity)) return number;
        }
        if (!json.is_object()) continue;
        for (const auto& [name, inner] : json.items()) {
            if (!IsOneOf(name, names)) continue;
            if (const auto number = NumberOf(inner, quantity)) return number;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<double> OtherNumber(const std::vector<KeptValue>& kept, const std::vector<std::string>& names,
                                  const char* quantityName) {
    return Search(kept, names, *FindQuantity(quantityName));
}

std::optional<double> OtherNumber(const Material& material, const std::vector<std::string>& names,
                                  const char* quantityName) {
    const Quantity& quantity = *FindQuantity(quantityName);
    if (const auto number = Search(material.kept, names, quantity)) return number;
    for (const auto* blocks : {&material.blocks, &material.information}) {
        for (const Block& block : *blocks) {
            if (const auto number = Search(block.kept, names, quantity)) return number;
        }
    }
    return std::nullopt;
}

}  // namespace zelmat
