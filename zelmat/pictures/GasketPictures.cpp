#include "zelmat/pictures/GasketPictures.h"

#include <optional>

#include "zelmat/materials/InUnits.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PropertyPictures.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr int kDigits = 6;

/// The rows of one temperature in runs of one parameter, in the order of the table.
std::vector<Series> Runs(const Table& table, std::optional<double> temperature, const char* parameter) {
    std::vector<Series> runs;
    const Column* closure = table.Find("closure");
    const Column* pressure = table.Find("pressure");
    const Column* at = table.Find(TemperatureColumn().name);
    const Column* run = parameter ? table.Find(parameter) : nullptr;
    if (!closure || !pressure) return runs;
    std::optional<double> current;
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        if (temperature && at && at->values[row] != *temperature) continue;
        const double value = run ? run->values[row] : 0.0;
        if (!current || value != *current) {
            runs.push_back(
                {.label = run ? WithUnit(RoundedTo(value, kDigits), WrittenUnit(run->kind.unit)) : "",
                 .style = SeriesStyle::ROWS});
            current = value;
        }
        runs.back().points.push_back({closure->values[row], pressure->values[row]});
    }
    return runs;
}

std::vector<std::optional<double>> Temperatures(const Table& loading) {
    std::vector<std::optional<double>> all;
    const Column* at = loading.Find(TemperatureColumn().name);
    if (!at) return {std::nullopt};
    for (const double temperature : at->values) {
        if (all.empty() || *all.back() != temperature) all.emplace_back(temperature);
    }
    return all;
}

struct Unloading {
    const char* table;
    const char* title;
    const char* parameter;
    const char* from;  ///< what the parameter is, before its value
};

constexpr Unloading kUnloadings[] = {
    {"unloading_elastic_plastic", "elastic-plastic unloading", "plastic_closure", "unloading, plastic "},
    {"unloading_damage", "unloading with damage", "max_closure", "unloading from "}};

Picture Loading(const Material& material, const Table& loading, std::optional<double> temperature) {
    const Column* closure = loading.Find("closure");
    const Column* pressure = loading.Find("pressure");
    Picture picture{.name = "gasket-loading",
                    .title = material.name,
                    .what = "Gasket: pressure over closure",
                    .x = {.title = "closure", .unit = closure->kind.unit, .fromZero = true},
                    .y = {.title = "pressure", .unit = pressure->kind.unit, .fromZero = true}};
    for (Series& series : Runs(loading, temperature, nullptr)) {
        series.label = "loading";
        picture.series.push_back(std::move(series));
    }
    return picture;
}

void AddUnloading(const Unloading& unloading, const Table& table, std::optional<double> temperature,
                  Picture& picture) {
    picture.name = PlainName(std::string("gasket-") + unloading.table);
    picture.what += std::string(", loading and ") + unloading.title;
    for (Series& series : Runs(table, temperature, unloading.parameter)) {
        series.label = unloading.from + series.label;
        series.color = picture.series.size();
        picture.series.push_back(std::move(series));
    }
}

}  // namespace

std::vector<Picture> GasketPictures(const Material& material, const Block& gasket, const UnitChoice& units) {
    std::vector<Picture> pictures;
    const Table* stored = gasket.Find("loading");
    if (!stored || stored->Rows() == 0) return pictures;
    const Table loading = InUnits(*stored, units);
    if (!loading.Find("closure") || !loading.Find("pressure")) return pictures;
    const bool unloads = gasket.values.Get<bool>("unloading").value_or(true);
    const auto temperatures = Temperatures(loading);
    for (std::size_t i = 0; i < temperatures.size(); ++i) {
        const auto add = [&](Picture picture) {
            if (temperatures.size() > 1) {
                picture.name += "-" + std::to_string(i + 1);
                picture.what +=
                    " at " + WithUnit(RoundedTo(*temperatures[i], kDigits),
                                      WrittenUnit(loading.Find(TemperatureColumn().name)->kind.unit));
            }
            picture.notes.emplace_back("Points: the rows of the tables; lines: linear between them.");
            AddSourceNote(material, *stored, picture);
            pictures.push_back(std::move(picture));
        };
        const std::size_t before = pictures.size();
        for (const Unloading& unloading : kUnloadings) {
            const Table* table = gasket.Find(unloading.table);
            if (!table || table->Rows() == 0 || !unloads) continue;
            Picture picture = Loading(material, loading, temperatures[i]);
            AddUnloading(unloading, InUnits(*table, units), temperatures[i], picture);
            add(std::move(picture));
        }
        if (pictures.size() == before) add(Loading(material, loading, temperatures[i]));
    }
    return pictures;
}

}  // namespace zelmat
