#include <gmock/gmock.h>

#include "framework/KORBaseUnknown.h"
#include "tests/zelmat/support/BehaviorBlocks.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/materials/MaterialReader.h"
#include "zelmat/materials/MaterialWriter.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MaterialPasses, WriteToTheStoreAndReadFromItAgain) {
    const StoredCard stored(R"({"name": "x",
        "density": {"temperature_dependent": true, "columns": ["density", "temperature"],
                    "rows": [[7850, 293.15], [7700, 773.15]]},
        "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"],
                              "rows": [[1.2e-5]], "reference_temperature": 300}})");

    EXPECT_THAT(stored.findings, IsEmpty());
    EXPECT_THAT(stored.material.Names(true), ElementsAre("density", "thermal_expansion"));
    const auto& density = stored.Block("density").tables.at(0);
    EXPECT_TRUE(density.temperatureDependent);
    EXPECT_THAT(Rows(density), ElementsAre(ElementsAre(7850.0, 293.15), ElementsAre(7700.0, 773.15)));
    const auto& expansion = stored.Block("thermal_expansion");
    EXPECT_FALSE(expansion.tables.at(0).temperatureDependent);
    EXPECT_THAT(Rows(expansion.tables.at(0)), ElementsAre(ElementsAre(1.2e-5)));
    EXPECT_EQ(expansion.values.Get<double>("reference_temperature"), 300.0);
}

TEST(MaterialPasses, StoreBothHardeningCurves) {
    for (const char* hardening : {"isotropic", "kinematic"}) {
        const StoredCard stored(std::string(R"({"name": "x", "plastic": {"hardening": ")") + hardening + R"(",
            "temperature_dependent": false, "columns": ["yield_stress", "plastic_strain", "temperature"],
            "rows": [[235e6, 0, 293.15], [341e6, 0.05, 293.15]]}})");

        EXPECT_THAT(stored.findings, IsEmpty());
        const auto& plastic = stored.Block("plastic");
        EXPECT_TRUE(plastic.enabled);
        EXPECT_EQ(plastic.values.Get<std::string>("hardening"), hardening);
        EXPECT_THAT(Rows(plastic.tables.at(0)),
                    ElementsAre(ElementsAre(235e6, 0.0, 293.15), ElementsAre(341e6, 0.05, 293.15)));
    }
}

TEST(MaterialPasses, StoreJohnsonCook) {
    const StoredCard stored(R"({"name": "x", "plastic": {"hardening": "johnson-cook",
        "temperature_dependent": false,
        "columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"],
        "rows": [[9e7, 2.92e8, 0.31, 1.09, 1356, 298]]}})");

    EXPECT_THAT(stored.findings, IsEmpty());
    EXPECT_EQ(stored.Block("plastic").values.Get<std::string>("hardening"), "johnson-cook");
    EXPECT_THAT(Rows(stored.Block("plastic").tables.at(0)),
                ElementsAre(ElementsAre(9e7, 2.92e8, 0.31, 1.09, 1356.0, 298.0)));
}

TEST(MaterialPasses, StoreAHyperelasticModelWithItsOrder) {
    const StoredCard stored(R"({"name": "x", "hyperelastic": [{"model": "REDUCED_POLYNOMIAL", "order": 2,
        "temperature_dependent": true, "columns": ["C10", "C20", "D1", "D2", "temperature"],
        "rows": [[197800, -3114, 1e-9, 2e-9, 293.15], [180000, -3000, 1e-9, 2e-9, 353.15]]}]})");

    EXPECT_THAT(stored.findings, IsEmpty());
    const auto& hyperelastic = stored.Block("hyperelastic");
    EXPECT_TRUE(hyperelastic.enabled);
    EXPECT_EQ(hyperelastic.values.Get<std::string>("model"), "REDUCED_POLYNOMIAL");
    EXPECT_EQ(hyperelastic.values.Get<int>("order"), 2);
    EXPECT_TRUE(hyperelastic.tables.at(0).temperatureDependent);
    EXPECT_THAT(Rows(hyperelastic.tables.at(0)),
                ElementsAre(ElementsAre(197800.0, -3114.0, 1e-9, 2e-9, 293.15),
                            ElementsAre(180000.0, -3000.0, 1e-9, 2e-9, 353.15)));
}

TEST(MaterialPasses, StoreEveryFitInTurn) {
    const auto card = CardOf(R"({"name": "x", "hyperelastic": [
        {"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10"], "rows": [[195000]]},
        {"model": "ARRUDA_BOYCE", "order": 1, "temperature_dependent": false, "columns": ["mu", "lambda_m"],
         "rows": [[270000, 5.14782]]},
        {"model": "YEOH", "order": 3, "temperature_dependent": false, "columns": ["C10", "C20", "C30"],
         "rows": [[193090, -1787.7, 44.009]]}]})");
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());

    const auto stored =
        zelmat::StoreMaterial(host, card, {&card.fits[0], &card.fits[1], &card.fits[2]}, findings);

    EXPECT_THAT(findings.All(), IsEmpty());
    EXPECT_THAT(stored.Names(true), ElementsAre("hyperelastic"));
    const auto on = stored.SwitchedOn();
    ASSERT_EQ(on.size(), 3u);
    EXPECT_THAT(Rows(on[0]->block.tables.at(0)), ElementsAre(ElementsAre(195000.0, 0.0)));
    EXPECT_EQ(on[1]->block.values.Get<std::string>("model"), "ARRUDA_BOYCE");
    EXPECT_THAT(Rows(on[1]->block.tables.at(0)), ElementsAre(ElementsAre(270000.0, 5.14782, 0.0)));
    EXPECT_EQ(on[1]->given, &card.fits[1]);
    EXPECT_EQ(on[2]->block.values.Get<std::string>("model"), "YEOH");
}

TEST(MaterialPasses, StoreAUserMaterial) {
    const StoredCard stored(R"({"name": "x", "user_material": {"type": "MECHANICAL", "unsymmetric": true,
        "state_variables": 13, "constants": [210e9, 0.3, 250e6]}})");

    EXPECT_THAT(stored.findings, IsEmpty());
    const auto& user = stored.Block("user_material");
    EXPECT_TRUE(user.enabled);
    EXPECT_EQ(user.values.Get<std::string>("type"), "MECHANICAL");
    EXPECT_EQ(user.values.Get<bool>("unsymmetric"), true);
    EXPECT_EQ(user.values.Get<int>("state_variables"), 13);
    EXPECT_THAT(Rows(user.tables.at(0)),
                ElementsAre(ElementsAre(210e9), ElementsAre(0.3), ElementsAre(250e6)));
}

TEST(MaterialPasses, StoreAGasketWithAllItsSettings) {
    const StoredCard stored(R"({"name": "x", "gasket": {"behavior_type": 11,
        "yield_onset": {"method": "closure", "relative_value": 0.2, "closure_value": 0.0003},
        "tensile_stiffness_factor": 0.005, "unloading": false,
        "loading": {"temperature_dependent": true, "columns": ["closure", "pressure", "temperature"],
                    "rows": [[0, 0, 293.15], [4e-5, 2e6, 293.15], [8e-5, 5e6, 293.15]]},
        "unloading_damage": {"temperature_dependent": false,
                    "columns": ["pressure", "closure", "max_closure", "temperature"],
                    "rows": [[0, 0, 8e-5, 293.15], [5e6, 8e-5, 8e-5, 293.15]]}}})");

    EXPECT_THAT(stored.findings, IsEmpty());
    const auto& gasket = stored.Block("gasket");
    EXPECT_TRUE(gasket.enabled);
    EXPECT_EQ(gasket.values.Get<int>("behavior_type"), 11);
    EXPECT_EQ(gasket.values.Get<std::string>("yield_onset.method"), "closure");
    EXPECT_EQ(gasket.values.Get<double>("yield_onset.relative_value"), 0.2);
    EXPECT_EQ(gasket.values.Get<double>("yield_onset.closure_value"), 0.0003);
    EXPECT_EQ(gasket.values.Get<double>("tensile_stiffness_factor"), 0.005);
    EXPECT_EQ(gasket.values.Get<bool>("unloading"), false);
    ASSERT_EQ(gasket.tables.size(), 2u);
    EXPECT_EQ(gasket.tables[0].kind->name, "loading");
    EXPECT_TRUE(gasket.tables[0].temperatureDependent);
    EXPECT_THAT(Rows(gasket.tables[0]),
                ElementsAre(ElementsAre(0.0, 0.0, 293.15), ElementsAre(2e6, 4e-5, 293.15),
                            ElementsAre(5e6, 8e-5, 293.15)));
    EXPECT_EQ(gasket.tables[1].kind->name, "unloading_damage");
    EXPECT_THAT(Rows(gasket.tables[1]),
                ElementsAre(ElementsAre(0.0, 0.0, 8e-5, 293.15), ElementsAre(5e6, 8e-5, 8e-5, 293.15)));
}

TEST(MaterialPasses, LeaveTheSettingsOfAGasketAsANewMaterialHasThem) {
    const StoredCard stored(R"({"name": "x", "gasket": {
        "loading": {"temperature_dependent": false, "columns": ["pressure", "closure", "temperature"],
                    "rows": [[0, 0, 293.15], [2e6, 4e-5, 293.15], [5e6, 8e-5, 293.15]]}}})");

    EXPECT_THAT(stored.findings, IsEmpty());
    const auto& gasket = stored.Block("gasket");
    EXPECT_EQ(gasket.values.Get<int>("behavior_type"), 10);
    EXPECT_EQ(gasket.values.Get<std::string>("yield_onset.method"), "relative");
    EXPECT_EQ(gasket.values.Get<double>("yield_onset.relative_value"), 0.1);
    EXPECT_EQ(gasket.values.Get<double>("yield_onset.closure_value"), 0.0001);
    EXPECT_EQ(gasket.values.Get<double>("tensile_stiffness_factor"), 0.001);
    EXPECT_EQ(gasket.values.Get<bool>("unloading"), false);
    EXPECT_EQ(gasket.tables.size(), 1u);
}

TEST(MaterialPasses, StoreTheElasticBehaviorsOfAGasket) {
    const StoredCard stored(R"({"name": "x",
        "gasket_membrane": {"temperature_dependent": true,
            "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
            "rows": [[2e9, 0.49, 293.15], [1.5e9, -0.99, 373.15]]},
        "gasket_transverse_shear": {"temperature_dependent": false, "columns": ["shear_stiffness", "temperature"],
            "rows": [[4e11, 293.15]]}})");

    EXPECT_THAT(stored.findings, IsEmpty());
    EXPECT_THAT(stored.material.Names(true), ElementsAre("gasket_membrane", "gasket_transverse_shear"));
    const auto& membrane = stored.Block("gasket_membrane").tables.at(0);
    EXPECT_TRUE(membrane.temperatureDependent);
    EXPECT_THAT(Rows(membrane),
                ElementsAre(ElementsAre(2e9, 0.49, 293.15), ElementsAre(1.5e9, -0.99, 373.15)));
    const auto& shear = stored.Block("gasket_transverse_shear").tables.at(0);
    EXPECT_FALSE(shear.temperatureDependent);
    EXPECT_THAT(Rows(shear), ElementsAre(ElementsAre(4e11, 293.15)));
}

TEST(MaterialPasses, SwitchNothingOnThatTheCardLeavesOut) {
    const StoredCard stored(R"({"name": "x"})");

    EXPECT_THAT(stored.findings, IsEmpty());
    EXPECT_THAT(stored.material.Names(true), IsEmpty());
    EXPECT_EQ(stored.material.Names(false), BehaviorBlocks());
}

TEST(MaterialPasses, HoldNoReferenceOnTheMaterialAfterwards) {
    const auto card =
        CardOf(R"({"name": "x", "density": {"temperature_dependent": false, "columns": ["density"],
        "rows": [[7850]]}})");
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());
    const auto material = host.NewMaterial(card, findings);
    const KORBaseUnknown_var object = material;
    const int before = object->References();

    zelmat::WriteBlocks(material.Get(), card, {&card.blocks[0]}, findings);
    EXPECT_EQ(object->References(), before);

    zelmat::ReadMaterial(material.Get(), card.file, card.name, findings);
    EXPECT_EQ(object->References(), before);
}

TEST(MaterialPasses, ReportAFeatureThatIsNoMaterial) {
    zelmat::Material card;
    card.file = "card.json";
    card.name = "x";
    zelmat::Findings findings;

    zelmat::WriteBlocks(nullptr, card, {}, findings);
    EXPECT_THAT(zelmat::ReadMaterial(nullptr, card.file, card.name, findings).blocks, IsEmpty());

    ASSERT_EQ(findings.All().size(), 2u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]),
              "card.json: error[no-material-interface]: x offers no material properties to write to");
    EXPECT_EQ(zelmat::FindingLine(findings.All()[1]),
              "card.json: error[no-material-interface]: x offers no material properties to read");
}

TEST(MaterialPasses, ReportATableThatCannotBeWritten) {
    const CatalogFolder catalogs("{\"name\": \"PoissonData\"", "{\"name\": \"OtherData\"");
    const ProgramRun run = RunZelmat({"show", "two_tables.json", "--catalogs", catalogs.Path()});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, testing::HasSubstr("two_tables.json:9: error[not-written]: elastic could not be "
                                            "written (status 0x80004005)\n"));
    EXPECT_THAT(run.err,
                testing::HasSubstr("two_tables.json: warning[diagnostic]: Two tables: Failed to read "
                                   "elastic data\n"));
}

/// Stores a card over a catalog that lacks an attribute of the behavior.
std::string FindingsWithout(const char* attribute, const std::string& card) {
    const CatalogFolder catalogs("{\"name\": \"" + std::string(attribute) + "\"", "{\"name\": \"Other\"");
    const CardFile file(card);
    const ProgramRun run = RunZelmat({"show", file.Path(), "--catalogs", catalogs.Path()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    return file.Shorten(run.err);
}

TEST(MaterialPasses, ReportSettingsThatCannotBeWrittenOnce) {
    const std::string findings = FindingsWithout("ZELGasketTensileStiffnessFactor", R"({"name": "x",
"gasket": {"tensile_stiffness_factor": 0.005,
"loading": {"temperature_dependent": false, "columns": ["pressure", "closure", "temperature"],
"rows": [[0, 0, 293.15], [2e6, 4e-5, 293.15], [5e6, 8e-5, 293.15]]}}})");

    const std::string finding =
        "card.json:2: error[not-written]: the settings of gasket could not be written (status 0x80004005)\n";
    EXPECT_THAT(findings, testing::StartsWith(finding));
    EXPECT_EQ(findings.find("the settings of gasket", finding.size()), std::string::npos);
}

TEST(MaterialPasses, ReportAHardeningThatCannotBeWritten) {
    EXPECT_THAT(FindingsWithout("PlasticHardeningType", R"({"name": "x",
"plastic": {"hardening": "kinematic", "temperature_dependent": false,
"columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[235e6, 0, 293.15]]}})"),
                testing::HasSubstr("card.json:2: error[not-written]: the settings of plastic could not be "
                                   "written (status 0x80004005)\n"));
}

TEST(MaterialPasses, ReportAHyperelasticModelThatIsNotThere) {
    EXPECT_THAT(
        FindingsWithout("HyperelasticMatModelData", R"({"name": "x", "hyperelastic": [
{"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10"],
"rows": [[195000]]}]})"),
        testing::HasSubstr("card.json:3: error[not-written]: hyperelastic could not be written (status "
                           "0x80004005)\n"));
}

TEST(MaterialPasses, StoreTheHeatGenerationOfTheMaterial) {
    EXPECT_EQ(StoredCard(R"({"name": "x", "heat_generation": true})").material.heatGeneration, true);
    EXPECT_EQ(StoredCard(R"({"name": "x"})").material.heatGeneration, false);
}

TEST(MaterialPasses, WriteSingleBlocksAndSwitchOneOffWithoutLosingItsData) {
    const auto card = CardOf(R"({"name": "x",
        "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[7850]]},
        "conductivity": {"temperature_dependent": false, "columns": ["conductivity"], "rows": [[45]]}})");
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());
    const auto feature = host.NewMaterial(card, findings);
    zelmat::WriteBlocks(feature.Get(), card, {card.Find("density"), card.Find("conductivity")}, findings);

    const zelmat::Block off{.kind = zelmat::FindBlockKind("density"), .enabled = false};
    zelmat::WriteBlocks(feature.Get(), card, {&off}, findings);
    const auto without = zelmat::ReadMaterial(feature.Get(), "doc", "x", findings);
    EXPECT_FALSE(without.Find("density")->enabled);
    EXPECT_THAT(without.Find("density")->tables, IsEmpty());
    EXPECT_THAT(Rows(without.Find("conductivity")->tables.at(0)), ElementsAre(ElementsAre(45.0)));

    const zelmat::Block on{.kind = off.kind};
    zelmat::WriteBlocks(feature.Get(), card, {&on}, findings);
    const auto with = zelmat::ReadMaterial(feature.Get(), "doc", "x", findings);
    EXPECT_THAT(Rows(with.Find("density")->tables.at(0)), ElementsAre(ElementsAre(7850.0)));
    EXPECT_THAT(findings.All(), IsEmpty());
}

}  // namespace
