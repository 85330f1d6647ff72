#include "zelmat/cards/CardEdit.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>
#include <utility>

#include "zelmat/cards/CardJson.h"
#include "zelmat/cards/CardKey.h"
#include "zelmat/cards/GivenTable.h"
#include "zelmat/cards/JsonCardReader.h"
#include "zelmat/cards/PropertyNames.h"
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

/// "[1, 2.5]", "1, 2.5", "1 2.5"; nothing when one of them is no number.
QuantityResult<std::vector<double>> ReadNumbers(std::string text) {
    if (text.starts_with('[') && text.ends_with(']')) text = text.substr(1, text.size() - 2);
    std::ranges::replace(text, ',', ' ');
    std::istringstream words(text);
    std::vector<double> numbers;
    for (std::string word; words >> word;) {
        const auto number = ReadNumber(word);
        if (!number) return number.Error();
        numbers.push_back(*number);
    }
    return numbers;
}

bool IsTableFile(const std::string& value) {
    std::string ending = value.size() < 4 ? "" : value.substr(value.size() - 4);
    std::ranges::transform(ending, ending.begin(), [](unsigned char c) { return std::tolower(c); });
    return ending == ".csv";
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

/// Where "ply.E1" stands: `E1` in the group `ply`, or, where there is no such group, under its whole name.
std::pair<Json*, std::string> GroupOf(Json& block, std::string name) {
    Json* group = &block;
    for (auto dot = name.find('.'); dot != std::string::npos; dot = name.find('.')) {
        const auto inner = group->find(name.substr(0, dot));
        if (inner == group->end() || !inner->is_object()) break;
        group = &*inner;
        name.erase(0, dot + 1);
    }
    return {group, name};
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
    const std::string given = change.substr(0, equals);
    const std::string key = CardKey(given);
    const std::string value = change.substr(equals + 1);
    if (!keys_.insert(key).second) {
        return Refuse(findings, "given-twice", Quoted(given) + " is given twice",
                      given == key ? std::vector<std::string>() : std::vector{"it means " + key});
    }
    const auto dot = key.find('.');
    if (const BlockKind* kind = FindBlockKind(key.substr(0, dot))) {
        const std::string member = dot == std::string::npos ? "" : key.substr(dot + 1);
        const Json before = card_;
        const bool good = kind->IsUnread() ? SetUnread(*kind, member, value, findings)
                                           : SetInBlock(*kind, member, value, findings);
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
    if (key == "name") {
        return Refuse(findings, "unknown-key", "the name is no value of a material",
                      {"zelmat rename gives it another"});
    }
    std::vector<std::string> known(kTexts.begin(), kTexts.end());
    known.insert(known.end(), kFlags.begin(), kFlags.end());
    for (const BlockKind& kind : BlockKinds()) known.push_back(kind.name);
    const std::string nearest = NearestName(key.substr(0, key.find('.')), known);
    return Refuse(findings, "unknown-key", "there is no key " + Quoted(key),
                  {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"});
}

bool CardEdit::SetUnread(const BlockKind& kind, const std::string& member, const std::string& value,
                         Findings& findings) {
    if (member.empty()) {
        return Refuse(findings, "unknown-key", kind.name + " is no single value",
                      {"name one of its values: " + kind.name + ".E1=\"181 GPa\""});
    }
    Json& block = Make(kind);
    if (!block.is_object()) return Refuse(findings, "wrong-type", kind.name + " holds no values with names");
    const auto [group, name] = GroupOf(block, member);
    if (value.empty()) {
        group->erase(name);
        if (block.empty()) card_.erase(kind.name);
        return true;
    }
    const auto number = ReadNumber(value);
    (*group)[name] = number ? Json(*number) : Json(value);
    return true;
}

bool CardEdit::SetInBlock(const BlockKind& kind, const std::string& member, const std::string& value,
                          Findings& findings) {
    if (member == "enabled") return Switch(kind, value, findings);
    for (const Setting& setting : kind.settings) {
        if (setting.name == member) return SetSetting(kind, setting, value, findings);
    }
    for (const TableKind& table : kind.tables) {
        const auto columns = ColumnsOf(kind, table);
        if (table.list) {
            if (member == table.name) return SetList(kind, table, value, findings);
            continue;
        }
        if (member == (table.name.empty() ? "source" : table.name + ".source")) {
            return SetSource(kind, table, value, findings);
        }
        if (table.name == member && IsTableFile(value)) return SetTable(kind, table, value, findings);
        if (member.empty() && IsOneNumber(table, columns)) {
            return SetNumber(kind, table, columns.front().name, value, findings);
        }
        for (const ColumnKind& column : columns) {
            if (member == (table.name.empty() ? column.name : table.name + "." + column.name)) {
                return SetNumber(kind, table, column.name, value, findings);
            }
        }
    }
    return RefuseMember(kind, member, findings);
}

bool CardEdit::RefuseMember(const BlockKind& kind, const std::string& member, Findings& findings) const {
    const auto known = KeysOf(kind);
    const auto table = std::find_if(kind.tables.begin(), kind.tables.end(),
                                    [&](const TableKind& each) { return each.name == member && !each.list; });
    if (table != kind.tables.end()) {
        return Refuse(findings, "unknown-key", kind.TableName(*table) + " is no single value",
                      {"a whole table is a file: " + kind.TableName(*table) + "=FILE.csv",
                       "known: " + WordList(known)});
    }
    if (member.empty()) {
        return Refuse(findings, "unknown-key", kind.name + " is no single value",
                      {"known: " + WordList(known)});
    }
    const std::string nearest = NearestName(member, known);
    return Refuse(findings, "unknown-key", kind.name + " has no " + Quoted(member) + " to set",
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

bool CardEdit::SetList(const BlockKind& kind, const TableKind& table, const std::string& value,
                       Findings& findings) {
    const auto numbers = ReadNumbers(value);
    if (!numbers) return Refuse(findings, "wrong-value", kind.TableName(table) + ": " + numbers.Error().text);
    Make(kind)[table.name] = *numbers;
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
    const auto given = ReadGivenTable(path, ColumnsOf(kind, table, true), how_, findings);
    if (!given) return false;
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
        if (table.list) continue;
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
