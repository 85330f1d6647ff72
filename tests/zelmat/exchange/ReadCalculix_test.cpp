#include "zelmat/exchange/calculix/ReadCalculix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/zelmat/exchange/SampleDeck.h"
#include "tests/zelmat/properties/SampleCard.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Lists = std::vector<std::vector<double>>;

struct ReadDeck {
    explicit ReadDeck(const std::string& text, const std::string& units = "si") {
        const CardFile file(text);
        zelmat::Findings found;
        materials = zelmat::ReadCalculix(file.Path(), zelmat::DeckUnits::Read(units, found).value(), found);
        for (const auto& finding : found.All())
            findings.push_back(file.Shorten(zelmat::FindingLine(finding)));
    }
    const zelmat::Block& Block(const std::string& name, std::size_t material = 0) const {
        return *materials.at(material).Find(name);
    }
    std::vector<zelmat::Material> materials;
    std::vector<std::string> findings;  ///< of the file card.json
};

TEST(ReadCalculix, ReadsADeckOfOtherHands) {
    const ReadDeck deck(
        "*HEADING\r\nA bracket, by hand\r\n"
        "*node, nset = Nall\r\n1, 0., 0., 0.\r\n 2, 1.,0.,0.\r\n"
        "*NSET,NSET=Steel,GENERATE\r\n1,2\r\n"
        "** the metal\r\n"
        "*Material , Name = Mild Steel\r\n"
        "* elastic,\r\n  type = iso\r\n"
        "  210000. , .3 ,  20.\r\n"
        "** softer when hot\r\n\r\n"
        "  1.9D5, 3.0E-1, 200\r\n"
        "*Density\r\n7.85e-9,\r\n"
        "*expansion, zero=20.\r\n1.2e-5\r\n"
        "*STEP\r\n*STATIC\r\n1.,1.\r\n*END STEP\r\n",
        "mm-t-s");

    ASSERT_EQ(deck.materials.size(), 1U);
    EXPECT_EQ(deck.materials[0].name, "Mild Steel");
    EXPECT_EQ(Rows(deck.Block("elastic").tables[0]), (Lists{{210e9, 0.3, 293.15}, {190e9, 0.3, 473.15}}));
    EXPECT_TRUE(deck.Block("elastic").tables[0].temperatureDependent);
    EXPECT_EQ(Rows(deck.Block("density").tables[0]), (Lists{{7850.0}}));
    EXPECT_EQ(deck.Block("thermal_expansion").values.Get<double>("reference_temperature"), 293.15);
    EXPECT_THAT(
        deck.findings,
        ElementsAre(
            "card.json:23: note[skipped-keyword]: '*ENDSTEP' describes no material and is skipped (1 time)",
            "card.json:1: note[skipped-keyword]: '*HEADING' describes no material and is skipped (1 time)",
            "card.json:3: note[skipped-keyword]: '*NODE' describes no material and is skipped (1 time)",
            "card.json:6: note[skipped-keyword]: '*NSET' describes no material and is skipped (1 time)",
            "card.json:21: note[skipped-keyword]: '*STATIC' describes no material and is skipped (1 time)",
            "card.json:20: note[skipped-keyword]: '*STEP' describes no material and is skipped (1 time)"));
}

TEST(ReadCalculix, KeepsTheNumbersOfTheDeckAsTheyStandThere) {
    const ReadDeck deck("*MATERIAL,NAME=M\n*ELASTIC\n206843.5, .3\n", "mm-t-s");
    const auto& column = deck.Block("elastic").tables[0].columns[0];
    EXPECT_EQ(column.written->unit, "MPa");
    EXPECT_THAT(column.written->numbers, ElementsAre(206843.5));
    EXPECT_THAT(column.values, ElementsAre(206843.5e6));
}

TEST(ReadCalculix, ReadsSeveralMaterials) {
    const ReadDeck deck("*MATERIAL,NAME=A\n*DENSITY\n1\n*MATERIAL,NAME=B\n*DENSITY\n2\n");
    ASSERT_EQ(deck.materials.size(), 2U);
    EXPECT_EQ(Rows(deck.Block("density", 1).tables[0]), (Lists{{2.0}}));
}

TEST(ReadCalculix, ReadsRowsOfMoreThanEightNumbers) {
    const ReadDeck deck(
        "*MATERIAL,NAME=R\n*HYPERELASTIC, OGDEN, "
        "N=3\n1,2,3,4,5,6,7,8\n9,300\n10,20,30,40,50,60,70,80\n90,400\n");
    const auto& fit = deck.materials.at(0).fits.at(0);
    EXPECT_EQ(fit.values.Get<int>("order"), 3);
    EXPECT_EQ(Rows(fit.tables[0]),
              (Lists{{1, 2, 3, 4, 5, 6, 7, 8, 9, 300}, {10, 20, 30, 40, 50, 60, 70, 80, 90, 400}}));
}

TEST(ReadCalculix, TakesMissingCompressibilitiesForZero) {
    const ReadDeck deck("*MATERIAL,NAME=R\n*HYPERELASTIC,MOONEY-RIVLIN\n5e5,1e5\n");
    EXPECT_EQ(Rows(deck.materials.at(0).fits.at(0).tables[0]), (Lists{{5e5, 1e5, 0.0}}));
}

TEST(ReadCalculix, ReadsUserMaterialsWithTheirStateVariables) {
    const ReadDeck deck("*MATERIAL,NAME=U\n*USER MATERIAL,CONSTANTS=9\n1,2,3,4,5,6,7,8\n9\n*DEPVAR\n12\n");
    EXPECT_EQ(Rows(*deck.Block("user_material").Find("constants")),
              (Lists{{1}, {2}, {3}, {4}, {5}, {6}, {7}, {8}, {9}}));
    EXPECT_EQ(deck.Block("user_material").values.Get<int>("state_variables"), 12);
}

TEST(ReadCalculix, TellsWhatACardHasNoPlaceFor) {
    const ReadDeck deck(
        "*MATERIAL,NAME=M\n*DENSITY\n1\n*ELASTIC,TYPE=ANISO\n1,2,3,4,5,6,7,8\n9,293.\n*CREEP\n1,2,3\n"
        "*PLASTIC,HARDENING=JOHNSON COOK\n1,2,3,4,5,6\n*INCLUDE,INPUT=more.inp\n");
    EXPECT_THAT(
        deck.findings,
        ElementsAre(
            "card.json:4: warning[not-imported]: *ELASTIC: TYPE=ANISO has no place",
            "card.json:7: warning[not-imported]: *CREEP: a material has no place for it",
            "card.json:9: warning[not-imported]: *PLASTIC: HARDENING=JOHNSONCOOK is neither isotropic "
            "nor kinematic",
            "card.json:11: warning[not-included]: *INCLUDE is not followed: import that file by itself"));
    ASSERT_EQ(deck.materials.size(), 1U);
    EXPECT_EQ(deck.materials[0].blocks.size(), 1U);
}

TEST(ReadCalculix, ReadsWhatFortranReadsAsNumbers) {
    const ReadDeck deck(
        "\xef\xbb\xbf*MATERIAL,NAME=M\n*ELASTIC\n2.1D+11\t,\t3.d-1,20.\n1.9+11, "
        "3-1,+30\n*DENSITY\n7.85E+03,\n");
    EXPECT_THAT(deck.findings, IsEmpty());
    EXPECT_EQ(Rows(deck.Block("elastic").tables[0]), (Lists{{2.1e11, 0.3, 20}, {1.9e11, 0.3, 30}}));
}

TEST(ReadCalculix, WarnsOfANumberThatTheSolverCuts) {
    const ReadDeck deck("*MATERIAL,NAME=M\n*DENSITY\n7.851234567890123e+03\n");
    EXPECT_THAT(
        deck.findings,
        ElementsAre("card.json:3: warning[long-number]: '7.851234567890123e+03' has more than 20 characters: "
                    "CalculiX drops those behind them (read as a whole here)"));
    EXPECT_EQ(Rows(deck.Block("density").tables[0]), (Lists{{7851.234567890123}}));
}

TEST(ReadCalculix, TellsNumbersThatAreMissing) {
    const ReadDeck deck("*MATERIAL,NAME=M\n*ELASTIC\n2.1e11\n*MATERIAL,NAME=m\n*PLASTIC\n2e8,,20\n");
    EXPECT_THAT(
        deck.findings,
        ElementsAre(
            "card.json:3: warning[missing-number]: a number of *ELASTIC is missing: it is 0, as in the "
            "solver",
            "card.json:4: warning[name-twice]: 'm' is the name of two materials",
            "card.json:6: warning[missing-number]: a number of *PLASTIC is missing: it is 0, as in the "
            "solver"));
}

TEST(ReadCalculix, KnowsTheLineOfARow) {
    const ReadDeck deck("*MATERIAL,NAME=M\n*ELASTIC\n2.1e11,.3,400\n** cooler\n2.2e11,.3,300\n");
    const auto& table = deck.Block("elastic").tables[0];
    EXPECT_EQ(table.origin.Line(1), 5);
    EXPECT_EQ(table.origin.Line(), 2);
}

TEST(ReadCalculix, TellsThatTheSolverHasNoIncompressibleRubber) {
    EXPECT_THAT(
        ReadDeck("*MATERIAL,NAME=R\n*HYPERELASTIC,NEO HOOKE\n5e5\n").findings,
        ElementsAre("card.json:2: note[no-compressibility]: D1 is 0, which is incompressible on a card; "
                    "CalculiX takes one of its own, 4 to 7 % off"));
}

const char* OtherProperties(const ReadDeck& deck) {
    return deck.materials.at(0).information.at(0).kept.at(0).json.c_str();
}

TEST(ReadCalculix, KeepsEngineeringConstantsAmongTheOtherProperties) {
    const ReadDeck deck(
        "*MATERIAL,NAME=P\n*ELASTIC,TYPE=ENGINEERING "
        "CONSTANTS\n181000,10300,10200,.28,.27,.4,7170,7100\n3700,20.\n"
        "*EXPANSION,TYPE=ORTHO\n1e-7,2e-5,2e-5\n",
        "mm-t-s");
    EXPECT_THAT(deck.findings, IsEmpty());
    EXPECT_STREQ(
        OtherProperties(deck),
        R"({"E1":"181000 MPa","E2":"10300 MPa","E3":"10200 MPa","nu12":0.28,"nu13":0.27,"nu23":0.4,)"
        R"("G12":"7170 MPa","G13":"7100 MPa","G23":"3700 MPa","alpha1":"1e-07 1/K","alpha2":"2e-05 1/K"})");
}

/// The stiffness of E 204, 18.5 and 17.5 GPa, nu12 0.23, nu13 0.25, nu23 0.4: the inverse of the compliance.
TEST(ReadCalculix, MakesEngineeringConstantsOfAStiffness) {
    const ReadDeck deck(
        "*MATERIAL,NAME=P\n*ELASTIC,TYPE=ORTHO\n"
        "207447871980,7195548494.41,22048948255,7171583303.76,8497161583.04,20868944558.6,5.59e9,5.2e9\n4."
        "8e9\n");
    EXPECT_THAT(deck.findings,
                ElementsAre("card.json:2: note[changed-on-card]: TYPE=ORTHO becomes engineering constants"));
    const auto constants = nlohmann::json::parse(OtherProperties(deck));
    const auto modulus = [&](const char* name) { return std::stod(constants[name].get<std::string>()); };
    EXPECT_NEAR(modulus("E1"), 204e9, 1.0);
    EXPECT_NEAR(modulus("E2"), 18.5e9, 0.1);
    EXPECT_NEAR(modulus("E3"), 17.5e9, 0.1);
    EXPECT_NEAR(constants["nu12"].get<double>(), 0.23, 1e-10);
    EXPECT_NEAR(constants["nu13"].get<double>(), 0.25, 1e-10);
    EXPECT_NEAR(constants["nu23"].get<double>(), 0.4, 1e-10);
    EXPECT_EQ(modulus("G12"), 5.59e9);
    EXPECT_EQ(modulus("G13"), 5.2e9);
    EXPECT_EQ(modulus("G23"), 4.8e9);
}

TEST(ReadCalculix, RefusesConstantsThatAreNoStiffness) {
    EXPECT_THAT(
        ReadDeck("*MATERIAL,NAME=P\n*ELASTIC,TYPE=ORTHO\n1,2,1,1,1,1,1,1\n1\n").findings,
        ElementsAre("card.json:2: error[no-stiffness]: these constants are no stiffness of a material"));
    EXPECT_THAT(ReadDeck("*MATERIAL,NAME=P\n*ELASTIC,TYPE=ORTHO\n1,2,1\n").findings,
                ElementsAre("card.json:3: error[wrong-row]: *ELASTIC, TYPE=ORTHO takes 9 numbers"));
}

TEST(ReadCalculix, TellsConstantsWithDirectionsOverTemperature) {
    EXPECT_THAT(ReadDeck("*MATERIAL,NAME=P\n*EXPANSION,TYPE=ORTHO\n1,2,2,20\n2,3,3,30\n").findings,
                ElementsAre("card.json:2: warning[not-imported]: *EXPANSION: constants with directions over "
                            "temperature"));
}

TEST(ReadCalculix, ReadsNoPotentialThatItDoesNotKnowAsAnother) {
    const ReadDeck deck(
        "*MATERIAL,NAME=M\n*DENSITY\n1100.\n*HYPERELASTIC, VAN DER WAALS\n1e6, 10., 0.3\n"
        "*HYPERELASTIC, OGDEN, N=1, TEST DATA INPUT\n*UNIAXIAL TEST DATA\n1e6, 0.1\n");

    ASSERT_EQ(deck.materials.size(), 1U);
    EXPECT_THAT(deck.materials[0].fits, IsEmpty());
    EXPECT_THAT(
        deck.findings,
        ElementsAre("card.json:4: warning[not-imported]: *HYPERELASTIC: 'VANDERWAALS' is no potential "
                    "that is read here, nor are tests in its place",
                    "card.json:6: warning[not-imported]: *HYPERELASTIC: 'TESTDATAINPUT' is no "
                    "potential that is read here, nor are tests in its place",
                    "card.json:7: warning[not-imported]: *UNIAXIALTESTDATA: a material has no place "
                    "for it"));
}

TEST(ReadCalculix, TellsParametersThatItDoesNotHeed) {
    const ReadDeck deck(
        "*MATERIAL,NAME=M\n*ELASTIC, MODULI=LONG TERM\n1e9, .3\n*DENSITY, DEPENDENCIES=1\n1100.\n"
        "*EXPANSION, USER\n*CONDUCTIVITY, DEPENDENCIES=0\n1.\n");

    EXPECT_EQ(Rows(deck.Block("elastic").tables[0]), (Lists{{1e9, 0.3}}));
    EXPECT_EQ(deck.materials[0].Find("density"), nullptr);
    EXPECT_THAT(
        deck.findings,
        ElementsAre(
            "card.json:2: warning[unknown-parameter]: *ELASTIC: 'MODULI' is not heeded, and the card "
            "read as without it",
            "card.json:4: warning[not-imported]: *DENSITY: it depends on field variables, too",
            "card.json:6: warning[not-imported]: *EXPANSION: a routine of the user says it",
            "card.json:7: warning[unknown-parameter]: *CONDUCTIVITY: 'DEPENDENCIES' is not heeded, and "
            "the card read as without it"));
}

TEST(ReadCalculix, ReadsStateVariablesBeforeAndAfterTheirUserMaterial) {
    const ReadDeck deck(
        "*MATERIAL,NAME=A\n*DEPVAR\n3\n*USER MATERIAL, CONSTANTS=2, UNSYMM\n1., 2.\n"
        "*MATERIAL,NAME=B\n*DEPVAR\n4\n*DENSITY\n1.\n"
        "*MATERIAL,NAME=C\n*USER MATERIAL, CONSTANTS=1, TYPE=THERMAL\n1.\n*DEPVAR\n2\n1, EQ, \"strain\"\n");

    EXPECT_EQ(deck.Block("user_material").values.Get<int>("state_variables"), 3);
    EXPECT_EQ(deck.Block("user_material").values.Get<bool>("unsymmetric"), true);
    EXPECT_EQ(deck.Block("user_material", 2).values.Get<int>("state_variables"), 2);
    EXPECT_THAT(
        deck.findings,
        ElementsAre("card.json:7: warning[not-imported]: *DEPVAR: there is no *USER MATERIAL beside it",
                    "card.json:14: warning[not-imported]: *DEPVAR: the names of state variables"));
}

TEST(ReadCalculix, TellsNumbersBehindTheConstantsOfAUserMaterial) {
    const ReadDeck deck(
        "*MATERIAL,NAME=A\n*USER MATERIAL, CONSTANTS=2\n1., 2., 3., 4.\n"
        "*MATERIAL,NAME=B\n*USER MATERIAL, CONSTANTS=2\n1., 2., 293.\n"
        "*MATERIAL,NAME=C\n*USER MATERIAL, CONSTANTS=1, TYPE=ELECTRICAL\n1.\n");

    EXPECT_EQ(Rows(deck.Block("user_material").tables[0]), (Lists{{1.0}, {2.0}}));
    EXPECT_THAT(deck.findings,
                ElementsAre("card.json:2: warning[not-imported]: *USERMATERIAL: the numbers behind its 2 "
                            "constants and their temperature",
                            "card.json:8: warning[not-imported]: *USERMATERIAL: TYPE=ELECTRICAL is neither "
                            "mechanical nor thermal"));
}

TEST(ReadCalculix, TakesNamesOutOfTheirQuotes) {
    EXPECT_EQ(ReadDeck("*MATERIAL, NAME=\"My steel\"\n*DENSITY\n7850.\n").materials.at(0).name, "My steel");
}

TEST(ReadCalculix, NamesLineAndReasonOfABadDeck) {
    const auto first = [](const std::string& text) {
        const ReadDeck deck(text);
        EXPECT_THAT(deck.materials, IsEmpty()) << text;
        return deck.findings.empty() ? "" : deck.findings.front();
    };
    EXPECT_THAT(first("*MATERIAL,NAME=M\n*ELASTIC\n2.1e11,abc\n"),
                HasSubstr("card.json:3: error[no-number]: 'abc' is no number"));
    EXPECT_THAT(first(std::string("*MATERIAL,NAME=M\n*ELASTIC\n2.1\0e11,.3\n", 37)),
                HasSubstr("card.json:3: error[no-number]"));
    EXPECT_THAT(first("*MATERIAL,NAME=M\n*DENSITY\n\xff\xfe\n"), HasSubstr("card.json:3: error[no-number]"));
    EXPECT_EQ(first("*ELASTIC\n1,2\n"),
              "card.json:1: error[no-material]: *ELASTIC stands before any *MATERIAL card");
    EXPECT_EQ(first("*MATERIAL\n"), "card.json:1: error[no-name]: *MATERIAL has no NAME");
    EXPECT_EQ(first("*MATERIAL,NAME=M\n*DENSITY\n*END STEP\n"),
              "card.json:2: error[no-data]: *DENSITY has no data line");
    EXPECT_EQ(first("*MATERIAL,NAME=M\n*DENSITY\n1,2,3\n"),
              "card.json:3: error[wrong-row]: *DENSITY takes 1 number and a temperature on a line, not 3");
    EXPECT_EQ(first("*MATERIAL,NAME=M\n*DENSITY\n1,300\n2\n"),
              "card.json:4: error[no-temperature]: this row has no temperature, others of *DENSITY have");
    EXPECT_EQ(first("*MATERIAL,NAME=M\n*HYPERELASTIC,OGDEN,N=7\n1,2,3\n"),
              "card.json:2: error[wrong-order]: N='7' is none of 1, 2 and 3");
    EXPECT_EQ(first("*MATERIAL,NAME=M\n*USER MATERIAL,CONSTANTS=5\n1,2\n"),
              "card.json:2: error[wrong-count]: *USER MATERIAL has 2 constants, not 5");
    EXPECT_EQ(first(""), "card.json: error[no-materials]: there is no *MATERIAL card in it");
    EXPECT_THAT(first(std::string(70'000, 'x')),
                HasSubstr("card.json:1: error[long-line]: a line has more than 65536"));
}

class EverySampleDeck : public testing::TestWithParam<const char*> {};

TEST_P(EverySampleDeck, IsTheSameAfterImportAndExport) {
    for (const char* units : {"si", "mm-t-s", "mm-kg-ms", "us"}) {
        const auto deck = Exported("calculix", {SampleCard(GetParam())}, units);
        const ReadDeck read(deck.text, units);
        ASSERT_EQ(read.materials.size(), 1U) << units;
        EXPECT_EQ(WithoutComments(Exported("calculix", read.materials, units).text),
                  WithoutComments(deck.text))
            << units;
    }
}

INSTANTIATE_TEST_SUITE_P(ReadCalculix, EverySampleDeck,
                         testing::Values("aluminium_2024_t351", "aluminium_6061_t6",
                                         "cfrp_t300_5208_quasi_isotropic", "concrete_c30_37", "copper_ofhc",
                                         "foam_rohacell71", "gasket_fibre_illustrative",
                                         "natural_rubber_treloar", "silicone_rtv141", "stainless_304",
                                         "steel_4340", "steel_s235_kinematic", "steel_s355",
                                         "titanium_ti6al4v", "user_routine_illustrative"));

TEST(ReadCalculix, DoesNotHoldADeckOfAHundredMegabytes) {
    const std::string path = testing::TempDir() + "zelmat-deck-" + std::to_string(getpid()) + ".inp";
    {
        std::ofstream file(path);
        file << "*NODE\n";
        const std::string line = "1234567, 0.123456789, 0.123456789, 0.123456789\n";
        std::string lines;
        while (lines.size() < 1'000'000) lines += line;
        for (int i = 0; i < 100; ++i) file << lines;
        file << "*MATERIAL, NAME=LAST\n*DENSITY\n7850\n";
    }
    struct rusage before {
    }, after{};
    ::getrusage(RUSAGE_SELF, &before);
    zelmat::Findings findings;
    const auto materials = zelmat::ReadCalculix(path, zelmat::DeckUnits::Si(), findings);
    ::getrusage(RUSAGE_SELF, &after);
    std::filesystem::remove(path);

    ASSERT_EQ(materials.size(), 1U);
    EXPECT_EQ(materials[0].name, "LAST");
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 10'000) << "kB";
}

TEST(ImportCommand, WritesACardThatTheProgramReads) {
    const CardFile deck("*MATERIAL,NAME=M\n*ELASTIC\n206843.5, .3\n*DENSITY\n7.85e-9\n");
    const std::string card = deck.Path() + ".card.json";
    const ProgramRun run = RunZelmat({"import", deck.Path(), "--units", "mm-t-s", "--output", card});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "\nwritten: " + card + "\n");
    EXPECT_EQ(RunZelmat({"show", card}).exitCode, 0);
}

TEST(ImportCommand, NeedsTheUnits) {
    const ProgramRun run = RunZelmat({"import", "deck.inp"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(
        run.err,
        "--units: error[missing-option]: a deck names no units, so --units has to (as in --units mm-t-s)\n");
    EXPECT_EQ(RunZelmat({"import", "no-such-deck.inp", "--units", "si"}).exitCode, 3);
}

}  // namespace
