#include "platform/catalog/KORJsonReader.h"

#include <algorithm>
#include <limits>

const nlohmann::json* KORJsonReader::Find(const Json& object, const char* member) {
    const auto found = object.find(member);
    return found != object.end() ? &*found : nullptr;
}

const nlohmann::json& KORJsonReader::PlaceOf(const Json& object, const char* member) {
    const Json* found = Find(object, member);
    return found ? *found : object;
}

bool KORJsonReader::IsObjectOf(const Json& value, std::initializer_list<std::string_view> members) {
    if (!value.is_object()) {
        Fail(value, "expected an object");
        return false;
    }
    for (const auto& item : value.items()) {
        if (std::ranges::find(members, item.key()) != members.end()) continue;
        Fail(item.value(), Quoted(item.key()) + " means nothing here");
        return false;
    }
    return true;
}

void KORJsonReader::ExpectFormat(int format) {
    const Json* found = Find(Root(), "format");
    if (found && *found == format) return;
    Fail(PlaceOf(Root(), "format"), "expected \"format\": " + std::to_string(format));
}

const nlohmann::json& KORJsonReader::Array(const Json& object, const char* member) {
    static const Json none = Json::array();
    const Json* found = Find(object, member);
    if (found && found->is_array()) return *found;
    Fail(PlaceOf(object, member), "expected " + Quoted(member) + ": an array");
    return none;
}

std::string KORJsonReader::Text(const Json& object, const char* member) {
    const Json* found = Find(object, member);
    if (found && found->is_string() && !found->get_ref<const std::string&>().empty()) return *found;
    Fail(PlaceOf(object, member), "expected " + Quoted(member) + ": a text that is not empty");
    return {};
}

void KORJsonReader::Fail(const Json& at, const std::string& message) {
    if (!error_) error_ = file_.ErrorAt(at, message);
}

bool KORJsonReader::IsInt(const Json& value) {
    return value.is_number_integer() && value >= std::numeric_limits<int>::min() &&
           value <= std::numeric_limits<int>::max();
}

std::string KORJsonReader::Shown(const Json& value) {
    if (value.is_string()) return Quoted(value.get_ref<const std::string&>());
    return value.is_structured() ? value.type_name() : value.dump();
}
