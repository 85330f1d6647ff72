#include "zelmat/materials/DerivedValues.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::IsEmpty;
using zelmat::Value;

/// "title at temperature: value unit" of what the first fit of a card means.
std::vector<std::string> Meaning(const std::string& fit) {
    const StoredCard stored("{\"name\": \"x\", \"hyperelastic\": [{" + fit + "}]}");
    std::vector<std::string> lines;
    for (const auto& derived : zelmat::DerivedValues(stored.Block("hyperelastic"))) {
        std::string line = derived.name;
        if (derived.temperature) line += " at " + std::to_string(*derived.temperature);
        const auto* number = std::get_if<double>(&derived.value);
        line += ": " + (number ? std::to_string(*number) : std::get<std::string>(derived.value));
        lines.push_back(line + (derived.unit.empty() ? "" : " " + derived.unit));
    }
    return lines;
}

TEST(DerivedValues, AreTheFormulaAndTheModuliOfAPotential) {
    EXPECT_THAT(
        Meaning(R"("model": "MOONEY_RIVLIN", "order": 1, "temperature_dependent": false,
                           "columns": ["C10", "C01", "D1"], "rows": [[400000, 100000, 1e-9]])"),
        testing::ElementsAre("strain_energy: W = C10 (I1-3) + C01 (I2-3)",
                             "volumetric_energy: U = (J-1)^2/D1", "initial_shear_modulus: 1000000.000000 Pa",
                             "initial_bulk_modulus: 2000000000.000000 Pa"));
}

TEST(DerivedValues, NameTheConventionOfOgden) {
    EXPECT_THAT(Meaning(R"("model": "OGDEN", "order": 1, "temperature_dependent": false,
                           "columns": ["mu_1", "alpha_1"], "rows": [[500000, 3]])"),
                testing::ElementsAre(
                    "strain_energy: W = sum (2 mu_i/alpha_i^2) (l1^alpha_i + l2^alpha_i + l3^alpha_i - 3)",
                    "ogden_convention: 2mu/alpha^2", "initial_shear_modulus: 500000.000000 Pa",
                    "initial_bulk_modulus: none, incompressible"));
}

TEST(DerivedValues, NameTheEnergyOfAChangeOfVolume) {
    EXPECT_EQ(Meaning(R"("model": "ARRUDA_BOYCE", "temperature_dependent": false,
                         "columns": ["mu", "lambda_m", "D"], "rows": [[4e5, 3, 1e-9]])")
                  .at(1),
              "volumetric_energy: U = ((J^2-1)/2 - ln J)/D");
    EXPECT_EQ(Meaning(R"("model": "REDUCED_POLYNOMIAL", "temperature_dependent": false,
                         "columns": ["C10", "C20", "D1", "D2"], "rows": [[4e5, 1e3, 1e-9, 1e-8]])")
                  .at(1),
              "volumetric_energy: U = sum (J-1)^(2i)/D_i, i = 1 to 2");
}

TEST(DerivedValues, AreToldForEveryTemperature) {
    const auto lines = Meaning(R"("model": "NEO_HOOKE", "order": 1, "temperature_dependent": true,
        "columns": ["C10", "D1", "temperature"], "rows": [[500000, 2e-9, 293], [400000, 2e-9, 353]])");
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines[2], "initial_shear_modulus at 293.000000: 1000000.000000 Pa");
    EXPECT_EQ(lines[4], "initial_shear_modulus at 353.000000: 800000.000000 Pa");
    EXPECT_EQ(lines[5], "initial_bulk_modulus at 353.000000: 1000000000.000000 Pa");
}

TEST(DerivedValues, SayWhyThereIsNoNumber) {
    const auto lines = Meaning(R"("model": "OGDEN", "order": 1, "temperature_dependent": false,
                                  "columns": ["mu_1", "alpha_1"], "rows": [[500000, 0]])");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_THAT(lines[2], testing::HasSubstr("alpha"));
}

TEST(DerivedValues, SayWhatAHardeningCurveIsAndNothingOfJohnsonCook) {
    const StoredCard curve(
        R"({"name": "x", "plastic": {"hardening": "kinematic", "temperature_dependent": false,
        "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[235e6, 0, 293.15]]}})");
    const auto values = zelmat::DerivedValues(curve.Block("plastic"));
    ASSERT_EQ(values.size(), 1u);
    EXPECT_EQ(values[0].value, Value(std::string("true stress over plastic strain")));

    const StoredCard johnsonCook(R"({"name": "x", "plastic": {"hardening": "johnson-cook",
        "temperature_dependent": false,
        "columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"],
        "rows": [[9e7, 2.92e8, 0.31, 1.09, 1356, 298]]}})");
    EXPECT_THAT(zelmat::DerivedValues(johnsonCook.Block("plastic")), IsEmpty());
}

}  // namespace
