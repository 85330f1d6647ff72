#include "zelmat/properties/HyperelasticProperty.h"

#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ValueAt.h"

namespace zelmat {

using mechanics::Outcome;
using mechanics::Refusal;

Outcome<HyperelasticProperty> HyperelasticProperty::Of(const Block& fit) {
    const auto model = mechanics::HyperelasticModelOf(fit.values.Get<std::string>("model").value_or(""));
    const auto order = fit.values.Get<int>("order");
    if (!model || !order || *order < 1 || fit.tables.empty()) {
        return Refusal{"the fit has no model with an order and coefficients"};
    }
    const Table& table = fit.tables.front();
    for (const std::string& name : mechanics::CoefficientNames(*model, *order)) {
        if (!table.Find(name)) return Refusal{"the table has no column " + name};
    }
    auto coefficients = OverTemperature(table);
    if (!coefficients.Ok()) return coefficients.Refused();
    return HyperelasticProperty(*model, *order, *coefficients);
}

Outcome<HyperelasticAt> HyperelasticProperty::At(std::optional<double> temperature,
                                                 mechanics::OutsidePolicy policy) const {
    const auto row = ValueAt(coefficients_, temperature, policy);
    if (!row.Ok()) return row.Refused();
    const auto end =
        row->values.begin() + static_cast<std::ptrdiff_t>(mechanics::CoefficientNames(model_, order_).size());
    const std::vector<double> coefficients(row->values.begin(), end);
    const auto energy = mechanics::MakeStrainEnergy(model_, order_, coefficients);
    if (!energy.Ok()) return energy.Refused();
    return HyperelasticAt{.energy = *energy,
                          .volumetric = mechanics::VolumetricEnergy(model_, {end, row->values.end()}),
                          .coefficients = coefficients,
                          .notes = row->notes};
}

}  // namespace zelmat
