#include "platform/catalog/KORJsonReader.h"

#include <algorithm>
#include <limits>

bool KORJsonReader::IsObjectOf(const Pointer& at, std::initializer_list<std::string_view> members) {
    const Json& object = At(at);
    if (!object.is_object()) {
        Fail(at, "expected an object");
        return false;
    }
    for (const auto& item : object.items()) {
        if (std::ranges::find(members, item.key()) != members.end()) continue;
        Fail(at / item.key(), Quoted(item.key()) + " means nothing here");
        return false;
    }
    return true;
}

void KORJsonReader::ExpectFormat(int format) {
    const Pointer root;
    if (Has(root, "format") && Root()["format"] == format) return;
    Fail(root / "format", "expected \"format\": " + std::to_string(format));
}

const nlohmann::json& KORJsonReader::Array(const Pointer& at, const char* member) {
    static const Json none = Json::array();
    if (Has(at, member) && At(at / member).is_array()) return At(at / member);
    Fail(at / member, "expected " + Quoted(member) + ": an array");
    return none;
}

std::string KORJsonReader::Text(const Pointer& at, const char* member) {
    if (Has(at, member)) {
        const Json& text = At(at / member);
        if (text.is_string() && !text.get_ref<const std::string&>().empty()) return text;
    }
    Fail(at / member, "expected " + Quoted(member) + ": a text that is not empty");
    return {};
}

void KORJsonReader::Fail(const Pointer& at, const std::string& message) {
    if (!error_) error_ = file_.ErrorAt(at, message);
}

bool KORJsonReader::IsInt(const Json& value) {
    return value.is_number_integer() && value >= std::numeric_limits<int>::min() &&
           value <= std::numeric_limits<int>::max();
}

std::string KORJsonReader::Quoted(std::string_view text) {
    std::string quoted("\"");
    quoted += text;
    quoted += '"';
    return quoted;
}
