#include "zelmat/cards/CardEdit.h"

#include <algorithm>
#include <array>
#include <utility>

#include "zelmat/cards/CardJson.h"
#include "zelmat/cards/JsonCardReader.h"
#include "zelmat/cards/PropertyNames.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/Measured.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<const char*, 4> kTexts = {"description", "class", "source", "notes"};
constexpr std::array<const char*, 2> kFlags = {"illustrative", "heat_generation"};

std::optional<bool> FlagOf(const std::string& value) {
    if (value == "on" || value == "yes" || value == "true") return true;
    if (value == "off" || value == "no" || value == "false") return false;
    return std::nullopt;
}

/// A number with its unit where one is due, in the unit in which it was written; "-" for a pure one.
struct GivenNumber {
    double number = 0.0;
    std::string unit;
};

QuantityResult<GivenNumber> ReadGiven(const std::string& name, const std::string& storedUnit,
                                      const std::string& text) {
    const Quantity* quantity = QuantityOf(name, storedUnit);
    if (!quantity) {
        const auto number = ReadNumber(text);
        if (!number) return number.Error();
        return GivenNumber{*number, "-"};
    }
    const auto measured = ReadMeasured(text, *quantity);
    if (!measured) return measured.Error();
    if (const auto stored = measured->Stored(*quantity); !stored) return stored.Error();
    return GivenNumber{measured->number, measured->unit.Spelling()};
}

/// The only table of a card that has columns and rows, wherever it stands; null when there is not one alone.
const nlohmann::json* OnlyTable(const nlohmann::json& tree) {
    if (tree.is_object() && tree.contains("columns") && tree.contains("rows")) return &tree;
    const nlohmann::json* found = nullptr;
    if (!tree.is_structured()) return nullptr;
    for (const nlohmann::json& inner : tree) {
        const nlohmann::json* table = OnlyTable(inner);
        if (table && found) return nullptr;
        if (table) found = table;
    }
    return found;
}

bool IsColumnOf(const Json& header, const std::string& column) {
    const std::string name = ReadColumnHeader(header.get<std::string>()).name;
    return name == column || PropertyName(name) == column;
}

/// A table with one column, whatever its temperatures.
bool IsOneNumber(const TableKind& table, const std::vector<ColumnKind>& columns) {
    const auto data = std::count_if(columns.begin(), columns.end(), [](const ColumnKind& column) {
        return column.name != TemperatureColumn().name;
    });
    return table.name.empty() && data == 1;
}

Json& TableIn(Json& block, const TableKind& table) {
    return table.name.empty() ? block : block[table.name];
}

}  // namespace

CardEdit::CardEdit(const Material& material, std::string place, CardReading how)
    : place_(std::move(place)), how_(how), card_(CardJson(material)) {}

bool CardEdit::Set(const std::string& change, Findings& findings) {
    const auto equals = change.find('=');
    if (equals == std::string::npos || equals == 0) {
        return Refuse(findings, "no-change", Quoted(change) + " is no change",
                      {"expected KEY=VALUE: density=\"7.85 g/cm^3\""});
    }
    const std::string key = change.substr(0, equals);
    const std::string value = change.substr(equals + 1);
    if (!keys_.insert(key).second) {
        return Refuse(findings, "given-twice", Quoted(key) + " is given twice");
    }
    const auto dot = key.find('.');
    if (const BlockKind* kind = FindBlockKind(key.substr(0, dot)); kind && !kind->IsUnread()) {
        const Json before = card_;
        const bool good =
            SetInBlock(*kind, dot == std::string::npos ? "" : key.substr(dot + 1), value, findings);
        if (!good) card_ = before;
        return good;
    }
    return SetHead(key, value, findings);
}

bool CardEdit::SetHead(const std::string& key, const std::string& value, Findings& findings) {
    if (std::find(kTexts.begin(), kTexts.end(), key) != kTexts.end()) {
        if (value.empty()) {
            card_.erase(key);
        } else {
            card_[key] = value;
        }
        return true;
    }
    if (std::find(kFlags.begin(), kFlags.end(), key) != kFlags.end()) {
        const auto flag = FlagOf(value);
        if (!flag) return Refuse(findings, "wrong-value", key + " is on or off, not " + Quoted(value));
        card_[key] = *flag;
        return true;
    }
    std::vector<std::string> known(kTexts.begin(), kTexts.end());
    known.insert(known.end(), kFlags.begin(), kFlags.end());
    for (const BlockKind& kind : BlockKinds()) {
        if (!kind.IsUnread()) known.push_back(kind.name);
    }
    const std::string nearest = NearestName(key.substr(0, key.find('.')), known);
    return Refuse(findings, "unknown-key", "there is no key " + Quoted(key),
                  {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"});
}

bool CardEdit::SetInBlock(const BlockKind& kind, const std::string& member, const std::string& value,
                          Findings& findings) {
    if (member == "enabled") return Switch(kind, value, findings);
    for (const Setting& setting : kind.settings) {
        if (setting.name == member) return SetSetting(kind, setting, value, findings);
    }
    for (const TableKind& table : kind.tables) {
        const auto columns = ColumnsOf(kind, table);
        if (member == (table.name.empty() ? "source" : table.name + ".source")) {
            return SetSource(kind, table, value, findings);
        }
        if (table.name == member && value.ends_with(".csv")) return SetTable(kind, table, value, findings);
        if (member.empty() && IsOneNumber(table, columns)) {
            return SetNumber(kind, table, columns.front().name, value, findings);
        }
        for (const ColumnKind& column : columns) {
            if (member == (table.name.empty() ? column.name : table.name + "." + column.name)) {
                return SetNumber(kind, table, column.name, value, findings);
            }
        }
    }
    const auto known = KeysOf(kind);
    const std::string nearest = NearestName(member, known);
    return Refuse(findings, "unknown-key",
                  member.empty() ? kind.name + " is no single value"
                                 : kind.name + " has no " + Quoted(member) + " to set",
                  {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"});
}

bool CardEdit::SetSetting(const BlockKind& kind, const Setting& setting, const std::string& value,
                          Findings& findings) {
    Json written = value;
    if (setting.kind == SettingKind::FLAG) {
        const auto flag = FlagOf(value);
        if (!flag)
            return Refuse(findings, "wrong-value", setting.name + " is on or off, not " + Quoted(value));
        written = *flag;
    } else if (setting.kind == SettingKind::COUNT || setting.kind == SettingKind::UNREAD) {
        written = Json::parse(value, nullptr, false);
        if (written.is_discarded()) written = value;
    } else if (setting.kind == SettingKind::NUMBER) {
        const auto given = ReadGiven(setting.name, setting.unit, value);
        if (!given) {
            return Refuse(findings, "wrong-value",
                          kind.name + "." + setting.name + ": " + given.Error().text);
        }
        written = given->unit == "-" ? Json(given->number) : Json(value);
    }
    const auto dot = setting.name.find('.');
    Json& block = Make(kind);
    if (dot == std::string::npos) {
        block[setting.name] = std::move(written);
    } else {
        block[setting.name.substr(0, dot)][setting.name.substr(dot + 1)] = std::move(written);
    }
    return true;
}

bool CardEdit::SetNumber(const BlockKind& kind, const TableKind& table, const std::string& column,
                         const std::string& value, Findings& findings) {
    const std::string key = kind.TableName(table) + "." + column;
    const auto columns = ColumnsOf(kind, table);
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const ColumnKind& each) { return each.name == column; });
    const auto given = ReadGiven(column, found->unit, value);
    if (!given) return Refuse(findings, "wrong-value", key + ": " + given.Error().text);
    Json& json = TableIn(Make(kind), table);
    if (table.flagged && !json.contains("temperature_dependent")) json["temperature_dependent"] = false;
    if (!json.contains("rows")) json["rows"] = Json::array({Json::array()});
    if (!json.contains("columns")) json["columns"] = Json::array();
    if (json["rows"].size() != 1) {
        return Refuse(findings, "several-rows",
                      kind.TableName(table) + " has " + std::to_string(json["rows"].size()) +
                          " rows: one number does not say which",
                      {"give the whole table: " + kind.TableName(table) + "=FILE.csv"});
    }
    Json& headers = json["columns"];
    const auto at = std::find_if(headers.begin(), headers.end(),
                                 [&](const Json& header) { return IsColumnOf(header, column); });
    const std::string header = given->unit == "-" ? column : column + " [" + given->unit + "]";
    if (at == headers.end()) {
        headers.push_back(header);
        json["rows"][0].push_back(given->number);
    } else {
        *at = header;
        json["rows"][0][static_cast<std::size_t>(at - headers.begin())] = given->number;
    }
    given_.try_emplace({&kind, &table}, false);
    return true;
}

bool CardEdit::SetSource(const BlockKind& kind, const TableKind& table, const std::string& value,
                         Findings& findings) {
    if (!Find(kind, table)) {
        return Refuse(findings, "no-table",
                      kind.TableName(table) + " has no numbers that a source could tell of");
    }
    Json& json = TableIn(Make(kind), table);
    json.erase("source");
    if (!value.empty()) json["source"] = value;
    given_[{&kind, &table}] = true;
    return true;
}

bool CardEdit::SetTable(const BlockKind& kind, const TableKind& table, const std::string& path,
                        Findings& findings) {
    auto text = ReadText(path, findings);
    if (!text) return false;
    const auto tree = ReadCardTree(std::move(*text), path, findings, how_);
    if (!tree) return false;
    const nlohmann::json* given = OnlyTable(tree->Root());
    if (!given) {
        findings.Add(
            {FindingKind::ERROR, {path, 0}, "no-table", "expected one table with a header line", {}});
        return false;
    }
    for (const nlohmann::json& header : given->at("columns")) {
        const ColumnHeader read = ReadColumnHeader(header.get<std::string>());
        for (const ColumnKind& column : ColumnsOf(kind, table, true)) {
            const bool same = read.name == column.name || PropertyName(read.name) == column.name;
            if (!same || read.hasUnit || column.unit.empty() || column.unit == "-") continue;
            findings.Add({FindingKind::ERROR,
                          {path, 0},
                          "no-unit",
                          "the column " + Quoted(read.name) + " has no unit",
                          {"as in " + column.name + " [" + column.unit + "]"}});
            return false;
        }
    }
    Json& json = TableIn(Make(kind), table);
    for (const char* key : {"columns", "rows", "temperature_dependent"}) {
        json.erase(key);
        if (given->contains(key)) json[key] = given->at(key);
    }
    given_.try_emplace({&kind, &table}, false);
    return true;
}

bool CardEdit::Switch(const BlockKind& kind, const std::string& value, Findings& findings) {
    const auto on = FlagOf(value);
    if (!on)
        return Refuse(findings, "wrong-value", kind.name + ".enabled is on or off, not " + Quoted(value));
    if (!kind.write)
        return Refuse(findings, "wrong-value", kind.name + " is no behavior to be switched on or off");
    switched_[&kind] = *on;
    return true;
}

const Json* CardEdit::Find(const BlockKind& kind) const {
    const auto found = card_.find(kind.name);
    if (found == card_.end()) return nullptr;
    return kind.alternatives ? &found->front() : &*found;
}

const Json* CardEdit::Find(const BlockKind& kind, const TableKind& table) const {
    const Json* block = Find(kind);
    if (!block || table.name.empty()) return block;
    const auto found = block->find(table.name);
    return found == block->end() || !found->is_object() ? nullptr : &*found;
}

Json& CardEdit::Make(const BlockKind& kind) {
    Json& block = card_[kind.name];
    if (!kind.alternatives) {
        if (block.is_null()) block = Json::object();
        return block;
    }
    if (block.is_null()) block = Json::array({Json::object()});
    return block.front();
}

std::vector<ColumnKind> CardEdit::ColumnsOf(const BlockKind& kind, const TableKind& table,
                                            bool withTemperature) const {
    Values values;
    bool temperature = false;
    if (const Json* block = Find(kind)) {
        for (const Setting& setting : kind.settings) {
            const auto found = block->find(setting.name);
            if (found == block->end()) continue;
            if (found->is_string()) values.Set(setting.name, found->get<std::string>());
            if (found->is_number_integer()) values.Set(setting.name, found->get<int>());
        }
        const Json* own = Find(kind, table);
        temperature = own && own->value("temperature_dependent", false);
    }
    const auto form = table.form(values);
    return form && !table.list ? form->ColumnsOf(temperature || withTemperature) : std::vector<ColumnKind>();
}

std::vector<std::string> CardEdit::KeysOf(const BlockKind& kind) const {
    std::vector<std::string> keys;
    for (const TableKind& table : kind.tables) {
        if (!table.name.empty()) keys.push_back(table.name);
        for (const ColumnKind& column : ColumnsOf(kind, table)) {
            keys.push_back(table.name.empty() ? column.name : table.name + "." + column.name);
        }
        keys.push_back(table.name.empty() ? "source" : table.name + ".source");
    }
    for (const Setting& setting : kind.settings) keys.push_back(setting.name);
    if (kind.write) keys.emplace_back("enabled");
    return keys;
}

bool CardEdit::Refuse(Findings& findings, const char* code, std::string text,
                      std::vector<std::string> details) const {
    findings.Add({FindingKind::USAGE, {place_, 0}, code, std::move(text), std::move(details)});
    return false;
}

std::vector<std::string> CardEdit::TablesOfOldSource() const {
    std::vector<std::string> names;
    for (const BlockKind& kind : BlockKinds()) {
        for (const TableKind& table : kind.tables) {
            const auto given = given_.find({&kind, &table});
            const Json* json = given == given_.end() || given->second ? nullptr : Find(kind, table);
            if (json && json->contains("source")) names.push_back(kind.TableName(table));
        }
    }
    return names;
}

std::optional<Material> CardEdit::Read(Findings& findings) const {
    const auto tree = std::make_shared<const PlacedJson>(place_, nlohmann::json(card_), PlacedJson::Lines());
    Findings own;
    auto materials = JsonCardReader(tree, own).Read();
    // What the program does not know was told when the card was added.
    for (const Finding& finding : own.All()) {
        if (finding.kind != FindingKind::WARNING) findings.Add(finding);
    }
    if (materials.empty()) return std::nullopt;
    return std::move(materials.front());
}

}  // namespace zelmat
