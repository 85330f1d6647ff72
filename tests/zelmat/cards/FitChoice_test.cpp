#include "zelmat/cards/FitChoice.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

/// Two Mooney-Rivlin fits behind one of Neo-Hooke.
zelmat::Material ThreeFits() {
    auto card = CardOf(R"({"name": "Rubber", "hyperelastic":
[{"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10"], "rows": [[195000]]},
 {"model": "MOONEY_RIVLIN", "order": 1, "temperature_dependent": false, "columns": ["C10", "C01"],
  "rows": [[171300, 4700]], "variant": "fit to the equibiaxial test"},
 {"model": "MOONEY_RIVLIN", "order": 1, "temperature_dependent": false, "columns": ["C10", "C01"],
  "rows": [[258800, -44900]], "variant": "fit to the uniaxial test"}]})");
    card.file = "card.json";
    return card;
}

/// Which of the card's fits is chosen, from 0; -1 for none.
long Chosen(const zelmat::Material& card, const zelmat::FitChoice& choice) {
    zelmat::Findings findings;
    const auto* fit = zelmat::ChooseFit(card, choice, findings);
    EXPECT_EQ(fit == nullptr, findings.Exit() == zelmat::EXIT_USAGE);
    return fit ? fit - card.fits.data() : -1;
}

TEST(FitChoice, TakesTheFirstFitWithoutAChoice) {
    EXPECT_EQ(Chosen(ThreeFits(), {}), 0);
}

TEST(FitChoice, TakesTheFirstFitOfAModel) {
    EXPECT_EQ(Chosen(ThreeFits(), {"MOONEY_RIVLIN", ""}), 1);
    EXPECT_EQ(Chosen(ThreeFits(), {"NEO_HOOKE", ""}), 0);
}

TEST(FitChoice, TakesTheVariantThatHoldsTheText) {
    EXPECT_EQ(Chosen(ThreeFits(), {"MOONEY_RIVLIN", "uniaxial"}), 2);
    EXPECT_EQ(Chosen(ThreeFits(), {"", "uniaxial"}), 2);
    EXPECT_EQ(Chosen(ThreeFits(), {"", "fit to"}), 1);
}

TEST(FitChoice, TellsWhatTheCardHasWhenItHasNoSuchFit) {
    const auto card = ThreeFits();
    for (const auto& [choice, wanted] : std::vector<std::pair<zelmat::FitChoice, std::string>>{
             {{"YEOH", ""}, "YEOH"},
             {{"NEO_HOOKE", "uniaxial"}, "NEO_HOOKE of variant \"uniaxial\""},
             {{"", "planar"}, "variant \"planar\""},
             {{"neo_hooke", ""}, "neo_hooke"}}) {
        zelmat::Findings findings;
        EXPECT_EQ(zelmat::ChooseFit(card, choice, findings), nullptr);
        ASSERT_EQ(findings.All().size(), 1u);
        EXPECT_EQ(zelmat::FindingLine(findings.All()[0]),
                  "card.json:2: error[no-such-model]: Rubber has no hyperelastic fit " + wanted +
                      " (has: NEO_HOOKE, MOONEY_RIVLIN (fit to the equibiaxial test), MOONEY_RIVLIN (fit to "
                      "the uniaxial test))");
        EXPECT_EQ(findings.Exit(), 2);
    }
}

TEST(FitChoice, IsAFindingForACardWithoutFitsOnlyWhenItIsMade) {
    zelmat::Material card;
    card.file = "card.json";
    card.name = "Steel";
    zelmat::Findings findings;
    EXPECT_EQ(zelmat::ChooseFit(card, {}, findings), nullptr);
    EXPECT_EQ(findings.Exit(), 0);

    EXPECT_EQ(zelmat::ChooseFit(card, {"OGDEN", ""}, findings), nullptr);
    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]),
              "card.json: error[no-such-model]: Steel has no hyperelastic fit OGDEN (the card has none)");
}

}  // namespace
