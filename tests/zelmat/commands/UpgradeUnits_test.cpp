#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;

/// A document with one older hyperelastic material that needs nothing but the conversion of its units.
struct OlderRubber {
    std::string unit = "MPa";  ///< empty: the document names none
    std::string model = "MOONEY_RIVLIN";
    int order = 0;
    std::vector<std::vector<double>> rows = {{0.5, 0.1, 0.02}};
    bool enabled = true;
    bool converted = false;
    bool temperatureDependent = false;

    /// A second material, "Seal", with the coefficients of the first.
    struct Seal {
        bool enabled = true;
        bool ownBehavior = false;  ///< a hyperelastic feature of its own over the first one's model
        bool converted = false;
    };
    std::string TextWithSeal(const Seal& seal) const {
        json document = json::parse(Text());
        json& features = document["features"];
        std::size_t behavior = 3;
        if (seal.ownBehavior) {
            behavior = features.size() + 1;
            features.push_back({{"id", behavior},
                                {"type", "MRVHyperelasticityLT"},
                                {"attributes",
                                 {{"HyperelasticMatModelType", model},
                                  {"HyperelasticUnitUpgradeRequired", seal.converted},
                                  {"HyperelasticModel_v2", {{"ref", 4}}}}}});
        }
        features.push_back({{"id", features.size() + 1},
                            {"type", "ZELMaterialLT"},
                            {"alias", "Seal"},
                            {"attributes",
                             {{"ZELHyperelasticFlag", seal.enabled},
                              {"ZELUserMaterial", {{"ref", 2}}},
                              {"ZELHyperelasticity", {{"ref", behavior}}}}}});
        return document.dump(1);
    }

    std::string Text() const {
        json features = json::array();
        json refs = json::array();
        for (std::size_t i = 0; i < rows.size(); ++i) refs.push_back(5 + i);
        json hyperelasticity = {{"HyperelasticMatModelType", model}, {"HyperelasticModel_v2", {{"ref", 4}}}};
        if (converted) hyperelasticity["HyperelasticUnitUpgradeRequired"] = true;
        const auto add = [&](const char* type, json attributes) {
            features.push_back({{"id", features.size() + 1}, {"type", type}, {"attributes", attributes}});
        };
        add("ZELMaterialLT", {{"ZELHyperelasticFlag", enabled},
                              {"ZELUserMaterial", {{"ref", 2}}},
                              {"ZELHyperelasticity", {{"ref", 3}}}});
        features[0]["alias"] = "Rubber";
        add("MRVUserMaterialLT", json::object());
        add("MRVHyperelasticityLT", hyperelasticity);
        add("ZELHyperelasticMaterialModelLT",
            {{"HyperelasticMatModelPotentialOrder", order},
             {"HyperelasticMatModelTempDependentFlag", temperatureDependent},
             {"HyperelasticMatModelData", {{"refs", refs}}}});
        for (const auto& row : rows) add("ZELMaterialModelRowDataLT", {{"MaterialModelRowData", row}});
        json document = {{"format", 1},
                         {"catalogs", json::array({"ZELMaterialPropertiesCatalog.KORfct"})},
                         {"features", features}};
        if (!unit.empty()) document["pressure_unit"] = unit;
        return document.dump(1);
    }
};

class UpgradeUnits : public FolderTest {
protected:
    ProgramRun Upgrade(const OlderRubber& rubber, std::vector<std::string> further = {}) {
        return UpgradeText(rubber.Text(), std::move(further));
    }
    ProgramRun UpgradeText(const std::string& document, std::vector<std::string> further = {}) {
        std::ofstream(older_) << document;
        further.insert(further.begin(), {"upgrade", older_, "--output", newer_});
        return RunZelmat(further);
    }
    void ExpectRefused(const ProgramRun& run, const std::string& finding) {
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.err, older_ + ": error" + finding + "\n");
        EXPECT_EQ(run.out, "materials: 1, upgraded: 0\nrefused: nothing was changed\n");
        EXPECT_FALSE(std::filesystem::exists(newer_));
    }
    void ExpectClean(const ProgramRun& run) {
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
    }

    json Written() const { return json::parse(std::ifstream(newer_)); }
    json WrittenRow(std::size_t row = 0) const {
        const json written = Written();
        const json id = written["features"][3]["attributes"]["HyperelasticMatModelData"]["refs"][row];
        return written["features"][id.get<std::size_t>() - 1]["attributes"]["MaterialModelRowData"];
    }

    const std::string older_ = In("older.json");
    const std::string newer_ = In("newer.json");
};

TEST_F(UpgradeUnits, TellEveryCoefficientBeforeAndAfter) {
    const ProgramRun run = Upgrade({.rows = {{0.5, 0.125, 0.25, 293.15}}, .temperatureDependent = true});

    ExpectClean(run);
    EXPECT_THAT(run.out, HasSubstr("  coefficients: MOONEY_RIVLIN, from MPa to Pa\n"
                                   "  row  coefficient   before       after  times\n"
                                   "    1  C10            0.500  5.0000e+05  1e+06\n"
                                   "    1  C01            0.125  1.2500e+05  1e+06\n"
                                   "    1  D1             0.250  2.5000e-07  1e-06\n"
                                   "    1  temperature  293.150  2.9315e+02  1e+00\n"));
    EXPECT_EQ(WrittenRow(), json::parse("[500000, 125000, 2.5e-7, 293.15]"));
}

TEST_F(UpgradeUnits, TellThemAsDataToo) {
    const ProgramRun run = Upgrade(
        {.unit = "kPa", .model = "OGDEN", .order = 1, .rows = {{630.0, 1.3, 0.5}, {620.0, 1.25, 0.5, 7.0}}},
        {"--json"});

    ExpectClean(run);
    const json told = json::parse(run.out)["upgrade"]["upgraded"][0]["coefficients"];
    EXPECT_EQ(told, json::parse(R"({"model": "OGDEN", "order": 1, "from": "kPa", "to": "Pa", "rows": [
        [{"name": "mu_1", "before": 630.0, "after": 630000.0, "factor": 1000.0},
         {"name": "alpha_1", "before": 1.3, "after": 1.3, "factor": 1.0},
         {"name": "D1", "before": 0.5, "after": 0.0005, "factor": 0.001}],
        [{"name": "mu_1", "before": 620.0, "after": 620000.0, "factor": 1000.0},
         {"name": "alpha_1", "before": 1.25, "after": 1.25, "factor": 1.0},
         {"name": "D1", "before": 0.5, "after": 0.0005, "factor": 0.001},
         {"name": "column 4", "before": 7.0, "after": 7.0, "factor": 1.0}]]})"));
}

TEST_F(UpgradeUnits, AreNamedInTheWrittenDocumentAsItsRowsHaveThem) {
    ExpectClean(Upgrade({}));

    EXPECT_EQ(Written()["pressure_unit"], "Pa");
    const ProgramRun again = RunZelmat({"upgrade", newer_});
    EXPECT_EQ(again.out, "materials: 1, upgraded: 0\n");
    EXPECT_EQ(again.exitCode, 0);
}

TEST_F(UpgradeUnits, AreNotGuessedWhenTheDocumentNamesNone) {
    ExpectRefused(
        Upgrade({.unit = ""}),
        "[no-pressure-unit]: the coefficients of Rubber are in a unit of pressure that is not named "
        "(name it: --pressure-unit UNIT)");
}

TEST_F(UpgradeUnits, AreTakenFromTheCommandLineWhenTheDocumentNamesNone) {
    ExpectClean(Upgrade({.unit = ""}, {"--pressure-unit", "GPa"}));

    EXPECT_EQ(WrittenRow()[0], 5e8);
    EXPECT_EQ(Written()["pressure_unit"], "Pa");
}

TEST_F(UpgradeUnits, AreNotTakenFromTheCommandLineAgainstTheDocument) {
    const ProgramRun run = Upgrade({}, {"--pressure-unit", "psi"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, older_ +
                           ": error[other-pressure-unit]: the document names another unit of pressure than "
                           "--pressure-unit (MPa, not psi)\n");
    EXPECT_FALSE(std::filesystem::exists(newer_));
    ExpectClean(Upgrade({}, {"--pressure-unit", "MPa"}));
}

TEST_F(UpgradeUnits, HaveToBeUnitsOfPressure) {
    const ProgramRun run = Upgrade({.unit = ""}, {"--pressure-unit", "furlong"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, HasSubstr("furlong"));
    EXPECT_FALSE(std::filesystem::exists(newer_));
}

TEST_F(UpgradeUnits, AreNotConvertedForAModelThatIsNotKnown) {
    ExpectRefused(Upgrade({.model = "mooney_rivlin"}),
                  "[unknown-model]: the coefficients of Rubber belong to no known model: \"mooney_rivlin\" "
                  "(meant is perhaps MOONEY_RIVLIN)");
    ExpectRefused(Upgrade({.unit = "", .model = "MARLOW"}, {"--pressure-unit", "MPa"}),
                  "[unknown-model]: the coefficients of Rubber belong to no known model: \"MARLOW\"");
    ExpectRefused(Upgrade({.model = ""}),
                  "[unknown-model]: the coefficients of Rubber belong to no known model: \"\"");
}

TEST_F(UpgradeUnits, AreNotConvertedForAnOrderThatTheModelCannotHave) {
    for (const std::string model : {"OGDEN", "POLYNOMIAL", "REDUCED_POLYNOMIAL"}) {
        for (const int order : {0, -1}) {
            ExpectRefused(Upgrade({.model = model, .order = order}),
                          "[model-order]: the model " + model + " of Rubber has the order " +
                              std::to_string(order) + " (has to be 1 or above)");
        }
    }
    ExpectRefused(Upgrade({.model = "POLYNOMIAL", .order = 7, .rows = {std::vector(42, 1.0)}}),
                  "[model-order]: the model POLYNOMIAL of Rubber has the order 7 (has to be 6 or below)");
    ExpectClean(Upgrade({.model = "YEOH", .order = 0, .rows = {std::vector(6, 1.0)}}));
    EXPECT_EQ(WrittenRow(), json::parse("[1e6, 1e6, 1e6, 1e-6, 1e-6, 1e-6]"));
}

TEST_F(UpgradeUnits, AreRefusedForTheWholeDocumentAtOnce) {
    json document = json::parse(OlderRubber{.model = "ogden"}.Text());
    json& features = document["features"];
    const json copper = {{"id", 6}, {"type", "ZELMaterialLT"}, {"alias", "Copper"}};  // lacks what is created
    features.push_back(copper);
    std::ofstream(older_) << document;

    const ProgramRun run = RunZelmat({"upgrade", older_, "--output", newer_});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "materials: 2, upgraded: 0\nrefused: nothing was changed\n");
    EXPECT_FALSE(std::filesystem::exists(newer_));
}

TEST_F(UpgradeUnits, RefuseNothingWhereNothingNeedsConverting) {
    ExpectClean(Upgrade({.unit = "", .model = "ogden", .converted = true}));
    ExpectClean(Upgrade({.unit = "Pa", .model = "ogden"}));
    EXPECT_EQ(WrittenRow(), json::parse("[0.5, 0.1, 0.02]"));
    ExpectClean(Upgrade({.unit = "", .model = "", .rows = {}, .enabled = false}));
}

TEST_F(UpgradeUnits, AreNotConvertedTwiceForTwoMaterialsWithOneModel) {
    const ProgramRun run = UpgradeText(OlderRubber().TextWithSeal({.enabled = true, .ownBehavior = true}));

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, older_ +
                           ": error[shared-coefficients]: the coefficients of Seal are those of another "
                           "material, too, for which they are converted (give it a model of its own)\n");
    EXPECT_EQ(run.out, "materials: 2, upgraded: 0\nrefused: nothing was changed\n");
    EXPECT_FALSE(std::filesystem::exists(newer_));
}

TEST_F(UpgradeUnits, AreNotConvertedInAModelThatAnotherMaterialHasInTheStoredUnit) {
    const ProgramRun run =
        UpgradeText(OlderRubber().TextWithSeal({.enabled = true, .ownBehavior = true, .converted = true}));

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("error[shared-coefficients]: the coefficients of Rubber are those of"));
    EXPECT_FALSE(std::filesystem::exists(newer_));
}

TEST_F(UpgradeUnits, AreNotLeftOutForAMaterialThatIsOnBecauseAnotherOneIsOff) {
    const ProgramRun run = UpgradeText(OlderRubber{.enabled = false}.TextWithSeal({.enabled = true}));

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, older_ +
                           ": error[shared-coefficients]: the hyperelastic behavior of Rubber is off, and on "
                           "in another material with the same coefficients (switch both on, or both off)\n");
    EXPECT_FALSE(std::filesystem::exists(newer_));
}

TEST_F(UpgradeUnits, AreConvertedOnceForMaterialsThatShareThem) {
    ExpectClean(UpgradeText(OlderRubber().TextWithSeal({.enabled = true})));
    EXPECT_EQ(WrittenRow(), json::parse("[5e5, 1e5, 2e-8]"));

    UpgradeText(OlderRubber().TextWithSeal({.enabled = false, .ownBehavior = true}));
    EXPECT_EQ(WrittenRow(), json::parse("[5e5, 1e5, 2e-8]"));

    ExpectClean(UpgradeText(OlderRubber{.unit = "Pa"}.TextWithSeal({.enabled = true, .ownBehavior = true})));
    EXPECT_EQ(WrittenRow(), json::parse("[0.5, 0.1, 0.02]")) << "in Pa there is nothing to convert";
}

TEST_F(UpgradeUnits, TellRowsThatABehaviorLeavesInTheOlderUnitBecauseItIsOff) {
    const ProgramRun run = Upgrade({.model = "ogden", .enabled = false});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, older_ +
                           ": warning[coefficients-left]: the hyperelastic behavior of Rubber is off: its "
                           "coefficients stay in the older unit (MPa)\n");
    EXPECT_EQ(WrittenRow(), json::parse("[0.5, 0.1, 0.02]"));
    ExpectClean(Upgrade({.unit = "Pa", .enabled = false}));
}

TEST_F(UpgradeUnits, TellRowsThatAreShorterThanTheirModelNeeds) {
    const ProgramRun run =
        Upgrade({.model = "POLYNOMIAL", .order = 2, .rows = {std::vector(7, 2.0), {2.0, 4.0}}});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err,
              older_ +
                  ": warning[short-row]: row 2 of Rubber is shorter than POLYNOMIAL of order 2 needs "
                  "(2 of at least 7)\n");
    EXPECT_EQ(WrittenRow(1), json::parse("[2e6, 4e6]"));
    const ProgramRun huge = Upgrade({.model = "OGDEN", .order = 2147483647, .rows = {{1.0}}});
    EXPECT_THAT(huge.err, HasSubstr("row 1 of Rubber is shorter than OGDEN of order 2147483647 needs"));
}

TEST_F(UpgradeUnits, TellATemperatureThatAShortRowPutsInACoefficientsPlace) {
    const ProgramRun run =
        Upgrade({.model = "NEO_HOOKE", .rows = {{0.5, 293.15}}, .temperatureDependent = true});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err, HasSubstr("row 1 of Rubber is shorter than NEO_HOOKE needs (2 of at least 3)"));
}

TEST_F(UpgradeUnits, TellResultsThatAreNotFinite) {
    const ProgramRun run = Upgrade({.rows = {{1e305, 0.1, 0.02}}});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, older_ +
                           ": error[not-finite]: C10 in row 1 of Rubber is no finite number (1e+305 times "
                           "1e+06)\n");
    EXPECT_EQ(WrittenRow()[0], "Infinity");
}

}  // namespace
