#include "zelmat/cards/CardBlockReader.h"

#include <algorithm>
#include <map>

#include "zelmat/cards/CardTableReader.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// A setting's name, taken apart: "yield_onset.method" is the key `method` in the group `yield_onset`.
struct SettingPath {
    std::string group;  ///< empty when the key stands in the block itself
    std::string key;

    explicit SettingPath(const std::string& name) {
        const auto dot = name.find('.');
        if (dot != std::string::npos) group = name.substr(0, dot);
        key = dot == std::string::npos ? name : name.substr(dot + 1);
    }
};

}  // namespace

std::optional<CardData> CardBlockReader::Read() const {
    if (!node_.ExpectObject()) return std::nullopt;
    CardData data;
    data.block = &block_;
    data.line = node_.Line();

    bool good = ReportUnknownKeys();
    for (const CardSetting& setting : block_.settings) {
        if (!ReadSetting(setting, data.values)) good = false;
    }
    for (const CardTableKind& kind : block_.tables) {
        if (!ReadTable(kind, data)) good = false;
    }
    return good ? std::optional(std::move(data)) : std::nullopt;
}

bool CardBlockReader::ReportUnknownKeys() const {
    std::vector<std::string> known;
    std::map<std::string, std::vector<std::string>> groups;
    for (const CardTableKind& kind : block_.tables) {
        if (kind.name.empty()) {
            known = CardTableReader::Keys(kind);
        } else {
            known.push_back(kind.name);
        }
    }
    for (const CardSetting& setting : block_.settings) {
        const SettingPath path(setting.name);
        if (path.group.empty()) {
            known.push_back(path.key);
            continue;
        }
        if (groups[path.group].empty()) known.push_back(path.group);
        groups[path.group].push_back(path.key);
    }
    bool good = node_.ExpectKeys(known);
    for (const auto& [group, keys] : groups) {
        if (!node_.Has(group)) continue;
        const JsonNode inner = node_.At(group);
        if (!inner.ExpectObject() || !inner.ExpectKeys(keys)) good = false;
    }
    return good;
}

bool CardBlockReader::ReadSetting(const CardSetting& setting, CardValues& values) const {
    const SettingPath path(setting.name);
    if (!path.group.empty() && !node_.Has(path.group)) return true;
    const JsonNode holder = path.group.empty() ? node_ : node_.At(path.group);
    if (!holder.Has(path.key)) return !setting.required || holder.Required(path.key).has_value();
    if (setting.kind == SettingKind::UNREAD) return true;
    auto value = ReadValue(setting, holder.At(path.key));
    if (!value) return false;
    values.Set(setting.name, std::move(*value));
    return true;
}

std::optional<CardValue> CardBlockReader::ReadValue(const CardSetting& setting, const JsonNode& node) const {
    switch (setting.kind) {
        case SettingKind::FLAG:
            return node.Flag();
        case SettingKind::COUNT:
            return node.Whole(setting.least, setting.most);
        case SettingKind::NUMBER:
            return node.Number();
        case SettingKind::TEXT:
            return ReadText(setting, node);
        case SettingKind::UNREAD:
            break;
    }
    return std::nullopt;
}

std::optional<CardValue> CardBlockReader::ReadText(const CardSetting& setting, const JsonNode& node) const {
    const auto text = node.Text();
    if (!text || setting.choices.empty()) return text;
    if (std::find(setting.choices.begin(), setting.choices.end(), *text) != setting.choices.end())
        return text;
    const std::string key = SettingPath(setting.name).key;
    node.Report("unknown-" + key, "there is no " + key + " " + Quoted(*text),
                {"expected one of: " + WordList(setting.choices)});
    return std::nullopt;
}

bool CardBlockReader::ReadTable(const CardTableKind& kind, CardData& data) const {
    if (!kind.name.empty() && !node_.Has(kind.name)) {
        return !kind.required || node_.Required(kind.name).has_value();
    }
    const JsonNode node = kind.name.empty() ? node_ : node_.At(kind.name);
    auto table = CardTableReader(node, kind, data.values).Read();
    if (table) data.tables.push_back(std::move(*table));
    return data.Table(&kind) != nullptr;
}

}  // namespace zelmat
