#include "zelmat/cards/CardJson.h"

#include <algorithm>

#include "zelmat/cards/JsonCardReader.h"
#include "zelmat/files/JsonText.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

/// A text alone, or a list.
ordered_json OneOrMore(const std::vector<std::string>& texts) {
    return texts.size() == 1 ? ordered_json(texts.front()) : ordered_json(texts);
}

ordered_json Parsed(const KeptValue& kept) {
    return ordered_json::parse(kept.json);
}

/// Where a value of this name goes: "yield_onset.method" into the group `yield_onset`.
ordered_json& Place(ordered_json& json, const Block& block, const std::string& name) {
    const auto dot = name.find('.');
    const std::string group = name.substr(0, dot);
    const auto& settings = block.kind->settings;
    const bool grouped = dot != std::string::npos &&
                         (block.kind->FindTable(group) ||
                          std::any_of(settings.begin(), settings.end(), [&](const Setting& setting) {
                              return setting.name.starts_with(group + ".");
                          }));
    return grouped ? json[group][name.substr(dot + 1)] : json[name];
}

ordered_json ListJson(const Table& table) {
    return table.columns.front().values;
}

void AddTable(ordered_json& json, const Table& table) {
    std::vector<const Column*> columns;
    for (const Column& column : table.columns) {
        if (!IsLeftOut(column)) columns.push_back(&column);
    }
    if (table.kind->flagged) json["temperature_dependent"] = table.temperatureDependent;
    ordered_json& headers = json["columns"] = ordered_json::array();
    for (const Column* column : columns) headers.push_back(HeaderText(*column));
    ordered_json& rows = json["rows"] = ordered_json::array();
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        ordered_json numbers = ordered_json::array();
        for (const Column* column : columns) numbers.push_back(WrittenValues(*column)[row]);
        rows.push_back(std::move(numbers));
    }
    if (!table.source.empty()) json["source"] = table.source;
}

ordered_json BlockJson(const Block& block) {
    if (block.kind->IsUnread()) return Parsed(block.kept.front());
    ordered_json json = ordered_json::object();
    for (const Setting& setting : block.kind->settings) {
        if (block.values.Find(setting.name)) {
            Place(json, block, setting.name) = WrittenValue(block, setting);
        }
    }
    for (const Table& table : block.tables) {
        if (table.kind->list) {
            json[table.kind->name] = ListJson(table);
        } else {
            AddTable(table.kind->name.empty() ? json : json[table.kind->name], table);
        }
    }
    for (const KeptValue& kept : block.kept) Place(json, block, kept.name) = Parsed(kept);
    return json;
}

}  // namespace

std::string HeaderText(const Column& column) {
    const std::string& unit = column.written ? column.written->unit : column.kind.unit;
    const bool pure = !column.written && (unit.empty() || unit == "-");
    return pure ? column.kind.name : column.kind.name + " [" + unit + "]";
}

const std::vector<double>& WrittenValues(const Column& column) {
    return column.written && !column.written->numbers.empty() ? column.written->numbers : column.values;
}

bool IsLeftOut(const Column& column) {
    return column.kind.whenAbsent && !column.written &&
           std::all_of(column.values.begin(), column.values.end(),
                       [&](double value) { return value == *column.kind.whenAbsent; });
}

ordered_json WrittenValue(const Block& block, const Setting& setting) {
    if (const auto written = block.written.find(setting.name); written != block.written.end()) {
        const auto& [number, unit] = written->second;
        return setting.unit == "-" ? ordered_json(number) : ordered_json(NumberText(number) + " " + unit);
    }
    return std::visit([](const auto& held) { return ordered_json(held); }, *block.values.Find(setting.name));
}

ordered_json CardJson(const Material& material) {
    ordered_json json = {{"version", JsonCardReader::kVersion}, {"name", material.name}};
    if (!material.description.empty()) json["description"] = material.description;
    if (!material.materialClass.empty()) json["class"] = material.materialClass;
    if (!material.sources.empty()) json["source"] = OneOrMore(material.sources);
    if (!material.notes.empty()) json["notes"] = OneOrMore(material.notes);
    if (material.illustrative) json["illustrative"] = true;
    if (material.heatGeneration) json["heat_generation"] = *material.heatGeneration;
    for (const Block& block : material.blocks) json[block.kind->name] = BlockJson(block);
    for (const Block& fit : material.fits) json[fit.kind->name].push_back(BlockJson(fit));
    for (const Block& block : material.information) json[block.kind->name] = BlockJson(block);
    for (const KeptValue& kept : material.kept) json[kept.name] = Parsed(kept);
    return json;
}

std::string JsonCardText(const std::vector<Material>& materials) {
    if (materials.size() == 1) return JsonText(CardJson(materials.front()));
    ordered_json list = ordered_json::array();
    for (const Material& material : materials) list.push_back(CardJson(material));
    return JsonText(list);
}

}  // namespace zelmat
