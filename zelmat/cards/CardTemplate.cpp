#include "zelmat/cards/CardTemplate.h"

#include <array>

#include "zelmat/cards/CardUnits.h"
#include "zelmat/cards/JsonCardReader.h"
#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/materials/Values.h"
#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

constexpr std::array<const char*, 6> kBlocks = {"elastic",           "plastic",      "density",
                                                "thermal_expansion", "conductivity", "specific_heat"};

std::string Header(const ColumnKind& column) {
    const Quantity* quantity = QuantityOf(column.name, column.unit);
    const bool pure = !quantity || column.unit == "-";
    return pure ? column.name : column.name + " [" + UnitChoice::ForText().For(*quantity).Spelling() + "]";
}

std::string Explanation(const BlockKind& kind, const TableForm& form) {
    std::string text = kind.title + ": " + WordList(form.columns, [](const ColumnKind& column) {
                           return column.title + (column.unit == "-" ? "" : " [" + column.unit + "]");
                       });
    if (form.temperature == TemperatureRule::AS_FLAGGED) {
        text += "; with \"temperature_dependent\": true a last column \"temperature\"";
    }
    for (const Setting& setting : kind.settings) {
        if (!setting.choices.empty()) text += "; " + setting.name + ": " + WordList(setting.choices);
    }
    return text + ". Remove the block if it is not defined.";
}

ordered_json TemplateBlock(const BlockKind& kind, const TableForm& form, const Values& values) {
    ordered_json json = ordered_json::object();
    for (const Setting& setting : kind.settings) {
        if (const auto text = values.Find(setting.name)) json[setting.name] = std::get<std::string>(*text);
        if (setting.stored && setting.kind == SettingKind::NUMBER) json[setting.name] = nullptr;
    }
    json["temperature_dependent"] = false;
    ordered_json& columns = json["columns"] = ordered_json::array();
    ordered_json row = ordered_json::array();
    for (const ColumnKind& column : form.ColumnsOf(false)) {
        columns.push_back(Header(column));
        row.push_back(nullptr);
    }
    json["rows"] = ordered_json::array({row});
    json["source"] = "";
    return json;
}

}  // namespace

ordered_json CardTemplate(const std::string& name) {
    ordered_json json = {
        {"//", "A material card. Put numbers in the place of null; keys that begin with // are comments."},
        {"version", JsonCardReader::kVersion},
        {"name", name},
        {"description", ""},
        {"// class", "metal, polymer, ceramic, elastomer, composite, concrete, ..."},
        {"class", ""},
        {"// source", "Where the values were published."},
        {"source", ordered_json::array()}};
    for (const char* block : kBlocks) {
        const BlockKind& kind = *FindBlockKind(block);
        Values values;
        if (kind.name == "plastic") values.Set("hardening", std::string("isotropic"));
        const auto form = kind.tables.front().form(values);
        json["// " + kind.name] = Explanation(kind, *form);
        json[kind.name] = TemplateBlock(kind, *form, values);
    }
    return json;
}

}  // namespace zelmat
