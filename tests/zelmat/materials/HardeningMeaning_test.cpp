#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kSteel = R"("elastic": {"temperature_dependent": false,
    "columns": ["youngs_modulus", "poissons_ratio"], "rows": [[210e9, 0.3]]},)";

/// A hardening curve from line 5 on, with what the card says of it and of elasticity.
StoredCard Curve(const std::string& measures, const std::string& rows, const std::string& elastic = kSteel) {
    return StoredCard("{\"name\": \"x\", " + elastic + R"(
"plastic": {"hardening": "isotropic", )" +
                      measures + R"("temperature_dependent": false,
"columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [
)" + rows + "]}}");
}

std::vector<std::vector<double>> StoredRows(const StoredCard& stored) {
    return Rows(stored.Block("plastic").tables.at(0));
}

auto Point(double stress, double strain) {
    return ElementsAre(DoubleNear(stress, 1e-6 * stress), DoubleNear(strain, 1e-10), 293.15);
}

TEST(HardeningMeaning, IsTrueStressOverPlasticStrainWhenNothingIsSaid) {
    for (const char* measures : {"", R"("stress": "true", "strain": "plastic", )"}) {
        const StoredCard stored = Curve(measures, "[235e6, 0, 293.15], [341e6, 0.05, 293.15]");
        EXPECT_THAT(StoredRows(stored),
                    ElementsAre(ElementsAre(235e6, 0.0, 293.15), ElementsAre(341e6, 0.05, 293.15)));
        EXPECT_THAT(stored.findings, IsEmpty());
    }
}

// 0.10, 500 MPa with E 210 GPa is 550 MPa at plastic strain 0.0926911322.
TEST(HardeningMeaning, IsConvertedFromEngineeringStressOverTotalStrain) {
    const StoredCard stored = Curve(R"("stress": "engineering", "strain": "total", )",
                                    "[210e6, 0.001, 293.15],\n[500e6, 0.1, 293.15]");

    EXPECT_THAT(StoredRows(stored), ElementsAre(Point(210.21e6, 0.0), Point(550e6, 0.0926911322)));
    EXPECT_EQ(StoredRows(stored)[0][1], 0.0);
    EXPECT_THAT(stored.findings,
                ElementsAre("card.json:5: note[hardening-converted]: the curve of plastic at 293.15 K was "
                            "converted to true stress over plastic strain (engineering stress over total "
                            "strain given, Young's modulus 2.1e+11 Pa)"));
}

TEST(HardeningMeaning, IsConvertedFromTrueStressOverTotalStrain) {
    const StoredCard stored =
        Curve(R"("strain": "total", )", "[210e6, 0.001, 293.15], [420e6, 0.052, 293.15]");

    EXPECT_THAT(StoredRows(stored), ElementsAre(Point(210e6, 0.0), Point(420e6, 0.05)));
}

TEST(HardeningMeaning, LeavesPointsBeforeYieldOutAndSaysSo) {
    const StoredCard stored =
        Curve(R"("strain": "total", )",
              "[0, 0, 293.15], [105e6, 0.0005, 293.15],\n[210e6, 0.001, 293.15],\n[420e6, 0.052, 293.15]");

    EXPECT_THAT(StoredRows(stored), ElementsAre(Point(210e6, 0.0), Point(420e6, 0.05)));
    ASSERT_EQ(stored.findings.size(), 2u);
    EXPECT_EQ(stored.findings[1],
              "card.json:5: warning[before-yield]: 2 points of the curve of plastic at 293.15 K before yield "
              "were left out (the first stored one is the yield point)");
}

TEST(HardeningMeaning, NeedsYoungsModulusAtTheCurvesTemperature) {
    const StoredCard none = Curve(R"("strain": "total", )", "[210e6, 0.001, 293.15]", "");
    EXPECT_THAT(
        none.findings,
        ElementsAre("card.json:4: error[no-youngs-modulus]: the curve of plastic at 293.15 K cannot "
                    "be converted without Young's modulus there (the material has no elastic block)"));

    const StoredCard outside = Curve(R"("strain": "total", )", "[210e6, 0.001, 293.15]",
                                     R"("elastic": {"temperature_dependent": true,
"columns": ["youngs_modulus", "poissons_ratio", "temperature"],
"rows": [[210e9, 0.3, 300], [190e9, 0.3, 500]]},)");
    ASSERT_EQ(outside.findings.size(), 1u);
    EXPECT_THAT(outside.findings[0], testing::HasSubstr("error[no-youngs-modulus]"));
}

TEST(HardeningMeaning, NeedsAModulusAboveZero) {
    const StoredCard stored = Curve(R"("strain": "total", )", "[210e6, 0.001, 293.15]",
                                    R"("elastic": {"temperature_dependent": false,
"columns": ["youngs_modulus", "poissons_ratio"], "rows": [[0, 0.3]]},)");
    ASSERT_EQ(stored.findings.size(), 1u);
    EXPECT_THAT(stored.findings[0],
                testing::HasSubstr("error[no-youngs-modulus]: the curve of plastic at 293.15 K "
                                   "cannot be converted without Young's modulus there (it "
                                   "is not above 0)"));
}

TEST(HardeningMeaning, TakesYoungsModulusBetweenTheRowsOfTheElasticTable) {
    const StoredCard stored =
        Curve(R"("strain": "total", )", "[200e6, 0.001, 293.15], [200e6, 0.051, 293.15]",
              R"("elastic": {"temperature_dependent": true,
"columns": ["youngs_modulus", "poissons_ratio", "temperature"],
"rows": [[210e9, 0.3, 243.15], [190e9, 0.3, 343.15]]},)");

    EXPECT_THAT(StoredRows(stored), ElementsAre(Point(200e6, 0.0), Point(200e6, 0.05)));
}

TEST(HardeningMeaning, RefusesACurveWithoutItsYieldPoint) {
    const StoredCard stored =
        Curve(R"("strain": "total", )", "[210e6, 0.003, 293.15], [420e6, 0.052, 293.15]");

    ASSERT_EQ(stored.findings.size(), 1u);
    EXPECT_THAT(stored.findings[0],
                testing::HasSubstr("error[no-yield-point]: the curve of plastic at 293.15 "
                                   "K begins beyond yield, at plastic strain 0.002"));
}

}  // namespace
