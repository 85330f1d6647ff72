#include "zelmat/materials/ExtraText.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "zelmat/materials/WrittenNumbers.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

std::string TextOf(const ordered_json& json) {
    return json.empty() ? std::string() : json.dump();
}

ordered_json Parsed(const std::string& text) {
    return ordered_json::parse(text, nullptr, false);
}

std::optional<WrittenNumber> WrittenOf(const ordered_json& json) {
    if (!json.is_object()) return std::nullopt;
    const auto number = json.find("number");
    const auto unit = json.find("unit");
    if (number == json.end() || unit == json.end() || !number->is_number() || !unit->is_string()) {
        return std::nullopt;
    }
    return WrittenNumber{number->get<double>(), unit->get<std::string>()};
}

/// Nothing when it is of another kind than the setting's.
std::optional<Value> ValueOf(const ordered_json& json, SettingKind kind) {
    switch (kind) {
        case SettingKind::FLAG:
            return json.is_boolean() ? std::optional<Value>(json.get<bool>()) : std::nullopt;
        case SettingKind::COUNT:
            return json.is_number_integer() ? std::optional<Value>(json.get<int>()) : std::nullopt;
        case SettingKind::NUMBER:
            return json.is_number() ? std::optional<Value>(json.get<double>()) : std::nullopt;
        case SettingKind::TEXT:
            return json.is_string() ? std::optional<Value>(json.get<std::string>()) : std::nullopt;
        case SettingKind::UNREAD:
            break;
    }
    return std::nullopt;
}

}  // namespace

std::string TextOfTexts(const std::vector<std::string>& texts) {
    return TextOf(ordered_json(texts));
}

std::vector<std::string> TextsOfText(const std::string& json) {
    std::vector<std::string> texts;
    const ordered_json list = Parsed(json);
    if (!list.is_array()) return texts;
    for (const ordered_json& text : list) {
        if (text.is_string()) texts.push_back(text.get<std::string>());
    }
    return texts;
}

std::string TextOfKept(const std::vector<KeptValue>& kept) {
    ordered_json json = ordered_json::object();
    for (const KeptValue& value : kept) json[value.name] = ordered_json::parse(value.json);
    return TextOf(json);
}

std::vector<KeptValue> KeptOfText(const std::string& json) {
    std::vector<KeptValue> kept;
    const ordered_json object = Parsed(json);
    if (!object.is_object()) return kept;
    for (const auto& [name, value] : object.items()) kept.push_back({name, value.dump()});
    return kept;
}

std::string TextOfValues(const Values& values, const std::map<std::string, WrittenNumber>& written,
                         const std::vector<std::string>& names) {
    ordered_json json = ordered_json::object();
    for (const std::string& name : names) {
        const Value* value = values.Find(name);
        if (!value) continue;
        if (const auto as = written.find(name); as != written.end()) {
            json[name] = {{"number", as->second.number}, {"unit", as->second.unit}};
        } else {
            std::visit([&](const auto& held) { json[name] = held; }, *value);
        }
    }
    return TextOf(json);
}

void ValuesOfText(const std::string& json, const BlockKind& kind, Values& values,
                  std::map<std::string, WrittenNumber>& written) {
    const ordered_json object = Parsed(json);
    if (!object.is_object()) return;
    for (const Setting& setting : kind.settings) {
        const auto found = object.find(setting.name);
        if (found == object.end()) continue;
        if (auto as = WrittenOf(*found)) {
            const auto number = StoredNumber(setting, *as);
            if (!number) continue;
            values.Set(setting.name, *number);
            written[setting.name] = std::move(*as);
        } else if (auto value = ValueOf(*found, setting.kind)) {
            values.Set(setting.name, std::move(*value));
        }
    }
}

}  // namespace zelmat
