#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/TableLooks.h"
#include "zelmat/materials/StoredMeaning.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr const char* kJohnsonCook =
    "G. R. Johnson, W. H. Cook, Proc. 7th Int. Symp. on Ballistics, The Hague, 1983";
constexpr const char* kPlasticity = "definition of the plastic strain: 0 at yield, never decreasing";

/// Calls `visit` for each hardening curve; nothing for Johnson-Cook's constants.
template <class Visit>
void ForEachHardeningCurve(const Material& material, Visit visit) {
    const Block* block = material.Find("plastic");
    if (!block || !IsInStoredMeaning(*block)) return;
    for (const Table& table : block->tables) {
        const Column* stress = table.Find("yield_stress");
        const Column* strain = table.Find("plastic_strain");
        if (!stress || !strain) continue;
        for (const Curve& curve : CurvesOf(table, {"temperature"})) {
            visit(*block, table, *stress, *strain, curve);
        }
    }
}

/// Curves that can be converted have been when rules look.
void LookAtConversion(const Material& material, CheckReport& report) {
    const Block* block = material.Find("plastic");
    if (!block || IsInStoredMeaning(*block)) return;
    Findings why;
    static_cast<void>(ToStoredMeaning(*block, material, why));
    for (const Finding& finding : why.All()) {
        if (finding.kind == FindingKind::ERROR) report.Add(finding.place.line, finding.text, finding.details);
    }
}

void LookAtFirstStrain(const Material& material, CheckReport& report) {
    const auto isWrong = RuleOfBehavior("plastic", "", "first-plastic-strain").broken;
    ForEachHardeningCurve(material, [&](const Block& block, const Table& table, const Column&,
                                        const Column& strain, const Curve& curve) {
        if (isWrong(strain.values[curve.first])) report.AddValue(block, table, strain, curve.first);
    });
}

void LookAtStrainOrder(const Material& material, CheckReport& report) {
    ForEachHardeningCurve(material, [&](const Block& block, const Table& table, const Column&,
                                        const Column& strain, const Curve& curve) {
        for (std::size_t row = curve.first + 1; row < curve.end; ++row) {
            if (strain.values[row] > strain.values[row - 1]) continue;
            report.AddValue(block, table, strain, row,
                            {"the row before has " + WithUnit(strain.values[row - 1], "-")});
        }
    });
}

void LookAtSoftening(const Material& material, CheckReport& report) {
    ForEachHardeningCurve(material, [&](const Block& block, const Table& table, const Column& stress,
                                        const Column&, const Curve& curve) {
        for (std::size_t row = curve.first + 1; row < curve.end; ++row) {
            if (!(stress.values[row] < stress.values[row - 1])) continue;
            report.AddValue(block, table, stress, row,
                            {"the row before has " + WithUnit(stress.values[row - 1], "Pa")});
        }
    });
}

void LookAtMelting(const Material& material, CheckReport& report) {
    const Block* block = material.Find("plastic");
    if (!block) return;
    for (const Table& table : block->tables) {
        const Column* melting = table.Find("melting_temperature");
        const Column* transition = table.Find("transition_temperature");
        if (!melting || !transition) continue;
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            if (melting->values[row] > transition->values[row] && transition->values[row] > 0.0) continue;
            report.AddValue(*block, table, *melting, row,
                            {"the transition temperature is " + WithUnit(transition->values[row], "K")});
        }
    }
}

}  // namespace

CheckTopic HardeningRules() {
    const auto above0 = [](const char* column) { return EachValue({{"plastic", column}}, IsNotPositive); };
    const TableRule& first = RuleOfBehavior("plastic", "", "first-plastic-strain");
    return {
        .title = "Hardening",
        .rules = {
            {.code = "yield-stress",
             .says = "The yield stress is positive.",
             .bound = "has to be above 0",
             .source = "definition of the yield stress",
             .look = above0("yield_stress")},
            {.code = "unconvertible-curve",
             .says =
                 "A curve of engineering stress or total strain can be converted to true stress over plastic "
                 "strain: Young's modulus is known at its temperature, and it begins before yield. The other "
                 "rules look at the converted curve.",
             .bound = "Young's modulus there and the yield point are needed",
             .source = kPlasticity,
             .look = LookAtConversion},
            {.code = first.code,
             .says = "The first plastic strain of each temperature's curve is exactly 0.",
             .bound = first.bound,
             .source = kPlasticity,
             .look = LookAtFirstStrain},
            {.code = "plastic-strain-order",
             .says = "Plastic strains increase along each temperature's curve.",
             .bound = "has to be above the one before",
             .source = kPlasticity,
             .look = LookAtStrainOrder},
            {.kind = FindingKind::WARNING,
             .code = "softening",
             .says = "The yield stress does not fall along a curve.",
             .bound = "hardening was expected",
             .source = "D. C. Drucker's postulate, J. Appl. Mech. 26, 1959: a falling curve is unstable",
             .look = LookAtSoftening},
            {.code = "johnson-cook-A",
             .says = "A of Johnson-Cook's law is positive.",
             .bound = "has to be above 0",
             .source = kJohnsonCook,
             .look = above0("A")},
            {.code = "johnson-cook-B",
             .says = "B of Johnson-Cook's law is not negative.",
             .bound = "has to be 0 or above",
             .source = kJohnsonCook,
             .look = EachValue({{"plastic", "B"}}, [](double value) { return !(value >= 0.0); })},
            {.code = "johnson-cook-n",
             .says = "The exponent n of Johnson-Cook's law is positive.",
             .bound = "has to be above 0",
             .source = kJohnsonCook,
             .look = above0("n")},
            {.kind = FindingKind::WARNING,
             .code = "johnson-cook-n-high",
             .says = "The exponent n of Johnson-Cook's law is at most 1.",
             .bound = "hardly ever above 1",
             .source = kJohnsonCook,
             .look = EachValue({{"plastic", "n"}}, [](double value) { return value > 1.0; })},
            {.code = "johnson-cook-m",
             .says = "The exponent m of Johnson-Cook's law is positive.",
             .bound = "has to be above 0",
             .source = kJohnsonCook,
             .look = above0("m")},
            {.code = "johnson-cook-temperatures",
             .says = "The melting temperature of Johnson-Cook's law lies above the transition temperature, "
                     "and that above 0 K.",
             .bound = "has to be above the transition temperature, and that above 0 K",
             .source = kJohnsonCook,
             .look = LookAtMelting},
        }};
}

}  // namespace zelmat
