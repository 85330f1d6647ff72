#include "zelmat/files/JsonText.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

std::string Scalar(const ordered_json& value) {
    if (!value.is_number_float()) {
        return value.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
    }
    const double number = value.get<double>();
    if (number == 0.0 && std::signbit(number)) return "-0.0";  // "-0" reads as the whole number 0
    return std::isfinite(number) ? NumberText(number) : "null";
}

bool HoldsScalars(const ordered_json& list) {
    return list.is_array() && std::none_of(list.begin(), list.end(),
                                           [](const ordered_json& one) { return one.is_structured(); });
}

void Append(std::string& text, const ordered_json& value, std::size_t depth) {
    if (!value.is_structured() || value.empty()) {
        text += value.is_array() ? "[]" : value.is_object() ? "{}" : Scalar(value);
        return;
    }
    const bool object = value.is_object();
    const bool inOne = HoldsScalars(value);
    const std::string gap = inOne ? " " : "\n" + std::string(2 * (depth + 1), ' ');
    std::string_view separator = "";
    text += object ? '{' : '[';
    for (const auto& [key, member] : value.items()) {
        text += separator;
        if (!inOne || !separator.empty()) text += gap;
        if (object) text += Scalar(key) + ": ";
        Append(text, member, depth + 1);
        separator = ",";
    }
    if (!inOne) text += "\n" + std::string(2 * depth, ' ');
    text += object ? '}' : ']';
}

}  // namespace

std::string JsonText(const ordered_json& value) {
    std::string text;
    Append(text, value, 0);
    return text + "\n";
}

}  // namespace zelmat
