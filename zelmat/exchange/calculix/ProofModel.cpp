#include "zelmat/exchange/calculix/ProofModel.h"

#include <algorithm>
#include <cmath>

#include "zelmat/exchange/calculix/CalculixCards.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr double kRoomTemperature = 293.15;
constexpr double kBeyond = 25.0;  // K beyond a table's ends
constexpr std::size_t kMostRows = 8;

}  // namespace

PrintedNumber ProofModel::Stress(int bar, std::size_t component, double time) const {
    return {"stresses", bars.ElementSet(bar), bars.Element(bar), 1 + component, time};
}

PrintedNumber ProofModel::FarDisplacement(int bar, std::size_t direction, double time) const {
    return {"displacements", bars.NodeSet(bar), bars.FarNode(bar), direction, time};
}

const Block* ProofSubject::Find(const std::string& block) const {
    const auto found =
        std::find_if(blocks.begin(), blocks.end(), [&](const Block& one) { return one.kind->name == block; });
    return found == blocks.end() ? nullptr : &*found;
}

double ProofSubject::Temperature(double kelvin) const {
    return units.FromStored(kelvin, "temperature").value_or(0.0);
}

std::string ProofSubject::TemperatureText(double kelvin) const {
    return WithUnit(RoundedTo(Temperature(kelvin), 6), units.For("temperature").Spelling());
}

ProofModel ProofSubject::Model(const std::string& model, bool mechanical) const {
    return {model, BarModel(mechanical ? cards : thermal, name), {}};
}

std::optional<mechanics::TemperatureTable> ProofTable(const Block* block) {
    if (!block || block->tables.empty()) return std::nullopt;
    auto table = OverTemperature(block->tables.front());
    return table.Ok() ? std::optional(*table) : std::nullopt;
}

double ProofValue(const mechanics::TemperatureTable& table, double kelvin) {
    const auto value = table.At(kelvin, mechanics::OutsidePolicy::CONSTANT);
    return value.Ok() ? value->values.front() : std::nan("");
}

bool ProofSubject::CanStartAt(double kelvin) const {
    return Temperature(kelvin) <= kCalculixHottestStart;
}

std::vector<double> ProofSubject::Temperatures(const mechanics::TemperatureTable& table) const {
    const auto range = table.Range();
    if (!range) return {kRoomTemperature};
    const auto& rows = table.Rows();
    std::vector<double> at;
    const std::size_t step = std::max<std::size_t>(1, (rows.size() + kMostRows - 1) / kMostRows);
    for (std::size_t row = 0; row < rows.size(); row += step) {
        at.push_back(rows[row].temperature);
        if (row + 1 < rows.size()) at.push_back((rows[row].temperature + rows[row + 1].temperature) / 2.0);
    }
    if (range->lowest > kBeyond) at.push_back(range->lowest - kBeyond);
    at.push_back(range->highest);
    at.push_back(range->highest + kBeyond);
    std::erase_if(at, [&](double kelvin) { return !CanStartAt(kelvin); });
    std::sort(at.begin(), at.end());
    at.erase(std::unique(at.begin(), at.end()), at.end());
    return at;
}

}  // namespace zelmat
