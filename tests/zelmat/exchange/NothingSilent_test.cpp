#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tests/zelmat/exchange/SampleDeck.h"

namespace {

using testing::AnyOf;
using testing::Contains;
using testing::HasSubstr;
using zelmat::Carry;
using zelmat::DeckForm;

/// A behavior as a card has it. 1.23457 begins a number of each, which no other has as its first one.
struct CardBehavior {
    std::string block;
    std::string marker;  ///< that number as decks in SI units write it
};

std::string Curve(const std::string& hardening) {
    return R"("plastic": {"hardening": ")" + hardening + R"(", "temperature_dependent": false,
        "columns": ["yield_stress", "plastic_strain", "temperature"],
        "rows": [[1.23457e8, 0, 300], [3e8, 0.1, 300]]})";
}

std::string Fit(const std::string& model, int order, const std::string& columns, const std::string& further) {
    return R"("hyperelastic": [{"model": ")" + model + R"(", "order": )" + std::to_string(order) +
           R"(, "temperature_dependent": false, "columns": )" + columns + R"(, "rows": [[1.23457e6)" +
           further + "]]}]";
}

const std::map<std::string, CardBehavior>& CardBehaviors() {
    static const std::map<std::string, CardBehavior> behaviors = {
        {"elastic",
         {R"("elastic": {"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"],
              "rows": [[1.23457e11, 0.3]]})",
          "1.23457e+11"}},
        {"plastic isotropic", {Curve("isotropic"), "123457000"}},
        {"plastic kinematic", {Curve("kinematic"), "123457000"}},
        {"plastic johnson-cook",
         {R"("plastic": {"hardening": "johnson-cook", "temperature_dependent": false,
              "columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"],
              "rows": [[1.23457e8, 2.92e8, 0.31, 1.09, 1356, 298]]})",
          "123457000"}},
        {"density",
         {R"("density": {"temperature_dependent": false, "columns": ["density"], "rows": [[1234.57]]})",
          "1234.57"}},
        {"thermal_expansion",
         {R"("thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"],
              "rows": [[1.23457e-5]], "reference_temperature": 300})",
          "1.23457e-05"}},
        {"conductivity",
         {R"("conductivity": {"temperature_dependent": false, "columns": ["conductivity"], "rows": [[12.3457]]})",
          "12.3457"}},
        {"specific_heat",
         {R"("specific_heat": {"temperature_dependent": false, "columns": ["specific_heat"], "rows": [[123.457]]})",
          "123.457"}},
        {"user_material MECHANICAL",
         {R"("user_material": {"type": "MECHANICAL", "constants": [1.23457]})", "1.23457"}},
        {"user_material THERMAL",
         {R"("user_material": {"type": "THERMAL", "constants": [1.23457]})", "1.23457"}},
        {"hyperelastic ARRUDA_BOYCE",
         {Fit("ARRUDA_BOYCE", 1, R"(["mu", "lambda_m", "D"])", ", 3, 1e-9"), "1234570"}},
        {"hyperelastic MOONEY_RIVLIN",
         {Fit("MOONEY_RIVLIN", 1, R"(["C10", "C01", "D1"])", ", 1e5, 1e-9"), "1234570"}},
        {"hyperelastic NEO_HOOKE", {Fit("NEO_HOOKE", 1, R"(["C10", "D1"])", ", 1e-9"), "1234570"}},
        {"hyperelastic OGDEN", {Fit("OGDEN", 1, R"(["mu_1", "alpha_1", "D1"])", ", 2, 1e-9"), "1234570"}},
        {"hyperelastic POLYNOMIAL",
         {Fit("POLYNOMIAL", 1, R"(["C10", "C01", "D1"])", ", 1e5, 1e-9"), "1234570"}},
        {"hyperelastic REDUCED_POLYNOMIAL",
         {Fit("REDUCED_POLYNOMIAL", 2, R"(["C10", "C20", "D1", "D2"])", ", 1e4, 1e-9, 1e-9"), "1234570"}},
        {"hyperelastic VAN_DER_WAALS",
         {Fit("VAN_DER_WAALS", 1, R"(["mu", "lambda_m", "a", "beta"])", ", 10, 0.3, 0"), "1234570"}},
        {"hyperelastic YEOH",
         {Fit("YEOH", 3, R"(["C10", "C20", "C30", "D1", "D2", "D3"])", ", 1e4, 1e3, 1e-9, 0, 0"), "1234570"}},
        {"gasket",
         {R"("gasket": {"loading": {"temperature_dependent": false, "columns": ["pressure", "closure", "temperature"],
              "rows": [[0, 0, 293], [1.23457e6, 1e-4, 293], [3e6, 2e-4, 293]]}})",
          "1234570"}},
        {"gasket_membrane",
         {R"("gasket_membrane": {"temperature_dependent": false,
              "columns": ["youngs_modulus", "poissons_ratio", "temperature"], "rows": [[1.23457e9, 0.3, 293]]})",
          "1234570000"}},
        {"gasket_transverse_shear",
         {R"("gasket_transverse_shear": {"temperature_dependent": false,
              "columns": ["shear_stiffness", "temperature"], "rows": [[1.23457e9, 293]]})",
          "1234570000"}},
        {"ply constants",
         {R"("other_properties": {"E1": 1.23457e11, "E2": 1e10, "nu12": 0.28, "G12": 7e9})", "1.23457e+11"}},
    };
    return behaviors;
}

/// Whether the numbers of a behavior are in a deck, or a finding says what became of them.
void ExpectAWordAbout(const std::string& behavior, const DeckForm& form, const ExportedDeck& deck,
                      const std::string& with) {
    std::string text;
    for (const auto& file : deck.files) text += WithoutComments(file.text, form.comment);
    const bool carried = text.find(CardBehaviors().at(behavior).marker) != std::string::npos;
    const auto lost =
        Contains(AllOf(HasSubstr("warning[not-carried]"), HasSubstr(behavior.substr(0, behavior.find(' ')))));
    const auto converted =
        Contains(HasSubstr("note[changed-in-deck]: 'Stuff': " + behavior + " is written as"));
    const auto* rule = zelmat::FindRule(form.rules, behavior);
    const std::string where = form.name + ": " + behavior + " with " + with;
    if (rule->carry == Carry::CONVERTED) {
        EXPECT_THAT(deck.findings, AnyOf(lost, converted)) << where;
    } else if (rule->carry == Carry::LOST || !carried) {
        EXPECT_THAT(deck.findings, lost) << where << "\n" << text;
    }
}

TEST(NothingSilent, EveryBehaviorAloneIsInTheDeckOrToldLost) {
    for (const DeckForm& form : zelmat::DeckForms()) {
        for (const auto& [behavior, card] : CardBehaviors()) {
            const auto deck = Exported(form.name, {StuffWith(card.block)});
            ExpectAWordAbout(behavior, form, deck, "nothing");
            EXPECT_EQ(deck.files.empty(), deck.errors) << form.name << ": " << behavior;
        }
    }
}

TEST(NothingSilent, EveryTwoBehaviorsAreInTheDeckOrToldLost) {
    for (const DeckForm& form : zelmat::DeckForms()) {
        for (const auto& [behavior, card] : CardBehaviors()) {
            for (const auto& [other, otherCard] : CardBehaviors()) {
                const std::string block = behavior.substr(0, behavior.find(' '));
                if (other.substr(0, other.find(' ')) == block) continue;
                const auto deck = Exported(form.name, {StuffWith(card.block + ", " + otherCard.block)});
                ExpectAWordAbout(behavior, form, deck, other);
            }
        }
    }
}

TEST(NothingSilent, HasACardOfEveryBehaviorThatAMaterialHas) {
    std::vector<std::string> names;
    for (const auto& [behavior, card] : CardBehaviors()) names.push_back(behavior);
    names.emplace_back("layup");
    EXPECT_THAT(names, testing::UnorderedElementsAreArray(zelmat::BehaviorNames()));
}

TEST(NothingSilent, TellsThatTheMaterialGeneratesHeat) {
    for (const DeckForm& form : zelmat::DeckForms()) {
        const auto deck = Exported(form.name, {StuffWith(R"("heat_generation": true, )" +
                                                         std::string(kSomeElastic) + ", " + kSomeDensity)});
        EXPECT_THAT(deck.findings, Contains(HasSubstr("warning[not-carried]: 'Stuff': heat_generation")))
            << form.name;
    }
}

TEST(NothingSilent, ClaimsNoConversionOfWhatIsLost) {
    const auto deck = Exported("openradioss", {StuffWith(CardBehaviors().at("specific_heat").block + ", " +
                                                         kSomeElastic + ", " + kSomeDensity)});
    EXPECT_THAT(deck.findings,
                Contains("warning[not-carried]: 'Stuff': specific_heat: only Johnson and Cook's "
                         "law has a place for it"));
    EXPECT_THAT(deck.findings, testing::Not(Contains(HasSubstr("specific_heat is written as"))));
}

TEST(NothingSilent, TellsCompressibilitiesThatAreNotWritten) {
    for (const char* form : {"code_aster", "openradioss"}) {
        const auto deck = Exported(
            form, {StuffWith(std::string(kSomeDensity) + ", " +
                             (form == std::string("openradioss")
                                  ? Fit("OGDEN", 2, R"(["mu_1", "alpha_1", "mu_2", "alpha_2", "D1", "D2"])",
                                        ", 2, 1e5, 4, 1e-9, 1e-9")
                                  : CardBehaviors().at("hyperelastic REDUCED_POLYNOMIAL").block))});
        EXPECT_THAT(deck.findings,
                    Contains("warning[not-carried]: 'Stuff': hyperelastic: the compressibilities behind D1"))
            << form;
    }
}

}  // namespace
