#include "zelmat/commands/frame/JsonReport.h"

#include "zelmat/cards/FitChoice.h"
#include "zelmat/materials/DerivedValues.h"
#include "zelmat/materials/InUnits.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

ordered_json ToJson(const Value& value) {
    return std::visit([](const auto& held) { return ordered_json(held); }, value);
}

/// The values beside the tables: those that are stored, or the notes that only the card has.
ordered_json ToJson(const BlockKind& kind, const Values& values, bool stored, const UnitChoice& units) {
    ordered_json json = ordered_json::object();
    for (const Setting& setting : kind.settings) {
        const Value* value = setting.stored == stored ? values.Find(setting.name) : nullptr;
        if (!value) continue;
        const auto [shown, unit] = InUnits(setting, *value, units);
        json[setting.name] = {{"value", ToJson(shown)}};
        if (!unit.empty()) json[setting.name]["unit"] = unit;
    }
    return json;
}

/// NaN, which stands for a number that the store does not have, becomes null.
ordered_json ToJson(const Table& table) {
    ordered_json columns = ordered_json::array();
    for (const Column& column : table.columns) {
        columns.push_back({{"name", column.kind.name}, {"unit", column.kind.unit}});
    }
    ordered_json rows = ordered_json::array();
    for (std::size_t row = 0; row < table.Rows(); ++row) rows.push_back(table.Row(row));
    return {{"table", table.kind->name},
            {"temperature_dependent", table.temperatureDependent},
            {"columns", std::move(columns)},
            {"rows", std::move(rows)}};
}

/// What the stored data mean.
ordered_json Derived(const Block& block, const UnitChoice& units) {
    ordered_json json = ordered_json::array();
    for (const DerivedValue& derived : DerivedValues(block)) {
        const ShownValue shown = derived.In(units);
        ordered_json told = {{"name", derived.name}, {"value", ToJson(shown.value)}};
        if (!shown.unit.empty()) told["unit"] = shown.unit;
        if (const auto temperature = derived.TemperatureIn(units)) {
            told["temperature"] = {{"value", ToJson(temperature->value)}, {"unit", temperature->unit}};
        }
        json.push_back(std::move(told));
    }
    return json;
}

/// Under their names, as the card has them.
ordered_json ToJson(const std::vector<KeptValue>& kept) {
    ordered_json json = ordered_json::object();
    for (const KeptValue& value : kept) json[value.name] = ordered_json::parse(value.json);
    return json;
}

ordered_json ToJson(const StoredBlock& stored, const UnitChoice& units) {
    const Block& block = stored.block;
    ordered_json json = {{"name", block.kind->name},
                         {"values", ToJson(*block.kind, block.values, true, units)},
                         {"tables", ordered_json::array()}};
    for (const Table& table : block.tables) json["tables"].push_back(ToJson(InUnits(table, units)));
    json["derived"] = Derived(block, units);
    if (!stored.given) return json;
    json["on_the_card"] = ToJson(*block.kind, stored.given->values, false, units);
    json["kept"] = ToJson(stored.given->kept);
    return json;
}

ordered_json Information(const Material& material) {
    ordered_json json = ordered_json::object();
    for (const Block& block : material.information) {
        ordered_json tables = ordered_json::object();
        for (const Table& table : block.tables) tables[table.kind->name] = table.Rows();
        ordered_json values = ToJson(block.kept);
        if (block.kind->IsUnread()) values = values.front();  // the whole block
        json[block.kind->name] = {{"rows", std::move(tables)}, {"values", std::move(values)}};
    }
    return json;
}

}  // namespace

ordered_json ToJson(const StoredMaterial& material, const UnitChoice& units) {
    const Material& given = *material.given;
    ordered_json json = {{"name", given.name},
                         {"description", given.description},
                         {"class", given.materialClass},
                         {"source", given.sources},
                         {"notes", given.notes},
                         {"illustrative", given.illustrative},
                         {"heat_generation", material.heatGeneration.value_or(false)},
                         {"switched_on", material.Names(true)},
                         {"switched_off", material.Names(false)},
                         {"features", material.features},
                         {"behaviors", ordered_json::array()},
                         {"fits", ordered_json::array()},
                         {"for_information", Information(given)},
                         {"kept", ToJson(given.kept)}};
    for (const StoredBlock* stored : material.SwitchedOn())
        json["behaviors"].push_back(ToJson(*stored, units));
    for (const Block& fit : given.fits) json["fits"].push_back(FitName(fit));
    return json;
}

ordered_json ToJson(const Findings& findings) {
    ordered_json json = ordered_json::array();
    for (const Finding& finding : findings.All()) {
        json.push_back({{"kind", KindWord(finding.kind)},
                        {"file", finding.place.file},
                        {"line", finding.place.line},
                        {"code", finding.code},
                        {"text", finding.text},
                        {"details", finding.details}});
    }
    return json;
}

}  // namespace zelmat
