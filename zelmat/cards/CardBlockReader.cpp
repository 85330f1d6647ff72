#include "zelmat/cards/CardBlockReader.h"

#include <algorithm>
#include <map>

#include "zelmat/cards/CardTableReader.h"
#include "zelmat/cards/CommentKey.h"
#include "zelmat/cards/PropertyNames.h"
#include "zelmat/materials/HyperelasticForms.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/Measured.h"
#include "zelmat/text/NearestName.h"
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

std::optional<Block> CardBlockReader::Read() const {
    Block block{.kind = &kind_};
    block.origin = Origin([file = file_, node = node_](std::size_t) { return node.Line(); });
    if (kind_.IsUnread()) {
        block.kept.push_back({kind_.name, node_.Json().dump()});
        return block;
    }
    if (!node_.ExpectObject()) return std::nullopt;
    bool good = KeepUnknownKeys(block);
    for (const Setting& setting : kind_.settings) {
        if (!ReadSetting(setting, block)) good = false;
    }
    if (kind_.alternatives && !FindOrder(block)) good = false;
    for (const TableKind& kind : kind_.tables) {
        if (!ReadTable(kind, block)) good = false;
    }
    return good ? std::optional(std::move(block)) : std::nullopt;
}

/// False when what has to be a group of keys is none.
bool CardBlockReader::KeepUnknownKeys(Block& block) const {
    std::vector<std::string> known;
    std::map<std::string, std::vector<std::string>> groups;
    for (const TableKind& kind : kind_.tables) {
        if (kind.name.empty()) {
            known = CardTableReader::Keys(kind);
        } else {
            known.push_back(kind.name);
            if (!kind.list) groups[kind.name] = CardTableReader::Keys(kind);
        }
    }
    for (const Setting& setting : kind_.settings) {
        const SettingPath path(setting.name);
        if (path.group.empty()) {
            known.push_back(path.key);
            continue;
        }
        if (groups[path.group].empty()) known.push_back(path.group);
        groups[path.group].push_back(path.key);
    }
    KeepUnknownKeys(node_, known, "", block);
    bool good = true;
    for (const auto& [group, keys] : groups) {
        if (!node_.Has(group)) continue;
        const JsonNode inner = node_.At(group);
        if (inner.Json().is_object()) {
            KeepUnknownKeys(inner, keys, group + ".", block);
        } else if (!kind_.FindTable(group)) {
            good = inner.ExpectObject();
        }
    }
    return good;
}

void CardBlockReader::KeepUnknownKeys(const JsonNode& node, const std::vector<std::string>& known,
                                      const std::string& group, Block& block) const {
    for (const std::string& key : node.Keys()) {
        if (IsComment(key) || std::find(known.begin(), known.end(), key) != known.end()) continue;
        const JsonNode value = node.At(key);
        block.kept.push_back({group + key, value.Json().dump()});
        const std::string nearest = NearestName(key, known);
        value.Report(FindingKind::WARNING, "unknown-key", node.Path() + " has no key " + Quoted(key),
                     {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?",
                      "it is kept, and no behavior uses it"});
    }
}

bool CardBlockReader::ReadSetting(const Setting& setting, Block& block) const {
    const SettingPath path(setting.name);
    if (!path.group.empty() && !node_.Has(path.group)) return true;
    const JsonNode holder = path.group.empty() ? node_ : node_.At(path.group);
    if (!holder.Has(path.key)) return !setting.required || holder.Required(path.key).has_value();
    if (setting.kind == SettingKind::UNREAD) {
        block.kept.push_back({setting.name, holder.At(path.key).Json().dump()});
        return true;
    }
    auto value = ReadValue(setting, holder.At(path.key), block);
    if (!value) return false;
    block.values.Set(setting.name, std::move(*value));
    return true;
}

std::optional<Value> CardBlockReader::ReadValue(const Setting& setting, const JsonNode& node,
                                                Block& block) const {
    switch (setting.kind) {
        case SettingKind::FLAG:
            return node.Flag();
        case SettingKind::COUNT:
            return node.Whole(setting.least, setting.most);
        case SettingKind::NUMBER:
            return ReadNumber(setting, node, block);
        case SettingKind::TEXT:
            return ReadText(setting, node);
        case SettingKind::UNREAD:
            break;
    }
    return std::nullopt;
}

/// A number, in the card's units, or a text with a unit: "20 degC".
std::optional<double> CardBlockReader::ReadNumber(const Setting& setting, const JsonNode& node,
                                                  Block& block) const {
    const Quantity* quantity = QuantityOf(setting.name, setting.unit);
    const bool text = node.Json().is_string() && setting.unit != "-";
    if (!quantity || !(text || node.Json().is_number())) return node.Number();
    const auto measured =
        text ? ReadMeasured(node.Json().get_ref<const std::string&>(), *quantity)
             : QuantityResult<Measured>(Measured{node.Json().get<double>(), units_.For(*quantity)});
    const auto stored = measured ? measured->Stored(*quantity) : QuantityResult<double>(measured.Error());
    if (!stored) {
        node.Report("wrong-value", node.Path() + ": " + stored.Error().text);
        return std::nullopt;
    }
    if (measured->unit.Spelling() != setting.unit) {
        block.written[setting.name] = {measured->number, measured->unit.Spelling()};
    }
    return *stored;
}

std::optional<Value> CardBlockReader::ReadText(const Setting& setting, const JsonNode& node) const {
    const auto text = node.Text();
    if (!text || setting.choices.empty()) return text;
    if (std::find(setting.choices.begin(), setting.choices.end(), *text) != setting.choices.end())
        return text;
    const std::string key = SettingPath(setting.name).key;
    node.Report("unknown-" + key, "there is no " + key + " " + Quoted(*text),
                {"expected one of: " + WordList(setting.choices)});
    return std::nullopt;
}

bool CardBlockReader::FindOrder(Block& block) const {
    const Setting &potential = kind_.settings[0], &order = kind_.settings[1];
    if (node_.Has(order.name)) return true;
    const auto model = block.values.Get<std::string>(potential.name);
    if (!model && node_.Has(potential.name)) return true;  // it is none, which was told
    if (!model) return node_.Required(order.name).has_value();
    std::vector<std::string> columns;
    if (node_.Has("columns") && node_.At("columns").Json().is_array()) {
        for (const auto& column : node_.At("columns").Json()) {
            if (column.is_string())
                columns.push_back(ReadColumnHeader(column.get_ref<const std::string&>()).name);
        }
    }
    const auto told = OrderOfColumns(*model, columns, order.most);
    if (!told) return node_.Required(order.name).has_value();
    block.values.Set(order.name, *told);
    return true;
}

bool CardBlockReader::ReadTable(const TableKind& kind, Block& block) const {
    if (!kind.name.empty() && !node_.Has(kind.name)) {
        return !kind.required || node_.Required(kind.name).has_value();
    }
    const JsonNode node = kind.name.empty() ? node_ : node_.At(kind.name);
    auto table = CardTableReader(node, kind, block.values, units_, file_).Read();
    if (table) block.tables.push_back(std::move(*table));
    return block.Find(&kind) != nullptr;
}

}  // namespace zelmat
