// What do cards cost: reading many of them, or one of 100,000 rows, and putting them into a document, beside
// parsing their JSON alone?

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "bench/Ratios.h"
#include "zelmat/cards/ReadCard.h"
#include "zelmat/materials/MaterialHost.h"
#include "zelmat/materials/MaterialWriter.h"

namespace {

using bench::Figure;
using bench::Target;

/// A folder for the cards, gone at the end.
class Folder {
public:
    Folder() { std::filesystem::create_directories(path_); }
    ~Folder() { std::filesystem::remove_all(path_); }

    std::string Write(const std::string& name, const nlohmann::json& card) const {
        std::string path = (path_ / name).string();
        std::ofstream(path) << card.dump(1);
        return path;
    }

private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / "zelmat-bench-cards";
};

const Folder& CardFolder() {
    static const Folder folder;
    return folder;
}

/// Density over temperature.
nlohmann::json CardOf(const std::string& name, int rows) {
    nlohmann::json table = {{"temperature_dependent", true}, {"columns", {"density", "temperature"}}};
    for (int row = 0; row < rows; ++row) table["rows"].push_back({7850.5 - 0.01 * row, 293.15 + 0.01 * row});
    return {{"name", name}, {"description", "A card"}, {"source", "made up"}, {"density", table}};
}

/// A thousand cards as analysts have them: a structural steel with five tables of twelve rows.
std::vector<std::string> ManyCards() {
    std::vector<std::string> paths;
    for (int i = 0; i < 1000; ++i) {
        auto card = nlohmann::json::parse(std::ifstream(ZEL_SAMPLES "/steel_s355.json"));
        card["name"] = "Steel " + std::to_string(i);
        paths.push_back(CardFolder().Write("card" + std::to_string(i) + ".json", card));
    }
    return paths;
}

std::vector<std::string> LongCard() {
    return {CardFolder().Write("long.json", CardOf("Long", 100'000))};
}

/// An elastic table as CSV.
std::string CsvCard(std::int64_t rows) {
    std::string text = "YoungsModulus [GPa],PoissonRatio [-],Temperature [degC]\n";
    for (std::int64_t row = 0; row < rows; ++row) text += "210.5,0.3," + std::to_string(row) + "\n";
    return text;
}

void Parse(benchmark::State& state, const std::vector<std::string>& paths) {
    for (auto _ : state) {
        for (const std::string& path : paths) {
            std::ifstream file(path);
            benchmark::DoNotOptimize(nlohmann::json::parse(file));
        }
    }
}

void IntoDocument(benchmark::State& state, const std::vector<std::string>& paths) {
    for (auto _ : state) {
        zelmat::MaterialHost host(ZEL_CATALOG_FOLDER);
        zelmat::Findings findings;
        for (const std::string& path : paths) {
            const auto material = zelmat::ReadCard(path, findings);
            if (!material) break;
            const auto feature = host.NewMaterial(*material, findings);
            if (!feature) break;
            std::vector<const zelmat::Block*> blocks;
            for (const auto& block : material->blocks) blocks.push_back(&block);
            zelmat::WriteBlocks(feature.Get(), *material, blocks, findings);
        }
        if (findings.HasErrors()) state.SkipWithError(findings.All().front().text.c_str());
    }
}

void ParseManyCards(benchmark::State& state) {
    static const auto paths = ManyCards();
    Parse(state, paths);
}
void ManyCardsIntoADocument(benchmark::State& state) {
    static const auto paths = ManyCards();
    IntoDocument(state, paths);
}
void ParseALongCard(benchmark::State& state) {
    static const auto paths = LongCard();
    Parse(state, paths);
}
void ALongCardIntoADocument(benchmark::State& state) {
    static const auto paths = LongCard();
    IntoDocument(state, paths);
}

void ReadCsvRow(benchmark::State& state) {
    const std::string text = CsvCard(state.range(0));
    while (state.KeepRunningBatch(state.range(0))) {
        zelmat::Findings findings;
        benchmark::DoNotOptimize(zelmat::ReadCardText(text, "long.csv", findings, {}));
        if (findings.HasErrors()) state.SkipWithError(findings.All().front().text.c_str());
    }
}

BENCHMARK(ReadCsvRow)->Arg(10'000)->Arg(1'000'000);
BENCHMARK(ParseManyCards)->Unit(benchmark::kMillisecond);
BENCHMARK(ManyCardsIntoADocument)->Unit(benchmark::kMillisecond);
BENCHMARK(ParseALongCard)->Unit(benchmark::kMillisecond);
BENCHMARK(ALongCardIntoADocument)->Unit(benchmark::kMillisecond);

const bench::Ratio kRatios[] = {
    {"1,000 cards into a document, to parsing their JSON", Figure::Time("ManyCardsIntoADocument"),
     Figure::Time("ParseManyCards"), Target::AtMost(3)},
    {"a card of 100,000 rows into a document, to parsing its JSON", Figure::Time("ALongCardIntoADocument"),
     Figure::Time("ParseALongCard"), Target::AtMost(3)},
    {"a row of a CSV table of 1,000,000, to one of 10,000", Figure::Time("ReadCsvRow/1000000"),
     Figure::Time("ReadCsvRow/10000"), Target::AtMost(1.5)},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
