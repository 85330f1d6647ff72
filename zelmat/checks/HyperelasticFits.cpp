#include "zelmat/checks/HyperelasticFits.h"

#include <cmath>
#include <utility>

#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

namespace zelmat {

void ForEachFit(const Material& material, const std::function<void(const Block&, const Table&)>& visit) {
    for (const auto* blocks : {&material.fits, &material.blocks}) {
        for (const Block& block : *blocks) {
            if (block.kind->name != "hyperelastic") continue;
            for (const Table& table : block.tables) visit(block, table);
        }
    }
}

std::optional<EnergyOutcome> EnergyOfRow(const Block& fit, const Table& table, std::size_t row) {
    const auto keyword = fit.values.Get<std::string>("model");
    const auto order = fit.values.Get<int>("order");
    const auto model = keyword ? mechanics::HyperelasticModelOf(*keyword) : std::nullopt;
    if (!model || !order) return std::nullopt;
    std::vector<double> coefficients;
    for (const std::string& name : mechanics::CoefficientNames(*model, *order)) {
        const Column* column = table.Find(name);
        if (!column || std::isnan(column->values[row])) return std::nullopt;
        coefficients.push_back(column->values[row]);
    }
    return mechanics::MakeStrainEnergy(*model, *order, coefficients);
}

}  // namespace zelmat
