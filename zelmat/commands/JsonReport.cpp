#include "zelmat/commands/JsonReport.h"

#include "zelmat/cards/FitChoice.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

ordered_json ToJson(const CardValue& value) {
    return std::visit([](const auto& held) { return ordered_json(held); }, value);
}

/// The values beside the tables: those that are stored, or the notes that only the card has.
ordered_json ToJson(const CardBlock& block, const CardValues& values, bool stored) {
    ordered_json json = ordered_json::object();
    for (const CardSetting& setting : block.settings) {
        const CardValue* value = setting.stored == stored ? values.Find(setting.name) : nullptr;
        if (!value) continue;
        json[setting.name] = {{"value", ToJson(*value)}};
        if (!setting.unit.empty()) json[setting.name]["unit"] = setting.unit;
    }
    return json;
}

ordered_json ToJson(const StoredTable& table) {
    ordered_json columns = ordered_json::array();
    for (const CardColumn& column : table.columns) {
        columns.push_back({{"name", column.name}, {"unit", column.unit}});
    }
    return {{"table", table.kind->name},
            {"temperature_dependent", table.temperatureDependent},
            {"columns", std::move(columns)},
            {"rows", table.rows}};
}

ordered_json ToJson(const StoredBlock& block) {
    ordered_json json = {{"name", block.block->name},
                         {"values", ToJson(*block.block, block.values, true)},
                         {"tables", ordered_json::array()}};
    for (const StoredTable& table : block.tables) json["tables"].push_back(ToJson(table));
    if (block.given) json["on_the_card"] = ToJson(*block.block, block.given->values, false);
    return json;
}

ordered_json Information(const MaterialCard& card) {
    ordered_json json = ordered_json::object();
    for (const CardData& data : card.information) {
        ordered_json tables = ordered_json::object();
        for (const CardTable& table : data.tables) tables[table.kind->name] = table.rows.size();
        json[data.block->name] = {{"rows", std::move(tables)}};
    }
    return json;
}

}  // namespace

ordered_json ToJson(const StoredMaterial& material) {
    const MaterialCard& card = *material.card;
    ordered_json json = {{"name", card.name},
                         {"description", card.description},
                         {"source", card.sources},
                         {"illustrative", card.illustrative},
                         {"switched_on", material.Names(true)},
                         {"switched_off", material.Names(false)},
                         {"features", material.features},
                         {"behaviors", ordered_json::array()},
                         {"fits", ordered_json::array()},
                         {"for_information", Information(card)}};
    for (const StoredBlock* block : material.SwitchedOn()) json["behaviors"].push_back(ToJson(*block));
    for (const CardData& fit : card.fits) json["fits"].push_back(FitName(fit));
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
