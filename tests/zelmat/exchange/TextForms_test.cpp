#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

#include "tests/zelmat/exchange/SampleDeck.h"
#include "tests/zelmat/properties/SampleCard.h"

namespace {

using testing::Contains;
using testing::HasSubstr;

const char* const kSamples[] = {"aluminium_2024_t351", "aluminium_6061_t6", "concrete_c30_37",
                                "copper_ofhc",         "foam_rohacell71",   "natural_rubber_treloar",
                                "stainless_304",       "steel_4340",        "steel_s235_kinematic",
                                "steel_s355",          "titanium_ti6al4v"};

/// The commands of code_aster as its documents write them: name = COMMAND(KEYWORD=value, ...), where a value
/// is a number, a text between quotes, a name defined before, a list in brackets or _F(KEYWORD=value, ...).
class AsterGrammar {
public:
    explicit AsterGrammar(std::string text) : text_(std::move(text)) {}

    /// Throws at what is none; answers how many commands there are.
    int Commands() {
        int commands = 0;
        for (Blanks(); at_ < text_.size(); Blanks(), ++commands) {
            const std::string name = Name();
            if (name.size() > 8) throw std::runtime_error("a name of more than 8 characters: " + name);
            Expect('=');
            const std::string command = Name();
            if (!command.starts_with("DEFI_")) throw std::runtime_error("no command: " + command);
            Arguments();
            defined_.insert(name);
        }
        return commands;
    }

private:
    void Blanks() {
        while (at_ < text_.size() && std::isspace(static_cast<unsigned char>(text_[at_])) != 0) ++at_;
    }
    char Next() {
        Blanks();
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    void Expect(char character) {
        if (Next() != character) {
            throw std::runtime_error("expected " + std::string(1, character) + " before " +
                                     text_.substr(at_, 40));
        }
        ++at_;
    }
    std::string Name() {
        Blanks();
        const std::size_t begin = at_;
        while (at_ < text_.size() &&
               (std::isalnum(static_cast<unsigned char>(text_[at_])) != 0 || text_[at_] == '_'))
            ++at_;
        if (begin == at_ || std::isdigit(static_cast<unsigned char>(text_[begin])) != 0)
            throw std::runtime_error("no name before " + text_.substr(at_, 40));
        return text_.substr(begin, at_ - begin);
    }
    void Arguments() {
        Expect('(');
        while (Next() != ')') {
            Name();
            Expect('=');
            Value();
            if (Next() == ',') ++at_;
        }
        ++at_;
    }
    void Value() {
        if (Next() == '(') {
            for (++at_; Next() != ')';) {
                Value();
                if (Next() == ',') ++at_;
            }
            ++at_;
        } else if (Next() == '\'') {
            at_ = text_.find('\'', at_ + 1) + 1;
        } else if (std::isalpha(static_cast<unsigned char>(Next())) != 0 || Next() == '_') {
            const std::string name = Name();
            if (name == "_F") return Arguments();
            if (defined_.count(name) == 0) throw std::runtime_error("not defined before: " + name);
        } else {
            std::size_t length = 0;
            static_cast<void>(std::stod(text_.substr(at_, 40), &length));
            if (text_.substr(at_, length).find_first_of(".e") == std::string::npos)
                throw std::runtime_error("no real number");
            at_ += length;
        }
    }

    std::string text_;
    std::size_t at_ = 0;
    std::set<std::string> defined_;
};

TEST(CodeAsterForm, FollowsTheGrammarOfItsCommands) {
    for (const char* sample : kSamples) {
        const auto deck = Exported("code_aster", {SampleCard(sample)}, "mm-t-s", {"", ""});
        if (std::string(sample) == "natural_rubber_treloar") continue;  // its first fit is Ogden's
        EXPECT_NO_THROW(EXPECT_GT(AsterGrammar(WithoutComments(deck.text, "#")).Commands(), 0)) << deck.text;
    }
}

TEST(CodeAsterForm, WritesElasticityWithALinearKinematicHardening) {
    EXPECT_EQ(
        WithoutComments(Exported("code_aster", {SampleCard("steel_s235_kinematic")}, "mm-t-s").text, "#"),
        "Structu = DEFI_MATERIAU(\n"
        "    ELAS=_F(E=210000., NU=0.3, ALPHA=1.2e-05, RHO=7.85e-09, ),\n"
        "    ECRO_LINE=_F(D_SIGM_EPSI=2099.99999881, SY=235.),\n"
        ")\n");
}

TEST(CodeAsterForm, WritesFunctionsOfTemperature) {
    const auto deck = Exported(
        "code_aster",
        {StuffWith(
            R"("elastic": {"temperature_dependent": true, "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
            "rows": [[200e9, 0.3, 300], [100e9, 0.25, 400]]})")});
    EXPECT_EQ(WithoutComments(deck.text, "#"),
              "f0001001 = DEFI_FONCTION(NOM_PARA='TEMP', PROL_GAUCHE='CONSTANT', PROL_DROITE='CONSTANT', "
              "VALE=(300., 2e+11, 400., 1e+11, ))\n"
              "f0001002 = DEFI_FONCTION(NOM_PARA='TEMP', PROL_GAUCHE='CONSTANT', PROL_DROITE='CONSTANT', "
              "VALE=(300., 0.3, 400., 0.25, ))\n"
              "Stuff = DEFI_MATERIAU(\n    ELAS_FO=_F(E=f0001001, NU=f0001002, ),\n)\n");
}

TEST(CodeAsterForm, AddsTheElasticStrainToHardeningCurves) {
    const auto deck = Exported(
        "code_aster", {StuffWith(std::string(kSomeElastic) +
                                 R"(, "plastic": {"hardening": "isotropic", "temperature_dependent": false,
            "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[200e6, 0, 300], [400e6, 0.1, 300]]})")});
    EXPECT_THAT(deck.text, HasSubstr("VALE=(0.001, 2e+08, 0.102, 4e+08, ))\n"));
    EXPECT_THAT(deck.text, HasSubstr("TRACTION=_F(SIGM=f0001001)"));
}

TEST(CodeAsterForm, TellsTheFunctionsOfAThousandMaterialsApart) {
    std::vector<zelmat::Material> materials(
        1'002,
        StuffWith(
            R"("elastic": {"temperature_dependent": true, "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
            "rows": [[200e9, 0.3, 300], [100e9, 0.25, 400]]})"));
    std::istringstream lines(WithoutComments(Exported("code_aster", materials).text, "#"));
    std::set<std::string> names;
    std::size_t functions = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.find(" = DEFI_FONCTION") == std::string::npos) continue;
        ++functions;
        names.insert(line.substr(0, line.find(' ')));
    }
    EXPECT_EQ(functions, 2'004U);
    EXPECT_EQ(names.size(), functions);
}

TEST(CodeAsterForm, TakesNoWordOfItsLanguageForAName) {
    for (const char* word : {"class", "with", "None", "FIN", "DEBUT"}) {
        auto material = StuffWith(kSomeElastic);
        material.name = word;
        EXPECT_THAT(Exported("code_aster", {material}).text,
                    HasSubstr("\n" + std::string(word) + "_2 = DEFI_MATERIAU("));
    }
}

TEST(CodeAsterForm, WritesThePlyConstantsThatAreGiven) {
    const auto deck = Exported("code_aster", {StuffWith(std::string(kSomeDensity) +
                                                        R"(, "other_properties": {"E1": 181e9, "E2": 10.3e9,
            "nu12": 0.28, "G12": 7.17e9, "G23": 4e9})")});
    EXPECT_THAT(deck.text,
                HasSubstr("Stuff = DEFI_MATERIAU(\n    ELAS_ORTH=_F(E_L=1.81e+11, E_T=1.03e+10, NU_LT=0.28, "
                          "G_LT=7.17e+09, G_TN=4e+09, RHO=8000., ),\n)\n"));
    EXPECT_THAT(deck.findings, testing::Not(Contains(HasSubstr("density"))));
}

TEST(CodeAsterForm, TellsADensityThatNoLawTakes) {
    const auto deck = Exported("code_aster", {StuffWith(std::string(kSomeDensity) +
                                                        R"(, "conductivity": {"temperature_dependent": false,
            "columns": ["conductivity"], "rows": [[50]]})")});
    EXPECT_THAT(deck.findings,
                Contains("warning[not-carried]: 'Stuff': density: it needs an elastic behavior beside it"));
}

/// A Material section of Elmer: "Keyword = Real number", or "= Variable Temperature", "Real", rows, "End".
std::map<std::string, int> ElmerSection(const std::string& text) {
    std::map<std::string, int> rows;
    std::istringstream lines(text);
    std::string line;
    std::getline(lines, line);
    if (!line.starts_with("Material ")) throw std::runtime_error("no section: " + line);
    while (std::getline(lines, line) && line != "End") {
        const std::size_t equals = line.find(" = ");
        if (!line.starts_with("  ") || equals == std::string::npos)
            throw std::runtime_error("no entry: " + line);
        const std::string keyword = line.substr(2, equals - 2), value = line.substr(equals + 3);
        if (value == "Variable Temperature") {
            std::getline(lines, line);
            if (line != "    Real") throw std::runtime_error("no Real");
            double last = -1e300;
            while (std::getline(lines, line) && line != "    End") {
                std::istringstream numbers(line);
                double x = 0.0, y = 0.0;
                if (!(numbers >> x >> y) || x <= last) throw std::runtime_error("no row: " + line);
                last = x;
                ++rows[keyword];
            }
        } else if (!value.starts_with("Real ") && !(value.starts_with('"') && value.ends_with('"'))) {
            throw std::runtime_error("no value: " + value);
        } else {
            rows[keyword] = 1;
        }
    }
    if (line != "End") throw std::runtime_error("no End");
    return rows;
}

TEST(ElmerForm, FollowsTheGrammarOfItsSections) {
    for (const char* sample : kSamples) {
        const auto deck = Exported("elmer", {SampleCard(sample)});
        EXPECT_NO_THROW(EXPECT_EQ(ElmerSection(WithoutComments(deck.text, "!"))["Name"], 1)) << sample;
    }
    EXPECT_EQ(ElmerSection(
                  WithoutComments(Exported("elmer", {SampleCard("steel_s355")}).text, "!"))["Youngs Modulus"],
              12);
}

TEST(ElmerForm, WritesNumbersAndTables) {
    const auto material = StuffWith(
        std::string(kSomeDensity) +
        R"(, "conductivity": {"temperature_dependent": true, "columns": ["conductivity", "temperature"],
            "rows": [[50, 300], [40.5, 400]]},
           "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"], "rows": [[1e-5]],
            "reference_temperature": 300})");
    EXPECT_EQ(
        WithoutComments(Exported("elmer", {material}).text, "!"),
        "Material 1\n  Name = \"Stuff\"\n  Density = Real 8000.\n"
        "  Heat Expansion Coefficient = Real 1e-05\n  Reference Temperature = Real 300.\n"
        "  Heat Conductivity = Variable Temperature\n    Real\n      300. 50.\n      400. 40.5\n    End\n"
        "End\n");
}

TEST(ElmerForm, LetsNoNameLeaveItsQuotes) {
    auto material = StuffWith(kSomeDensity);
    material.name = "a\"\nEnd\nSimulation";
    EXPECT_EQ(ElmerSection(WithoutComments(Exported("elmer", {material}).text, "!")).size(), 2U);
}

/// Blocks of OpenRadioss: a keyword line, its title, and lines of numbers in fields of 20 (or, where only
/// whole numbers stand there, 10) characters.
void CheckRadioss(const std::string& text) {
    std::istringstream lines(text);
    std::string line, keyword;
    bool title = false;
    while (std::getline(lines, line)) {
        if (line.starts_with('#')) continue;
        if (line.starts_with('/')) {
            keyword = line;
            title = true;
        } else if (title) {
            title = false;
        } else if (!keyword.starts_with("/UNIT")) {
            EXPECT_LE(line.size(), 100U) << line;
            EXPECT_EQ(line.size() % 10, 0U) << line;
            std::istringstream numbers(line);
            double number = 0.0;
            while (numbers >> number) {
            }
            EXPECT_TRUE(numbers.eof()) << line;
        }
    }
}

TEST(OpenRadiossForm, KeepsToItsFields) {
    for (const char* sample : kSamples)
        CheckRadioss(Exported("openradioss", {SampleCard(sample)}, "mm-t-s").text);
}

TEST(OpenRadiossForm, WritesJohnsonAndCooksLawWithItsUnits) {
    const auto deck = Exported("openradioss", {SampleCard("copper_ofhc")}, "mm-t-s");
    EXPECT_EQ(WithoutComments(deck.text, "#"),
              "/UNIT/1\nunits of the materials\n"
              "                  Mg                  mm                   s\n"
              "/MAT/PLAS_JOHNS/1/1\nOFHC copper\n"
              "            8.96e-09\n"
              "             124000.                0.34\n"
              "                 90.                292.                0.31                  0.              "
              "    0.\n"
              "                  0.                  0.\n"
              "                1.09               1356.             3.43168                298.\n");
}

TEST(OpenRadiossForm, WritesMooneyAndRivlinsRubberAsOgdens) {
    const auto deck = Exported(
        "openradioss",
        {StuffWith(
            std::string(kSomeDensity) +
            R"(, "hyperelastic": [{"model": "MOONEY_RIVLIN", "order": 1, "temperature_dependent": false,
            "columns": ["C10", "C01"], "rows": [[4e5, 1e5]]}])")});
    EXPECT_THAT(deck.text, HasSubstr("               8e+05              -2e+05                  0."));
    EXPECT_THAT(deck.text, HasSubstr("                  2.                 -2.                  0."));
    EXPECT_THAT(deck.findings, Contains(HasSubstr("incompressible is written as Poisson's ratio 0.495")));
}

TEST(OpenRadiossForm, NeedsADensity) {
    EXPECT_TRUE(Exported("openradioss", {StuffWith(kSomeElastic)}).errors);
}

TEST(MfrontForm, WritesASourceForEachProperty) {
    const auto material = StuffWith(
        R"("elastic": {"temperature_dependent": true, "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
            "rows": [[200e9, 0.3, 300], [100e9, 0.25, 400]]}, )" +
        std::string(kSomeDensity));
    const auto deck = Exported("mfront", {material});
    ASSERT_EQ(deck.files.size(), 3U);
    EXPECT_EQ(deck.files[0].name, "Stuff_YoungModulus.mfront");
    EXPECT_EQ(
        WithoutComments(deck.files[0].text, "//"),
        "@DSL MaterialLaw;\n@Law Stuff_YoungModulus;\n@Material Stuff;\n@Output E;\n"
        "E.setGlossaryName(\"YoungModulus\");\n@Input T;\nT.setGlossaryName(\"Temperature\");\n@Function {\n"
        "  if (T <= 300.) {\n    E = 2e+11;\n"
        "  } else if (T <= 400.) {\n    E = 2e+11 + (1e+11 - (2e+11)) * (T - (300.)) / (400. - (300.));\n"
        "  } else {\n    E = 1e+11;\n  }\n}\n");
    EXPECT_EQ(WithoutComments(deck.files[2].text, "//"),
              "@DSL MaterialLaw;\n@Law Stuff_MassDensity;\n@Material Stuff;\n@Output rho;\n"
              "rho.setGlossaryName(\"MassDensity\");\n@Function {\n  rho = 8000.;\n}\n");
}

TEST(MfrontForm, ClosesEveryBraceAndEndsEveryDirective) {
    for (const char* sample : kSamples) {
        for (const auto& file : Exported("mfront", {SampleCard(sample)}).files) {
            const std::string text = WithoutComments(file.text, "//");
            EXPECT_EQ(std::count(text.begin(), text.end(), '{'), std::count(text.begin(), text.end(), '}'));
            std::istringstream lines(text);
            for (std::string line; std::getline(lines, line);) {
                EXPECT_TRUE(line.ends_with(";") || line.ends_with("{") || line.ends_with("}")) << line;
            }
        }
    }
}

TEST(TextForms, SpeakInAscii) {
    auto material = StuffWith(kSomeDensity);
    material.name = "Stahl \xc3\xa4\n*ELASTIC";
    material.sources = {"\xe2\x80\xae\n/END\n@Import", std::string("x\0y", 3)};
    for (const char* form : {"elmer", "mfront", "code_aster", "openradioss", "calculix"}) {
        material.blocks = StuffWith(std::string(kSomeElastic) + ", " + kSomeDensity).blocks;
        const auto deck = Exported(form, {material});
        ASSERT_FALSE(deck.files.empty()) << form;
        for (const char character : deck.text)
            EXPECT_TRUE(character == '\n' || (character >= ' ' && character < 0x7f));
    }
}

}  // namespace
