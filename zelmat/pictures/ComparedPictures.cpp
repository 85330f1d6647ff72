#include "zelmat/pictures/ComparedPictures.h"

#include <algorithm>
#include <cmath>

#include "zelmat/materials/InUnits.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/HardeningPictures.h"
#include "zelmat/pictures/PictureRange.h"
#include "zelmat/pictures/PropertyPictures.h"
#include "zelmat/properties/UsedBlock.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

/// One property of one material.
struct Property {
    std::size_t material;
    Table table;         // in the units of the picture
    std::size_t column;  // of the property
};

/// Level from one end of what the others span to the other.
Series Level(const Property& property, const PictureRange& span) {
    const double value = property.table.columns[property.column].values.front();
    return {.label = "", .style = SeriesStyle::LINE, .points = {{span.lower, value}, {span.upper, value}}};
}

Series OverTemperature(const Property& property) {
    Series series{.label = "", .style = SeriesStyle::ROWS};
    const auto& values = property.table.columns[property.column].values;
    const auto& temperatures = property.table.columns.back().values;
    for (std::size_t row = 0; row < values.size(); ++row) {
        series.points.push_back({temperatures[row], values[row]});
    }
    return series;
}

bool DependsOnTemperature(const Property& property) {
    return property.table.temperatureDependent && property.table.Rows() > 1;
}

class Comparison {
public:
    Comparison(const std::vector<Material>& materials, const UnitChoice& units, Findings& findings)
        : materials_(materials), units_(units), findings_(findings) {}

    std::vector<Picture> Of(const std::string& block) {
        for (const BlockKind& kind : BlockKinds()) {
            if (!block.empty() && kind.name != block) continue;
            for (const TableKind& table : kind.tables) AddTable(kind, table);
            if (kind.name == "plastic") AddHardening();
        }
        return std::move(pictures_);
    }

private:
    std::string Title(std::size_t count) const { return CountText(count, "material") + " compared"; }

    void AddTable(const BlockKind& kind, const TableKind& table) {
        std::vector<std::vector<Property>> byColumn;
        for (std::size_t i = 0; i < materials_.size(); ++i) {
            const Block* block = materials_[i].Find(kind.name);
            const Table* stored =
                block && block->enabled && IsOfProperties(*block) ? block->Find(&table) : nullptr;
            if (!stored || stored->Rows() == 0) continue;
            const Table shown = InUnits(*stored, units_);
            const bool closes = shown.columns.back().kind.name == TemperatureColumn().name;
            const std::size_t columns = shown.columns.size() - (closes ? 1 : 0);
            byColumn.resize(std::max(byColumn.size(), columns));
            for (std::size_t column = 0; column < columns; ++column)
                byColumn[column].push_back({i, shown, column});
        }
        for (const auto& properties : byColumn) {
            if (properties.size() > 1) AddProperty(kind, properties);
        }
    }

    void AddProperty(const BlockKind& kind, const std::vector<Property>& properties) {
        const ColumnKind& column = properties.front().table.columns[properties.front().column].kind;
        Picture picture{.name = PlainName("compared-" + kind.name + "-" + column.name),
                        .title = PropertyTitle(kind, column),
                        .what = Title(properties.size())};
        const bool curves = std::any_of(properties.begin(), properties.end(), DependsOnTemperature);
        if (curves) {
            AddCurves(properties, column, picture);
        } else {
            picture.kind = PictureKind::BARS;
            picture.x = {.title = column.title, .unit = column.unit};
            for (const Property& property : properties) {
                picture.bars.push_back({materials_[property.material].name,
                                        property.table.columns[property.column].values.front()});
            }
        }
        for (const Property& property : properties) {
            const Material& material = materials_[property.material];
            AddSource(material, property.table, picture);
        }
        pictures_.push_back(std::move(picture));
    }

    static void AddSource(const Material& material, const Table& table, Picture& picture) {
        const std::string source = SourceText(material, table);
        if (!source.empty()) picture.notes.push_back(material.name + ": " + source);
    }

    void AddCurves(const std::vector<Property>& properties, const ColumnKind& column, Picture& picture) {
        const std::string degrees = ShownQuantity("temperature", units_).Unit();
        picture.x = {.title = "temperature", .unit = degrees};
        picture.y = {.title = column.title, .unit = column.unit};
        picture.legend = "material";
        for (const Property& property : properties) {
            if (DependsOnTemperature(property))
                AddSeries(OverTemperature(property), property.material, picture);
        }
        const auto span = RangeOf(picture, &PicturePoint::x);
        bool level = false;
        for (const Property& property : properties) {
            if (DependsOnTemperature(property)) continue;
            AddSeries(Level(property, *span), property.material, picture);
            level = true;
        }
        std::stable_sort(picture.series.begin(), picture.series.end(),
                         [](const Series& a, const Series& b) { return a.color < b.color; });
        const auto values = RangeOf(picture, &PicturePoint::y);
        picture.y.fromZero = values && 2.0 * values->lower < values->upper;
        picture.notes.emplace_back("Points: the rows of the tables; lines: linear between them.");
        if (level) picture.notes.emplace_back("Level lines: given without temperature.");
    }

    void AddSeries(Series series, std::size_t material, Picture& picture) const {
        series.label = materials_[material].name + series.label;
        series.color = material;
        picture.series.push_back(std::move(series));
    }

    void AddHardening() {
        Picture all{.name = "compared-plastic-hardening",
                    .title = "Plastic: true stress over plastic strain",
                    .what = {}};
        for (std::size_t i = 0; i < materials_.size(); ++i) {
            const Block* block = materials_[i].Find("plastic");
            if (!block || !block->enabled) continue;
            const auto used = UsedBlock(materials_[i], *block, findings_);
            const auto curve = used ? NextToRoom(*used) : std::nullopt;
            const auto picture = curve ? HardeningPicture(materials_[i], *curve, units_)
                                       : mechanics::Outcome<Picture>(mechanics::Refusal{""});
            if (!picture.Ok() || picture->series.empty()) continue;
            Series series = picture->series.front();
            if (!series.label.empty()) series.label = ", " + series.label;
            all.x = picture->x;
            all.y = picture->y;
            AddSeries(std::move(series), i, all);
            AddSource(materials_[i], used->tables.front(), all);
        }
        if (all.series.size() < 2) return;
        all.what = Title(all.series.size()) + ", at the temperature next to 20 °C";
        all.legend = "material";
        pictures_.push_back(std::move(all));
    }

    /// The block with the curve of one temperature alone; Johnson and Cook's law as it is.
    static std::optional<Block> NextToRoom(Block block) {
        if (block.tables.empty()) return std::nullopt;
        Table& table = block.tables.front();
        const Column* temperature = table.Find(TemperatureColumn().name);
        if (!temperature || !table.temperatureDependent || temperature->values.empty()) return block;
        constexpr double kRoom = 293.15;
        double nearest = temperature->values.front();
        for (const double at : temperature->values) {
            if (std::abs(at - kRoom) < std::abs(nearest - kRoom)) nearest = at;
        }
        const std::vector<double> temperatures = temperature->values;
        for (Column& column : table.columns) {
            std::vector<double> kept;
            for (std::size_t row = 0; row < temperatures.size(); ++row) {
                if (temperatures[row] == nearest) kept.push_back(column.values[row]);
            }
            column.values = std::move(kept);
        }
        return block;
    }

    const std::vector<Material>& materials_;
    const UnitChoice& units_;
    Findings& findings_;
    std::vector<Picture> pictures_;
};

}  // namespace

std::vector<Picture> ComparedPictures(const std::vector<Material>& materials, const std::string& block,
                                      const UnitChoice& units, Findings& findings) {
    return Comparison(materials, units, findings).Of(block);
}

}  // namespace zelmat
