#include "zelmat/exchange/calculix/Proof.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "tests/zelmat/exchange/SampleDeck.h"
#include "tests/zelmat/properties/SampleCard.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using zelmat::Proof;

zelmat::SolverProgram Ccx() {
    zelmat::Findings findings;
    return zelmat::FindSolver("ccx", 120, findings).value();
}

std::optional<Proof> ProofOf(const zelmat::Material& material, const zelmat::FitChoice& fit = {},
                             const std::string& units = "", std::optional<std::string> deck = {}) {
    zelmat::Findings findings;
    const auto chosen = zelmat::DeckUnits::Read(units, findings).value();
    auto proof = zelmat::ProveWithCalculix({material, fit, chosen, std::move(deck)}, Ccx(), findings);
    for (const auto& finding : findings.All()) {
        if (finding.kind == zelmat::FindingKind::ERROR || finding.kind == zelmat::FindingKind::UNREADABLE) {
            ADD_FAILURE() << zelmat::FindingLine(finding);
        }
    }
    return proof;
}

std::set<std::string> Proven(const Proof& proof) {
    std::set<std::string> behaviors;
    for (const auto& line : proof.lines) behaviors.insert(line.behavior);
    return behaviors;
}

std::set<std::string> Failing(const Proof& proof) {
    std::set<std::string> failing;
    for (const auto& line : proof.lines) {
        if (!line.Passes()) failing.insert(line.behavior);
    }
    return failing;
}

struct ProvenSample {
    const char* name;
    zelmat::FitChoice fit;
    std::set<std::string> behaviors;
};

void PrintTo(const ProvenSample& sample, std::ostream* out) {
    *out << sample.name << " " << sample.fit.model << " " << sample.fit.variant;
}

class EverySample : public testing::TestWithParam<ProvenSample> {};

TEST_P(EverySample, IsAsTheFormulasSayInTheSolver) {
    const auto proof = ProofOf(SampleCard(GetParam().name), GetParam().fit);

    ASSERT_TRUE(proof);
    EXPECT_EQ(Proven(*proof), GetParam().behaviors);
    for (const auto& line : proof->lines) {
        EXPECT_TRUE(line.Passes()) << line.behavior << ", " << line.load << ": " << line.quantity << " "
                                   << line.solver << ", not " << line.ours;
    }
}

const std::set<std::string> kMetal = {"elastic",           "plastic isotropic", "density",
                                      "thermal_expansion", "conductivity",      "specific_heat"};

std::set<std::string> RubberOf(const std::string& model) {
    return {"hyperelastic " + model, "density", "thermal_expansion", "conductivity", "specific_heat"};
}

INSTANTIATE_TEST_SUITE_P(
    Proof, EverySample,
    testing::Values(
        ProvenSample{
            "aluminium_2024_t351", {}, {"elastic", "plastic johnson-cook", "density", "specific_heat"}},
        ProvenSample{"aluminium_6061_t6", {}, kMetal},
        ProvenSample{"cfrp_t300_5208_quasi_isotropic", {}, {"elastic", "density"}},
        ProvenSample{"concrete_c30_37",
                     {},
                     {"elastic", "density", "thermal_expansion", "conductivity", "specific_heat"}},
        ProvenSample{"copper_ofhc",
                     {},
                     {"elastic", "plastic johnson-cook", "density", "conductivity", "specific_heat"}},
        ProvenSample{"foam_rohacell71", {}, {"elastic", "density"}},
        ProvenSample{"gasket_fibre_illustrative", {}, {"density"}},
        ProvenSample{"natural_rubber_treloar", {"OGDEN", ""}, RubberOf("OGDEN")},
        ProvenSample{"natural_rubber_treloar", {"NEO_HOOKE", ""}, RubberOf("NEO_HOOKE")},
        ProvenSample{"natural_rubber_treloar", {"MOONEY_RIVLIN", "equibiaxial"}, RubberOf("MOONEY_RIVLIN")},
        ProvenSample{"natural_rubber_treloar", {"MOONEY_RIVLIN", "uniaxial"}, RubberOf("MOONEY_RIVLIN")},
        ProvenSample{"natural_rubber_treloar", {"MOONEY_RIVLIN", "planar"}, RubberOf("MOONEY_RIVLIN")},
        ProvenSample{"natural_rubber_treloar", {"ARRUDA_BOYCE", ""}, RubberOf("ARRUDA_BOYCE")},
        ProvenSample{"natural_rubber_treloar", {"YEOH", ""}, RubberOf("YEOH")},
        ProvenSample{"natural_rubber_treloar", {"POLYNOMIAL", ""}, RubberOf("POLYNOMIAL")},
        ProvenSample{"silicone_rtv141", {"NEO_HOOKE", ""}, {"hyperelastic NEO_HOOKE"}},
        ProvenSample{"silicone_rtv141", {"MOONEY_RIVLIN", ""}, {"hyperelastic MOONEY_RIVLIN"}},
        ProvenSample{"silicone_rtv141", {"YEOH", ""}, {"hyperelastic YEOH"}},
        ProvenSample{"stainless_304", {}, kMetal},
        ProvenSample{"steel_4340",
                     {},
                     {"elastic", "plastic johnson-cook", "density", "conductivity", "specific_heat"}},
        ProvenSample{
            "steel_s235_kinematic", {}, {"elastic", "plastic kinematic", "density", "thermal_expansion"}},
        ProvenSample{"steel_s355", {}, kMetal},
        ProvenSample{"titanium_ti6al4v",
                     {},
                     {"elastic", "plastic johnson-cook", "density", "thermal_expansion", "conductivity",
                      "specific_heat"}},
        ProvenSample{"user_routine_illustrative", {}, {"density"}}));

TEST(Proof, HoldsInEverySystemOfUnits) {
    for (const char* units : {"mm-t-s", "mm-kg-ms", "us"}) {
        const auto proof = ProofOf(SampleCard("steel_s235_kinematic"), {}, units);
        ASSERT_TRUE(proof) << units;
        EXPECT_THAT(Failing(*proof), IsEmpty()) << units;
    }
}

TEST(Proof, HoldsForACompressibleRubberOverTemperature) {
    const auto material = StuffWith(
        R"("hyperelastic": [{"model": "REDUCED_POLYNOMIAL", "order": 2, "temperature_dependent": true,
            "columns": ["C10", "C20", "D1", "D2", "temperature"],
            "rows": [[5e5, 1e4, 2e-7, 1e-7, 300], [4e5, 2e4, 1e-7, 3e-7, 350]]}])");
    const auto proof = ProofOf(material);
    ASSERT_TRUE(proof);
    EXPECT_GT(proof->lines.size(), 60U);
    EXPECT_THAT(Failing(*proof), IsEmpty());
}

/// 2892 degF is hotter than the solver can begin.
TEST(Proof, LeavesOutTemperaturesAtWhichTheSolverCannotBegin) {
    const auto proof = ProofOf(SampleCard("titanium_ti6al4v"), {}, "us");
    ASSERT_TRUE(proof);
    EXPECT_THAT(Failing(*proof), IsEmpty());
    EXPECT_THAT(ProofOf(SampleCard("concrete_c30_37"), {}, "us")->notProven,
                testing::Contains("conductivity above 2147.48 degF: no run of CalculiX can begin there"));
}

TEST(Proof, SaysWhatItDoesNotProve) {
    EXPECT_THAT(ProofOf(SampleCard("user_routine_illustrative"))->notProven,
                testing::ElementsAre("user_material MECHANICAL: only its own routine knows what it answers"));
    EXPECT_THAT(ProofOf(SampleCard("copper_ofhc"))->notProven, IsEmpty());
}

/// A deck with one thing wrong.
struct Seed {
    const char* sample;
    const char* right;
    const char* wrong;
    std::set<std::string> found;
};

TEST(Proof, FindsEverySeededMistake) {
    const Seed seeds[] = {
        {"steel_s235_kinematic", "*ELASTIC\n2.1e+11, 0.3", "*ELASTIC\n2.1e+11, 0.33", {"elastic"}},
        {"steel_s235_kinematic", "*ELASTIC\n2.1e+11, 0.3", "*ELASTIC\n2.100003e+11, 0.3", {"elastic"}},
        {"steel_s235_kinematic", "*DENSITY\n7850", "*DENSITY\n7.850", {"density"}},
        {"steel_s355", ", ZERO=293.15", "", {"thermal_expansion"}},
        {"steel_s235_kinematic", "341060606, 0.05", "341060606, 0.06", {"plastic kinematic"}},
        {"steel_s235_kinematic", ", HARDENING=KINEMATIC", "", {"plastic kinematic"}},
        // A joule is a thousand millijoules; and the columns of specific heat and temperature change places.
        {"copper_ofhc", "*SPECIFIC HEAT\n383", "*SPECIFIC HEAT\n0.383", {"specific_heat"}},
        {"copper_ofhc", "*SPECIFIC HEAT\n383", "*SPECIFIC HEAT\n383.01", {"specific_heat"}},
        {"steel_s355",
         "*SPECIFIC HEAT\n439.802, 293.15\n",
         "*SPECIFIC HEAT\n293.15, 439.802\n",
         {"specific_heat"}},
        // The columns of conductivity and temperature change places.
        {"steel_s355",
         "*CONDUCTIVITY\n53.334, 293.15\n",
         "*CONDUCTIVITY\n293.15, 53.334\n",
         {"conductivity"}},
    };
    for (const Seed& seed : seeds) {
        const auto material = SampleCard(seed.sample);
        std::string deck = WithoutComments(Exported("calculix", {material}).text);
        const std::size_t at = deck.find(seed.right);
        ASSERT_NE(at, std::string::npos) << seed.right;
        deck.replace(at, std::string(seed.right).size(), seed.wrong);

        const auto proof = ProofOf(material, {}, "", deck);

        ASSERT_TRUE(proof) << seed.wrong;
        EXPECT_EQ(Failing(*proof), seed.found) << seed.wrong;
    }
}

TEST(Proof, FindsTheSolversOwnDOfAnIncompressibleRubber) {
    const auto material = SampleCard("silicone_rtv141");
    std::string deck = WithoutComments(Exported("calculix", {material}).text);
    deck = deck.substr(0, deck.rfind(", ")) + ", 0.\n";
    EXPECT_EQ(Failing(*ProofOf(material, {}, "", deck)), std::set<std::string>{"hyperelastic NEO_HOOKE"});
}

/// Boron/epoxy-like, all nine constants different from each other.
const char* const kPly = R"("other_properties": {"E1": 204e9, "E2": 18.5e9, "E3": 17.5e9, "nu12": 0.23,
    "nu13": 0.25, "nu23": 0.4, "G12": 5.59e9, "G13": 5.2e9, "G23": 4.8e9, "alpha1": 6.1e-6, "alpha2": 30.3e-6})";

TEST(Proof, HoldsForPlyConstantsInTheThreeDirectionsAndPlanes) {
    for (const char* units : {"si", "mm-t-s"}) {
        const auto proof = ProofOf(StuffWith(kPly), {}, units);
        ASSERT_TRUE(proof) << units;
        EXPECT_EQ(proof->lines.size(), 14U);
        EXPECT_EQ(Proven(*proof), std::set<std::string>{"ply constants"});
        EXPECT_THAT(Failing(*proof), IsEmpty()) << units;
    }
}

/// nu21 = nu12 E2/E1 = 0.0208578 in the place of nu12, and G12 in that of G13.
TEST(Proof, FindsPlyConstantsInEachOthersPlaces) {
    const std::string right = "2.04e+11, 1.85e+10, 1.75e+10, 0.23, 0.25, 0.4, 5.59e+09, 5.2e+09\n4.8e+09\n";
    const std::string deck = WithoutComments(Exported("calculix", {StuffWith(kPly)}).text);
    const std::size_t at = deck.find(right);
    ASSERT_NE(at, std::string::npos) << deck;
    for (const std::string wrong :
         {"2.04e+11, 1.85e+10, 1.75e+10, 0.0208578, 0.25, 0.4, 5.59e+09, 5.2e+09\n4.8e+09\n",
          "2.04e+11, 1.85e+10, 1.75e+10, 0.23, 0.25, 0.4, 5.2e+09, 5.59e+09\n4.8e+09\n",
          "2.04e+11, 1.75e+10, 1.85e+10, 0.23, 0.25, 0.4, 5.59e+09, 5.2e+09\n4.8e+09\n"}) {
        std::string seeded = deck;
        seeded.replace(at, right.size(), wrong);
        EXPECT_EQ(Failing(*ProofOf(StuffWith(kPly), {}, "", seeded)), std::set<std::string>{"ply constants"})
            << wrong;
    }
}

TEST(Proof, TakesNoNumberForAFailure) {
    const zelmat::ProofLine line{"elastic", "", "", "", 1.0, std::nan(""), 1.0, 1e-6};
    EXPECT_FALSE(line.Passes());
}

}  // namespace
