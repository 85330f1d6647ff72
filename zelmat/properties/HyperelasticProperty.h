#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"
#include "zelmat/mechanics/hyperelastic/VolumetricEnergy.h"
#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat {

/// A potential with the coefficients of one temperature. Stresses in Pa, compressibilities in 1/Pa; OGDEN in
/// the form 2 mu/alpha^2.
struct HyperelasticAt {
    std::shared_ptr<const mechanics::StrainEnergy> energy;  ///< the part without change of volume
    mechanics::VolumetricEnergy volumetric;
    std::vector<double> coefficients;  ///< of `energy`, as mechanics::CoefficientNames
    std::vector<std::string> notes;    ///< "interpolated between rows"
};

/// The hyperelasticity of a material as the formulas take it, over temperature. Immutable.
class HyperelasticProperty {
public:
    /// `fit`: a hyperelastic block in the stored meaning, as UsedBlock gives it. Refused for a model that
    /// there is not, and where its table lacks a number or is none over temperature.
    static mechanics::Outcome<HyperelasticProperty> Of(const Block& fit);

    mechanics::HyperelasticModel Model() const { return model_; }
    int Order() const { return order_; }

    /// A row: the coefficients as mechanics::CoefficientNames, then D1, D2, ...
    const mechanics::TemperatureTable& Coefficients() const { return coefficients_; }

    /// Between rows each coefficient is interpolated, as solvers do. `temperature` in K; it may be left out
    /// where nothing depends on it. Refused as ValueAt and MakeStrainEnergy refuse.
    mechanics::Outcome<HyperelasticAt> At(std::optional<double> temperature,
                                          mechanics::OutsidePolicy policy) const;

private:
    HyperelasticProperty(mechanics::HyperelasticModel model, int order,
                         mechanics::TemperatureTable coefficients)
        : model_(model), order_(order), coefficients_(std::move(coefficients)) {}

    mechanics::HyperelasticModel model_;
    int order_;
    mechanics::TemperatureTable coefficients_;
};

}  // namespace zelmat
