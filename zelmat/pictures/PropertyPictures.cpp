#include "zelmat/pictures/PropertyPictures.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "zelmat/materials/InUnits.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr int kDigits = 6;

/// "Mean coefficient from 20 °C": what else has to be known to read a value.
void AddBlockNotes(const Block& block, const UnitChoice& units, Picture& picture) {
    const auto reference = block.values.Get<double>("reference_temperature");
    if (block.kind->name != "thermal_expansion" || !reference) return;
    picture.notes.push_back("Mean (secant) coefficient from " +
                            WrittenUnit(ShownQuantity("temperature", units).Text(*reference, kDigits)));
}

Picture OfColumn(const Material& material, const Block& block, const Table& stored, std::size_t column,
                 const UnitChoice& units) {
    const Table shown = InUnits(stored, units);
    const Column& values = shown.columns[column];
    const Column& temperature = shown.columns.back();
    const bool own = stored.kind->name.empty();
    Picture picture{
        .name = PlainName(block.kind->name + (own ? "-" : "-" + stored.kind->name + "-") + values.kind.name),
        .title = material.name,
        .what = (own ? PropertyTitle(*block.kind, values.kind)
                     : block.kind->title + ", " + stored.kind->title + ": " + values.kind.title) +
                " over temperature",
        .x = {.title = "temperature", .unit = temperature.kind.unit},
        .y = {.title = values.kind.title, .unit = values.kind.unit, .fromZero = false}};
    Series rows{.label = {}, .style = SeriesStyle::ROWS};
    double least = values.values.front(), greatest = least;
    for (std::size_t row = 0; row < shown.Rows(); ++row) {
        rows.points.push_back({temperature.values[row], values.values[row]});
        least = std::min(least, values.values[row]);
        greatest = std::max(greatest, values.values[row]);
    }
    picture.y.fromZero = 2.0 * least < greatest;
    picture.series.push_back(std::move(rows));
    picture.notes.emplace_back("Points: the rows of the table; lines: linear between them.");
    AddBlockNotes(block, units, picture);
    AddSourceNote(material, stored, picture);
    return picture;
}

}  // namespace

bool IsOfProperties(const Block& block) {
    constexpr std::array<const char*, 7> kOfProperties = {
        "elastic",       "density",         "thermal_expansion",      "conductivity",
        "specific_heat", "gasket_membrane", "gasket_transverse_shear"};
    return std::find(kOfProperties.begin(), kOfProperties.end(), block.kind->name) != kOfProperties.end();
}

std::vector<Picture> PropertyPictures(const Material& material, const Block& block, const UnitChoice& units) {
    std::vector<Picture> pictures;
    if (!IsOfProperties(block)) return pictures;
    for (const Table& table : block.tables) {
        if (!table.temperatureDependent || table.Rows() < 2) continue;
        for (std::size_t column = 0; column + 1 < table.columns.size(); ++column) {
            pictures.push_back(OfColumn(material, block, table, column, units));
        }
    }
    return pictures;
}

std::string SourceText(const Material& material, const Table& table) {
    return table.source.empty() ? WordList(material.sources) : table.source;
}

void AddSourceNote(const Material& material, const Table& table, Picture& picture) {
    const std::string source = SourceText(material, table);
    if (!source.empty()) picture.notes.push_back("Source: " + source);
}

std::string PropertyTitle(const BlockKind& block, const ColumnKind& column) {
    const bool same =
        std::equal(block.title.begin(), block.title.end(), column.title.begin(), column.title.end(),
                   [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
    return same ? block.title : block.title + ": " + column.title;
}

std::string PlainName(std::string_view text) {
    std::string name;
    for (const char symbol : text) {
        const bool plain = std::isalnum(static_cast<unsigned char>(symbol)) != 0 || symbol == '_';
        const bool ascii = static_cast<unsigned char>(symbol) < 0x80;
        if (plain && ascii) {
            name += symbol;
        } else if (!name.empty() && name.back() != '-') {
            name += '-';
        }
    }
    constexpr std::size_t kLongest = 80;
    name.resize(std::min(name.size(), kLongest));
    while (!name.empty() && name.back() == '-') name.pop_back();
    return name.empty() ? "picture" : name;
}

}  // namespace zelmat
