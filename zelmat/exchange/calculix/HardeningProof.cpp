#include <algorithm>
#include <cmath>

#include "zelmat/exchange/HardeningRows.h"
#include "zelmat/exchange/calculix/ProofModel.h"
#include "zelmat/properties/ElasticProperty.h"
#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

using mechanics::HardeningPoint;
using mechanics::HardeningTable;
using mechanics::OutsidePolicy;

constexpr double kIsotropic = 1e-4;
constexpr double kKinematic = 1e-3;
constexpr double kGreatestKinematicStrain = 0.01;
constexpr std::size_t kMostStrains = 5;

/// Newton's iteration goes on until nothing is left of the residual; the common bounds leave 0.5 %.
constexpr const char* kTightControls = "*CONTROLS, PARAMETERS=FIELD\n1e-9, 1e-8, , , , , ,\n";
constexpr const char* kStress = "*EL PRINT, ELSET=E%, FREQUENCY=100000\nS\n";

/// A hardening curve at one temperature, in K: points that the deck has, rising from plastic strain 0.
struct Curve {
    double kelvin;
    std::vector<double> strains;
};

std::vector<Curve> CurvesOf(const HardeningTable& table) {
    std::vector<Curve> curves;
    for (const HardeningPoint& point : table.Rows()) {
        if (curves.empty() || curves.back().kelvin != point.temperature)
            curves.push_back({point.temperature, {}});
        curves.back().strains.push_back(point.plasticStrain);
    }
    return curves;
}

/// At points, between and beyond them; of a law at points alone, which is where its table agrees with it.
std::vector<double> StrainsToProve(const std::vector<double>& points, bool law, bool kinematic) {
    std::vector<double> strains;
    const std::size_t step = std::max<std::size_t>(1, points.size() / kMostStrains);
    for (std::size_t at = 0; at < points.size(); at += step) {
        if (points[at] > 0.0) strains.push_back(points[at]);
        if (!law && at + 1 < points.size()) strains.push_back((points[at] + points[at + 1]) / 2.0);
    }
    if (law) return strains;
    strains.push_back(points.back() > 0.0 ? 1.5 * points.back() : 0.002);
    if (kinematic) {
        std::erase_if(strains, [](double strain) { return strain > kGreatestKinematicStrain; });
        strains.push_back(0.2 * kGreatestKinematicStrain);
        strains.push_back(0.9 * kGreatestKinematicStrain);
    }
    return strains;
}

/// Pulls one bar to one plastic strain at one temperature.
class HardeningTests {
public:
    HardeningTests(const ProofSubject& subject, const Block& elastic, const Block& plastic,
                   HardeningProperty property)
        : subject_(subject),
          elastic_(elastic),
          behavior_(BehaviorOf(plastic)),
          property_(std::move(property)),
          kinematic_(behavior_ == "plastic kinematic"),
          model_(subject.Model(behavior_)) {}

    std::optional<ProofModel> Model() {
        const auto* law = std::get_if<mechanics::JohnsonCook>(&property_.law);
        const auto tabulated = law ? std::optional(JohnsonCookCurves(*law)) : std::nullopt;
        if (tabulated && !tabulated->Ok()) return std::nullopt;
        const auto curves = CurvesOf(tabulated ? **tabulated : std::get<HardeningTable>(property_.law));
        const std::size_t step = std::max<std::size_t>(1, curves.size() / 6);
        for (std::size_t at = 0; at < curves.size(); at += step) {
            for (const double strain : StrainsToProve(curves[at].strains, law != nullptr, kinematic_)) {
                Pull(curves[at].kelvin, strain);
            }
        }
        if (!law && curves.size() > 1) {
            Pull(curves.front().kelvin - 10.0, curves.front().strains.back() / 2.0);
            Pull(curves.back().kelvin + 10.0, curves.back().strains.back() / 2.0);
            for (std::size_t at = 0; at + 1 < curves.size(); at += step) {
                Pull((curves[at].kelvin + curves[at + 1].kelvin) / 2.0, curves[at].strains.back() / 3.0);
            }
        }
        if (!law) Reverse(curves.front());  // between its points the table is not the law
        const std::string procedure =
            std::string(kinematic_ ? "*STEP, NLGEOM, INC=1000\n" : "*STEP, INC=1000\n") +
            "*STATIC\n0.1, 1.\n";
        model_.bars.EndStep(procedure + kTightControls, kStress);
        if (reversed_) {
            model_.bars.Prescribe(reversed_, BarModel::X1, 1, back_);
            model_.bars.EndStep(procedure, kStress);
        }
        return std::move(model_);
    }

private:
    void Pull(double kelvin, double plasticStrain) {
        const auto elastic = ElasticityAt(elastic_, kelvin, OutsidePolicy::CONSTANT);
        const auto flow = FlowStressAt(property_, plasticStrain, kelvin);
        const auto stress = flow.Ok() ? subject_.units.FromStored(flow->stress, "stress") : std::nullopt;
        if (!elastic.Ok() || !stress || flow->stress <= 0.0 || !subject_.CanStartAt(kelvin)) return;
        const double strain = plasticStrain + flow->stress / elastic->constants.youngsModulus;
        const int bar = model_.bars.Add(subject_.Temperature(kelvin));
        model_.bars.HoldAtOrigin(bar);
        model_.bars.Prescribe(bar, BarModel::X1, 1, kinematic_ ? std::expm1(strain) : strain);
        model_.expected.push_back({{behavior_,
                                    "tension, plastic strain " + NumberText(RoundedTo(plasticStrain, 6)) +
                                        ", " + subject_.TemperatureText(kelvin),
                                    "stress", subject_.units.For("stress").Spelling(), *stress, 0.0, *stress,
                                    kinematic_ ? kKinematic : kIsotropic},
                                   model_.Stress(bar, 0)});
    }

    /// Pulls to one plastic strain and pushes back by two: what tells kinematic hardening, whose yield stress
    /// moves along, from isotropic. Kinematic curves of more than one slope are left out: how the solver goes
    /// back along them is its own.
    void Reverse(const Curve& curve) {
        constexpr double kForth = 0.002, kBack = 0.004;
        const auto stress = [&](double plasticStrain) {
            const auto flow = FlowStressAt(property_, plasticStrain, curve.kelvin);
            return flow.Ok() ? flow->stress : std::nan("");
        };
        const bool straight = curve.strains.size() == 2 && curve.strains.back() >= kBack;
        const auto elastic = ElasticityAt(elastic_, curve.kelvin, OutsidePolicy::CONSTANT);
        if (!elastic.Ok() || (kinematic_ && !straight)) return;
        const double young = elastic->constants.youngsModulus, forth = stress(kForth);
        const double back =
            kinematic_ ? forth - 2.0 * stress(0.0) - (stress(kBack) - stress(0.0)) : -stress(kForth + kBack);
        const auto expected = subject_.units.FromStored(back, "stress");
        if (!expected || !std::isfinite(back)) return;
        const auto length = [&](double strain) { return kinematic_ ? std::expm1(strain) : strain; };
        reversed_ = model_.bars.Add(subject_.Temperature(curve.kelvin));
        model_.bars.HoldAtOrigin(reversed_);
        model_.bars.Prescribe(reversed_, BarModel::X1, 1, length(kForth + forth / young));
        back_ = length(kForth - kBack + back / young);
        model_.expected.push_back(
            {{behavior_,
              "reversal, plastic strain 0.002, then -0.002, " + subject_.TemperatureText(curve.kelvin),
              "stress", subject_.units.For("stress").Spelling(), *expected, 0.0, *expected,
              kinematic_ ? kKinematic : kIsotropic},
             model_.Stress(reversed_, 0, 2.0)});
    }

    const ProofSubject& subject_;
    const Block& elastic_;
    std::string behavior_;
    HardeningProperty property_;
    bool kinematic_;
    ProofModel model_;
    int reversed_ = 0;   // bar; 0: none
    double back_ = 0.0;  // its displacement in the second step
};

}  // namespace

std::optional<ProofModel> HardeningProof(const ProofSubject& subject) {
    const Block* elastic = subject.Find("elastic");
    const Block* plastic = subject.Find("plastic");
    if (!elastic || !plastic) return std::nullopt;
    auto property = HardeningOf(*plastic);
    if (!property.Ok()) return std::nullopt;
    return HardeningTests(subject, *elastic, *plastic, *property).Model();
}

}  // namespace zelmat
