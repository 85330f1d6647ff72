#include "zelmat/cards/CardSchema.h"

#include <algorithm>
#include <string>

#include "zelmat/cards/CardUnits.h"
#include "zelmat/cards/JsonCardReader.h"
#include "zelmat/cards/PropertyNames.h"
#include "zelmat/cards/TableByColumns.h"
#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/HyperelasticForms.h"
#include "zelmat/materials/Values.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

ordered_json Reference(const std::string& definition) {
    return {{"$ref", "#/$defs/" + definition}};
}

ordered_json Described(ordered_json schema, const std::string& description) {
    schema["description"] = description;
    return schema;
}

std::string TitleWithUnit(const std::string& title, const std::string& unit) {
    return unit.empty() || unit == "-" ? title : title + " [" + unit + "]";
}

/// The kinds of values that stand in many places.
ordered_json SharedDefinitions() {
    return {{"text_or_texts",
             {{"type", ordered_json::array({"string", "array"})}, {"items", {{"type", "string"}}}}},
            {"rows",
             {{"type", "array"},
              {"minItems", 1},
              {"items", {{"type", "array"}, {"minItems", 1}, {"items", {{"type", "number"}}}}}}},
            {"number_with_unit",
             {{"description", "A number in the card's units, or a text with its unit: \"20 degC\"."},
              {"type", ordered_json::array({"number", "string"})},
              {"pattern", "[0-9]"}}}};
}

ordered_json UnitsSchema() {
    ordered_json names = ordered_json::object();
    for (const std::string& name : CardUnits::QuantityNames()) names[name] = {{"type", "string"}};
    return {{"description", "Units of the card's numbers, by quantity; SI for what is not named."},
            {"type", "object"},
            {"properties", std::move(names)},
            {"patternProperties", {{"^//", true}}},
            {"additionalProperties", false}};
}

/// The header of a column under any of its names, with or without its unit.
ordered_json HeaderSchema(const ColumnKind& column) {
    return {{"description", TitleWithUnit(column.title, column.unit)},
            {"pattern", "^ *(" + SpellingsPattern(column.name) + ") *(\\[[^\\]]*\\] *)?$"}};
}

/// The columns of a table of this form: all that are needed, and no others.
ordered_json ColumnsSchema(const TableForm& form, bool temperatureDependent) {
    ordered_json needed = ordered_json::array();
    ordered_json known = ordered_json::array();
    for (const ColumnKind& column : form.ColumnsOf(temperatureDependent)) {
        known.push_back(HeaderSchema(column));
        if (!column.whenAbsent) needed.push_back({{"contains", {{"pattern", known.back()["pattern"]}}}});
    }
    return {{"items", {{"type", "string"}, {"anyOf", std::move(known)}}}, {"allOf", std::move(needed)}};
}

ordered_json IfThen(const std::string& key, const ordered_json& value, ordered_json then) {
    return {{"if", {{"properties", {{key, {{"const", value}}}}}, {"required", {key}}}},
            {"then", std::move(then)}};
}

/// What holds of a table of one form, whether it depends on temperature or not.
ordered_json FormSchema(const TableKind& kind, const TableForm& form) {
    const auto columns = [&](bool temperatureDependent) -> ordered_json {
        return {{"properties", {{"columns", ColumnsSchema(form, temperatureDependent)}}}};
    };
    ordered_json schema = ordered_json::object();
    if (form.singleRow) schema["properties"]["rows"]["maxItems"] = 1;
    if (!kind.flagged || form.temperature != TemperatureRule::AS_FLAGGED) {
        schema["properties"]["columns"] = ColumnsSchema(form, false);
        return schema;
    }
    schema["allOf"] = {IfThen("temperature_dependent", true, columns(true)),
                       IfThen("temperature_dependent", false, columns(false))};
    return schema;
}

/// Coefficients by their potential alone: those of the highest order have the names of all.
ordered_json CoefficientsSchema(const std::string& model, int highestOrder) {
    TableForm form = *HyperelasticForm(model, highestOrder);
    for (ColumnKind& column : form.columns) column.whenAbsent = 0.0;
    form.temperature = TemperatureRule::ALWAYS;
    ordered_json columns = ColumnsSchema(form, true);
    columns.erase("allOf");
    return {{"properties", {{"columns", std::move(columns)}}}};
}

/// A table whose form the block's first setting decides.
ordered_json ChosenForms(const BlockKind& block, const TableKind& kind) {
    const Setting& choice = block.settings.front();
    ordered_json forms = ordered_json::array();
    for (const std::string& word : choice.choices) {
        Values values;
        values.Set(choice.name, word);
        const auto form = kind.form(values);
        forms.push_back(
            IfThen(choice.name, word,
                   form ? FormSchema(kind, *form) : CoefficientsSchema(word, block.settings[1].most)));
    }
    return {{"allOf", std::move(forms)}};
}

void AddTable(ordered_json& schema, const BlockKind& block, const TableKind& kind) {
    if (kind.list) {
        schema = {{"type", "array"}, {"items", {{"type", "number"}}}};
        return;
    }
    schema["type"] = "object";
    ordered_json required = ordered_json::array();
    if (kind.flagged) {
        schema["properties"]["temperature_dependent"] = {{"type", "boolean"}};
        required.push_back("temperature_dependent");
    }
    required.insert(required.end(), {"columns", "rows"});
    schema["required"] = std::move(required);
    schema["properties"].update({{"columns", {{"type", "array"}, {"minItems", 1}, {"uniqueItems", true}}},
                                 {"rows", Reference("rows")},
                                 {"source", {{"type", "string"}}}});
    const auto form = kind.form(Values());
    schema["allOf"].push_back(form ? FormSchema(kind, *form) : ChosenForms(block, kind));
}

ordered_json SettingSchema(const Setting& setting) {
    const std::string title = TitleWithUnit(setting.title, setting.unit);
    switch (setting.kind) {
        case SettingKind::FLAG:
            return Described({{"type", "boolean"}}, title);
        case SettingKind::COUNT:
            return Described({{"type", "integer"}, {"minimum", setting.least}, {"maximum", setting.most}},
                             title);
        case SettingKind::NUMBER:
            if (setting.unit.empty() || setting.unit == "-") return Described({{"type", "number"}}, title);
            return Described(Reference("number_with_unit"), title);
        case SettingKind::TEXT:
            if (setting.choices.empty()) return Described({{"type", "string"}}, title);
            return Described({{"enum", setting.choices}}, title);
        case SettingKind::UNREAD:
            break;
    }
    return Described(ordered_json::object(), title);
}

void AddSetting(ordered_json& block, const Setting& setting) {
    const auto dot = setting.name.find('.');
    const std::string group = setting.name.substr(0, dot);
    if (dot == std::string::npos) {
        block["properties"][group] = SettingSchema(setting);
        if (setting.required) block["required"].push_back(group);
        return;
    }
    ordered_json& holder = block["properties"][group];
    holder["type"] = "object";
    holder["properties"][setting.name.substr(dot + 1)] = SettingSchema(setting);
}

/// The block's own table, or, of one row, its values by the columns' names.
void AddOwnTable(ordered_json& schema, const BlockKind& block, const TableKind& table) {
    ordered_json tabular = ordered_json::object();
    AddTable(tabular, block, table);
    schema["if"] = {{"anyOf", {{{"required", {"columns"}}}, {{"required", {"rows"}}}}}};
    schema["then"] = std::move(tabular);
    schema["else"] = {{"minProperties", 1}};
}

ordered_json BlockSchema(const BlockKind& block) {
    ordered_json schema = {{"description", block.title}};
    if (block.IsUnread()) return schema;
    schema["type"] = "object";
    for (const Setting& setting : block.settings) AddSetting(schema, setting);
    for (const TableKind& table : block.tables) {
        if (table.name.empty()) {
            AddOwnTable(schema, block, table);
            continue;
        }
        AddTable(schema["properties"][table.name], block, table);
        if (table.required) schema["required"].push_back(table.name);
    }
    return schema;
}

ordered_json MaterialSchema() {
    ordered_json properties = {
        {"version",
         {{"type", "integer"}, {"minimum", JsonCardReader::kVersion}, {"maximum", JsonCardReader::kVersion}}},
        {"name", {{"type", "string"}, {"pattern", "\\S"}}},
        {"description", {{"type", "string"}}},
        {"class", {{"type", "string"}}},
        {"source", Reference("text_or_texts")},
        {"notes", Reference("text_or_texts")},
        {"illustrative", {{"type", "boolean"}}},
        {"heat_generation", {{"type", "boolean"}}},
        {"units", Reference("units")}};
    for (const BlockKind& block : BlockKinds()) {
        const ordered_json one = Reference(block.name);
        properties[block.name] = one;
        if (block.alternatives) properties[block.name] = {{"type", "array"}, {"minItems", 1}, {"items", one}};
        if (HasColumn(block, block.name))
            properties[block.name] = {{"anyOf", {Reference("number_with_unit"), one}}};
    }
    return {{"type", "object"}, {"required", {"name"}}, {"properties", std::move(properties)}};
}

}  // namespace

ordered_json CardSchema() {
    ordered_json definitions = {{"material", MaterialSchema()}, {"units", UnitsSchema()}};
    definitions.update(SharedDefinitions());
    for (const BlockKind& block : BlockKinds()) definitions[block.name] = BlockSchema(block);
    return {{"$schema", "https://json-schema.org/draft/2020-12/schema"},
            {"title", "Material card"},
            {"description",
             "The form of zelmat's material cards, described in material-card.md: one material, or a list of "
             "them. "
             "Columns, units and values are in the order and the units that the card gives. Keys that begin "
             "with // "
             "are comments. Made by: zelmat new --schema"},
            {"oneOf",
             {Reference("material"), {{"type", "array"}, {"minItems", 1}, {"items", Reference("material")}}}},
            {"$defs", std::move(definitions)}};
}

}  // namespace zelmat
