#include <array>
#include <cmath>

#include "zelmat/exchange/calculix/CompressibleStress.h"
#include "zelmat/exchange/calculix/ProofModel.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"
#include "zelmat/mechanics/hyperelastic/Stability.h"
#include "zelmat/properties/HyperelasticProperty.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

using mechanics::LoadingMode;
using mechanics::OutsidePolicy;

constexpr double kTolerance = 1e-3;

/// Near rest the solver's Ogden stresses are noise of a millionth of the bulk modulus, below which no
/// residual gets: the first increments are not small, and the bound on the residual is one that noise meets.
constexpr const char* kProcedure =
    "*STEP, NLGEOM, INC=10000\n*STATIC\n0.1, 1., 1e-6, 0.1\n*CONTROLS, PARAMETERS=FIELD\n1e-4, 1e-3, , , , , "
    ",\n";
constexpr const char* kStress = "*EL PRINT, ELSET=E%, FREQUENCY=100000\nS\n";

const std::vector<double>& Loads(LoadingMode mode) {
    static const std::vector<double> stretches = {0.7, 0.9, 1.1, 1.3, 1.6, 2.0};
    static const std::vector<double> shears = {0.1, 0.5, 1.0};
    return mode == LoadingMode::SIMPLE_SHEAR ? shears : stretches;
}

/// Well inside the stretches at which the potential is stable: past them a solver may find another state.
bool IsSafe(const mechanics::StrainEnergy& energy, LoadingMode mode, double x) {
    const auto limits = FindStabilityLimits(energy, mechanics::StabilityCriterion::DRUCKER, mode,
                                            mechanics::DefaultStabilityRange(mode));
    if (!limits.stableAtRest) return false;
    const double margin = 0.03;
    return (!limits.compression || x > *limits.compression * (1.0 + margin)) &&
           (!limits.tension || x < *limits.tension * (1.0 - margin)) &&
           mechanics::Respond(energy, mode, x).Ok();
}

void Load(BarModel& bars, int bar, LoadingMode mode, double x) {
    if (mode == LoadingMode::SIMPLE_SHEAR) return bars.Shear(bar, x);
    bars.HoldAtOrigin(bar);
    bars.Prescribe(bar, BarModel::X1, 1, x - 1.0);
    if (mode == LoadingMode::EQUIBIAXIAL) bars.Prescribe(bar, BarModel::Y1, 2, x - 1.0);
    if (mode == LoadingMode::PLANAR) bars.Prescribe(bar, BarModel::Y1, 2, 0.0);
}

void AddLoads(ProofModel& model, const ProofSubject& subject, const HyperelasticAt& material,
              LoadingMode mode, double kelvin) {
    for (const double x : Loads(mode)) {
        if (!IsSafe(*material.energy, mode, x)) continue;
        const auto stored = CompressibleStress(material, mode, x);
        const auto stress = stored ? subject.units.FromStored(*stored, "stress") : std::nullopt;
        if (!stress) continue;
        const int bar = model.bars.Add(subject.Temperature(kelvin));
        Load(model.bars, bar, mode, x);
        const bool shear = mode == LoadingMode::SIMPLE_SHEAR;
        model.expected.push_back({{model.name,
                                   std::string(Keyword(mode)) + ", " + (shear ? "amount " : "stretch ") +
                                       NumberText(x) + ", " + subject.TemperatureText(kelvin),
                                   shear ? "shear stress" : "true stress",
                                   subject.units.For("stress").Spelling(), *stress, 0.0, *stress, kTolerance},
                                  model.Stress(bar, shear ? 4 : 0)});
    }
}

}  // namespace

std::vector<ProofModel> HyperelasticProofs(const ProofSubject& subject) {
    const Block* block = subject.Find("hyperelastic");
    if (!block) return {};
    const auto property = HyperelasticProperty::Of(*block);
    if (!property.Ok()) return {};
    std::vector<ProofModel> models;
    for (const LoadingMode mode :
         {LoadingMode::UNIAXIAL, LoadingMode::EQUIBIAXIAL, LoadingMode::PLANAR, LoadingMode::SIMPLE_SHEAR}) {
        ProofModel model = subject.Model("hyperelastic " + std::string(Keyword(property->Model())));
        for (const double kelvin : subject.Temperatures(property->Coefficients())) {
            const auto material = property->At(kelvin, OutsidePolicy::CONSTANT);
            if (material.Ok()) AddLoads(model, subject, *material, mode, kelvin);
        }
        if (model.expected.empty()) continue;
        model.bars.EndStep(kProcedure, kStress);
        models.push_back(std::move(model));
    }
    return models;
}

}  // namespace zelmat
