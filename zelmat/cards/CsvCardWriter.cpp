#include "zelmat/cards/CsvCardWriter.h"

#include "zelmat/cards/CardJson.h"
#include "zelmat/cards/CsvLine.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/PlainUnitText.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

constexpr char kSeparator = ',';

/// A text that stands as it is in a line "key = text".
bool IsPlain(const std::string& text) {
    return !text.starts_with('"') && text.find_first_of("\r\n") == std::string::npos &&
           WithoutBlanksAround(text).size() == text.size();
}

std::string TextLine(const std::string& key, const std::string& text) {
    return key + " = " + (IsPlain(text) ? text : ordered_json(text).dump()) + "\n";
}

/// A value that the reader may take for something else is written as JSON: "12" in quotes stays a text.
std::string ValueLine(const std::string& key, const ordered_json& value) {
    return key + " = " + (value.is_number_float() ? NumberText(value.get<double>()) : value.dump()) + "\n";
}

std::string TableText(const Table& table) {
    std::string text;
    if (table.kind->flagged) text += ValueLine("temperature_dependent", table.temperatureDependent);
    if (!table.source.empty()) text += TextLine("source", table.source);
    std::vector<const Column*> columns;
    for (const Column& column : table.columns) {
        if (IsLeftOut(column)) continue;
        if (!columns.empty()) text += kSeparator;
        text += CsvCell(HeaderText(column), kSeparator);
        columns.push_back(&column);
    }
    text += '\n';
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        for (std::size_t at = 0; at < columns.size(); ++at) {
            if (at > 0) text += kSeparator;
            text += NumberText(WrittenValues(*columns[at])[row]);
        }
        text += '\n';
    }
    return text;
}

std::string BlockText(const Block& block) {
    const std::string& name = block.kind->name;
    std::string text = "\n[" + name + "]\n";
    for (const Setting& setting : block.kind->settings) {
        if (!block.values.Find(setting.name)) continue;
        const ordered_json value = WrittenValue(block, setting);
        text += value.is_string() ? TextLine(setting.name, value.get<std::string>())
                                  : ValueLine(setting.name, value);
    }
    for (const KeptValue& kept : block.kept) text += kept.name + " = " + kept.json + "\n";
    for (const Table& table : block.tables) {
        if (!table.kind->name.empty()) text += "\n[" + name + "." + table.kind->name + "]\n";
        text += TableText(table);
    }
    return text;
}

std::string MaterialText(const Material& material) {
    std::string text = "[material]\n" + TextLine("name", material.name);
    if (!material.description.empty()) text += TextLine("description", material.description);
    if (!material.materialClass.empty()) text += TextLine("class", material.materialClass);
    for (const std::string& source : material.sources) text += TextLine("source", source);
    for (const std::string& note : material.notes) text += TextLine("notes", note);
    if (material.illustrative) text += ValueLine("illustrative", true);
    if (material.heatGeneration) text += ValueLine("heat_generation", *material.heatGeneration);
    for (const Block& block : material.information) {
        if (block.kind->IsUnread()) text += block.kind->name + " = " + block.kept.front().json + "\n";
    }
    for (const KeptValue& kept : material.kept) text += kept.name + " = " + kept.json + "\n";
    for (const Block& block : material.blocks) text += BlockText(block);
    for (const Block& fit : material.fits) text += BlockText(fit);
    for (const Block& block : material.information) {
        if (!block.kind->IsUnread()) text += BlockText(block);
    }
    return text;
}

}  // namespace

std::string CsvCardText(const std::vector<Material>& materials) {
    std::string text;
    for (const Material& material : materials) {
        if (!text.empty()) text += '\n';
        text += MaterialText(material);
    }
    return text;
}

}  // namespace zelmat
