#include "zelmat/pictures/HardeningPictures.h"

#include <algorithm>

#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PropertyPictures.h"
#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/quantities/ShownQuantity.h"

namespace zelmat {

namespace {

using mechanics::HardeningTable;
using mechanics::JohnsonCook;

/// What the curves share.
struct Shown {
    ShownQuantity stress, strain, temperature;

    explicit Shown(const UnitChoice& units)
        : stress("stress", units), strain("strain", units), temperature("temperature", units) {}

    std::string Temperature(double kelvin) const {
        constexpr int kDigits = 6;
        return WrittenUnit(temperature.Text(kelvin, kDigits));
    }
};

std::vector<Series> Curves(const HardeningTable& table, bool temperatureDependent, const Shown& shown) {
    std::vector<Series> curves;
    std::optional<double> at;
    for (const mechanics::HardeningPoint& row : table.Rows()) {
        if (!at || *at != row.temperature) {
            curves.push_back({.label = temperatureDependent ? shown.Temperature(row.temperature) : "",
                              .style = SeriesStyle::ROWS});
            at = row.temperature;
        }
        curves.back().points.push_back({shown.strain(row.plasticStrain), shown.stress(row.stress)});
    }
    return curves;
}

/// Spread over all of them, the first and the last included; says how many there are.
void KeepTwelve(Picture& picture) {
    constexpr std::size_t kMost = 12;
    const std::size_t all = picture.series.size();
    if (all > kMost) {
        std::vector<Series> kept;
        for (std::size_t i = 0; i < kMost; ++i) {
            kept.push_back(std::move(picture.series[i * (all - 1) / (kMost - 1)]));
        }
        picture.series = std::move(kept);
        picture.notes.push_back(std::to_string(kMost) + " of " + std::to_string(all) +
                                " temperatures are drawn.");
    }
    for (std::size_t i = 0; i < picture.series.size(); ++i) picture.series[i].color = i;
}

/// A curve of one point, perfect plasticity, is seen by what follows from it.
void DrawLevels(Picture& picture) {
    constexpr double kUsualStrain = 0.1;
    double greatest = 0.0;
    for (const Series& series : picture.series) greatest = std::max(greatest, series.points.back().x);
    std::vector<Series> levels;
    for (const Series& series : picture.series) {
        if (series.points.size() != 1) continue;
        const PicturePoint point = series.points.front();
        levels.push_back({.label = "",
                          .style = SeriesStyle::DASHED,
                          .color = series.color,
                          .points = {point, {greatest > 0.0 ? greatest : kUsualStrain, point.y}}});
    }
    if (!levels.empty()) picture.notes.emplace_back("Dashed: constant beyond the only point.");
    picture.series.insert(picture.series.end(), levels.begin(), levels.end());
}

std::vector<Series> Curves(const JohnsonCook& law, const Shown& shown) {
    constexpr double kGreatestStrain = 0.5;
    constexpr int kPoints = 60;
    std::vector<Series> curves;
    for (const double part : {0.0, 0.25, 0.5, 0.75}) {
        const double temperature =
            law.transitionTemperature + part * (law.meltingTemperature - law.transitionTemperature);
        Series curve{
            .label = shown.Temperature(temperature), .style = SeriesStyle::LINE, .color = curves.size()};
        for (const double strain : mechanics::TabulationStrains(kGreatestStrain, kPoints)) {
            const auto stress = mechanics::FlowStressOf(law, strain, temperature);
            if (stress.Ok()) curve.points.push_back({shown.strain(strain), shown.stress(stress->stress)});
        }
        curves.push_back(std::move(curve));
    }
    return curves;
}

/// As a reader writes the keyword.
std::string HardeningText(const std::string& keyword) {
    return keyword == "johnson-cook" ? "Johnson-Cook" : keyword;
}

}  // namespace

mechanics::Outcome<Picture> HardeningPicture(const Material& material, const Block& plastic,
                                             const UnitChoice& units) {
    const auto property = HardeningOf(plastic);
    if (!property.Ok()) return property.Refused();
    const Shown shown(units);
    Picture picture{.name = "plastic-hardening",
                    .title = material.name,
                    .what = "Plastic, " + HardeningText(property->hardening) +
                            " hardening: true stress over plastic strain",
                    .x = {.title = "plastic strain", .unit = shown.strain.Unit(), .fromZero = true},
                    .y = {.title = "true stress", .unit = shown.stress.Unit(), .fromZero = true},
                    .graded = true};
    if (const auto* law = std::get_if<JohnsonCook>(&property->law)) {
        picture.series = Curves(*law, shown);
        picture.notes.emplace_back("Johnson and Cook's law at the reference strain rate.");
    } else {
        const auto& table = std::get<HardeningTable>(property->law);
        picture.series = Curves(table, property->temperatureDependent, shown);
        KeepTwelve(picture);
        DrawLevels(picture);
        picture.notes.emplace_back(
            "Points: the rows of the table; lines: linear between them, constant beyond.");
    }
    const bool named = !picture.series.empty() && !picture.series.front().label.empty();
    if (named) picture.legend = "temperature";
    AddSourceNote(material, plastic.tables.front(), picture);
    return picture;
}

}  // namespace zelmat
