#include "zelmat/layups/StackingNotation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace {

using testing::ElementsAre;
using zelmat::NotationMistake;
using zelmat::ReadStackingNotation;
using zelmat::StackingSequence;
using zelmat::WriteStackingNotation;

StackingSequence Plies(std::string_view notation) {
    const auto read = ReadStackingNotation(notation);
    if (const auto* mistake = std::get_if<NotationMistake>(&read)) {
        ADD_FAILURE() << notation << ":" << mistake->position << ": " << mistake->text;
        return {};
    }
    return std::get<StackingSequence>(read);
}

NotationMistake Mistake(std::string_view notation) {
    const auto read = ReadStackingNotation(notation);
    if (const auto* mistake = std::get_if<NotationMistake>(&read)) return *mistake;
    ADD_FAILURE() << notation << " was read";
    return {0, ""};
}

TEST(StackingNotation, ReadsPliesFromTheBottomUp) {
    EXPECT_THAT(Plies("[0/30/-45]"), ElementsAre(0, 30, -45));
    EXPECT_THAT(Plies("[12.5]"), ElementsAre(12.5));
    EXPECT_THAT(Plies(" [ 0 / 90 ] "), ElementsAre(0, 90));
}

TEST(StackingNotation, MirrorsASymmetricLaminate) {
    EXPECT_THAT(Plies("[0/45/-45/90]s"), ElementsAre(0, 45, -45, 90, 90, -45, 45, 0));
    EXPECT_THAT(Plies("[0/90]S"), ElementsAre(0, 90, 90, 0));
    EXPECT_THAT(Plies("[0/90]_s"), ElementsAre(0, 90, 90, 0));
    EXPECT_THAT(Plies("[0/90]ₛ"), ElementsAre(0, 90, 90, 0));
}

TEST(StackingNotation, LeavesATotalLaminateAsItIs) {
    EXPECT_THAT(Plies("[0/90]T"), ElementsAre(0, 90));
    EXPECT_THAT(Plies("[0/90]_2t"), ElementsAre(0, 90, 0, 90));
}

TEST(StackingNotation, RepeatsALaminateAGroupAndAPly) {
    EXPECT_THAT(Plies("[0/90]2"), ElementsAre(0, 90, 0, 90));
    EXPECT_THAT(Plies("[0/90]_2"), ElementsAre(0, 90, 0, 90));
    EXPECT_THAT(Plies("[0/90]2s"), ElementsAre(0, 90, 0, 90, 90, 0, 90, 0));
    EXPECT_THAT(Plies("[0/90]₂ₛ"), ElementsAre(0, 90, 0, 90, 90, 0, 90, 0));
    EXPECT_THAT(Plies("[(0/90)2/45]"), ElementsAre(0, 90, 0, 90, 45));
    EXPECT_THAT(Plies("[((0)2/90)_2]"), ElementsAre(0, 0, 90, 0, 0, 90));
    EXPECT_THAT(Plies("[0_3/90]"), ElementsAre(0, 0, 0, 90));
    EXPECT_THAT(Plies("[0₃/90]"), ElementsAre(0, 0, 0, 90));
    EXPECT_THAT(Plies("[0₁₂]").size(), 12u);
}

TEST(StackingNotation, ExpandsPlusMinus) {
    EXPECT_THAT(Plies("[±45/0]2"), ElementsAre(45, -45, 0, 45, -45, 0));
    EXPECT_THAT(Plies("[∓45]"), ElementsAre(-45, 45));
    EXPECT_THAT(Plies("[+-30]"), ElementsAre(30, -30));
    EXPECT_THAT(Plies("[-+30]"), ElementsAre(-30, 30));
    EXPECT_THAT(Plies("[±45_2]"), ElementsAre(45, -45, 45, -45));
    EXPECT_THAT(Plies("[+45/−45]"), ElementsAre(45, -45));
}

TEST(StackingNotation, PutsAMidPlyIntoTheMiddleOnce) {
    EXPECT_THAT(Plies("[0/90_bar]s"), ElementsAre(0, 90, 0));
    EXPECT_THAT(Plies("[0_bar]s"), ElementsAre(0));
}

TEST(StackingNotation, SaysWhereAMistakeStands) {
    EXPECT_EQ(Mistake("").position, 1u);
    EXPECT_EQ(Mistake("0/90").position, 1u);
    EXPECT_EQ(Mistake("[0/90").position, 6u);
    EXPECT_EQ(Mistake("[0//90]").position, 4u);
    EXPECT_EQ(Mistake("[0/x]").position, 4u);
    EXPECT_EQ(Mistake("[±45/x]").position, 6u);
    EXPECT_EQ(Mistake("[0/90]q").position, 7u);
    EXPECT_EQ(Mistake("[1.2.3]").position, 2u);
    EXPECT_EQ(Mistake("[0/(90]").position, 7u);
    EXPECT_EQ(Mistake("[0_x]").position, 4u);
    EXPECT_EQ(Mistake("[0]0").position, 4u);
}

TEST(StackingNotation, SaysWhatWasExpected) {
    EXPECT_EQ(Mistake("0/90").text, "a laminate begins with '['");
    EXPECT_EQ(Mistake("[0//90]").text, "an angle in degrees was expected here");
    EXPECT_EQ(Mistake("[0 90").text, "'/' or ']' was expected here");
    EXPECT_EQ(Mistake("[0]q").text, "the end of the laminate, 's' or 'as', was expected here");
}

TEST(StackingNotation, RefusesAMidPlyThatCannotBeOne) {
    EXPECT_EQ(Mistake("[0/90_bar]").text, "a mid-ply stands in a symmetric laminate only: [...]s");
    EXPECT_EQ(Mistake("[0_bar/90]s").text, "a mid-ply is the last one inside the brackets");
    EXPECT_EQ(Mistake("[0/90_bar]2s").text, "a laminate with a mid-ply is not repeated");
    EXPECT_EQ(Mistake("[(0/90_bar)2]s").text, "a mid-ply stands outside every group");
    EXPECT_EQ(Mistake("[±45_bar]s").text, "a mid-ply has one angle");
}

TEST(StackingNotation, RefusesLaminatesBeyondAllMeasure) {
    EXPECT_EQ(Mistake("[0]100001").text, "the laminate has more than 100000 plies");
    EXPECT_EQ(Mistake("[0_99999]s").text, "the laminate has more than 100000 plies");
    EXPECT_EQ(Mistake("[0]99999999999999999999999").text, "a repeat count from 1 to 100000 was expected");
    EXPECT_EQ(Mistake("[" + std::string(40, '(') + "0").text, "groups stand too deep inside each other");
}

TEST(StackingNotation, IsWrittenAsShortAsTheSequenceAllows) {
    EXPECT_EQ(WriteStackingNotation({0, 45, -45, 90, 90, -45, 45, 0}), "[0/45/-45/90]s");
    EXPECT_EQ(WriteStackingNotation({0, 90, 0, 90, 90, 0, 90, 0}), "[0/90]2s");
    EXPECT_EQ(WriteStackingNotation({0, 90, 0}), "[0/90/0]");
    EXPECT_EQ(WriteStackingNotation({0, 45, -45, 90, -45, 45, 0}), "[0/45/-45/90_bar]s");
    EXPECT_EQ(WriteStackingNotation({0, 30, -45}), "[0/30/-45]");
    EXPECT_EQ(WriteStackingNotation({0, 0, 90, 0, 0, 90}), "[0_2/90]2");
    EXPECT_EQ(WriteStackingNotation({45}), "[45]");
    EXPECT_EQ(WriteStackingNotation({90, 0, 0}), "[90/0_2]");
    EXPECT_EQ(WriteStackingNotation({0, 0, 0, 0}), "[0]4");
    EXPECT_EQ(WriteStackingNotation({0, 90, 0, 90, 0, 90, 45}), "[(0/90)3/45]");
    EXPECT_EQ(WriteStackingNotation({45, 0, 90, 0, 90, 0, 90, 45, 45, 90, 0, 90, 0, 90, 0, 45}),
              "[45/(0/90)3/45]s");
    EXPECT_EQ(WriteStackingNotation({}), "");
}

TEST(StackingNotation, IsWrittenWithoutExponents) {
    EXPECT_EQ(WriteStackingNotation({1e-7, -0.0}), "[0.0000001/0]");
    EXPECT_THAT(Plies("[0.0000001/0]"), ElementsAre(1e-7, 0));
}

/// The plain list of a sequence, as long as it takes.
std::string PlainList(const StackingSequence& sequence) {
    std::string text;
    for (const double angle : sequence)
        text += (text.empty() ? "" : "/") + std::to_string(static_cast<int>(angle));
    return "[" + text + "]";
}

TEST(StackingNotation, ReadsBackWhatItWritesAndIsNeverLongerThanThePlainList) {
    std::mt19937 random(20261121);
    const int angles[] = {0, 90, 45, -45, 5};
    for (int i = 0; i < 500; ++i) {
        StackingSequence sequence(1 + random() % 40);
        for (double& angle : sequence) angle = angles[random() % (2 + random() % 4)];
        if (random() % 2 == 0) sequence.insert(sequence.end(), sequence.begin(), sequence.end());
        if (random() % 2 == 0) sequence.insert(sequence.end(), sequence.rbegin(), sequence.rend());

        const std::string text = WriteStackingNotation(sequence);

        EXPECT_EQ(Plies(text), sequence) << text;
        EXPECT_LE(text.size(), PlainList(sequence).size()) << text;
    }
}

TEST(StackingNotation, ReadsAHundredThousandPliesWrittenOutInFull) {
    std::string plies = "0";
    for (int i = 1; i < 100'000; ++i) plies += i % 3 == 0 ? "/-45" : "/90";
    EXPECT_EQ(Plies("[" + plies + "]").size(), 100'000u);
    EXPECT_EQ(Mistake("[" + plies + "/0]").text, "the laminate has more than 100000 plies");
}

TEST(StackingNotation, ExpandsAnAntisymmetricLaminate) {
    EXPECT_THAT(Plies("[30/60]as"), ElementsAre(30, 60, -60, -30));
    EXPECT_THAT(Plies("[0/90/-45]AS"), ElementsAre(0, 90, -45, 45, 90, 0));
    EXPECT_THAT(Plies("[-90/10]_as"), ElementsAre(-90, 10, -10, 90));
    EXPECT_THAT(Plies("[±20]2as"), ElementsAre(20, -20, 20, -20, 20, -20, 20, -20));
    EXPECT_EQ(Mistake("[0/90_bar]as").text, "a mid-ply stands in a symmetric laminate only: [...]s");
    EXPECT_EQ(Mistake("[0/90]a").position, 7u);
}

TEST(StackingNotation, TakesADegreeSignAfterAnAngle) {
    EXPECT_THAT(Plies("[0°/±45°/90°_2]"), ElementsAre(0, 45, -45, 90, 90));
    EXPECT_EQ(Mistake("[°]").position, 2u);
    EXPECT_EQ(Mistake("[0°°]").position, 4u);
}

TEST(StackingNotation, KnowsNoLettersForPlusMinus) {
    EXPECT_EQ(Mistake("[p45]").text, "an angle in degrees was expected here");
    EXPECT_EQ(Mistake("[m45]").text, "an angle in degrees was expected here");
    EXPECT_EQ(Mistake("[\x01"
                      "45]")
                  .text,
              "an angle in degrees was expected here");
}

TEST(StackingNotation, HoldsAnglesWithinAFullTurn) {
    EXPECT_THAT(Plies("[360/-360]"), ElementsAre(360, -360));
    EXPECT_EQ(Mistake("[0/360.5]").text, "an angle lies between -360 and 360 degrees");
    EXPECT_EQ(Mistake("[0/360.5]").position, 4u);
    EXPECT_EQ(Mistake("[1e3]").position, 3u);
}

TEST(StackingNotation, ReadsBackWhatItWrites) {
    const StackingSequence sequences[] = {
        {0, 90, 90, 0},   {45, -45, 45, -45, -45, 45, -45, 45}, {0, 12.5, 0}, {0, 0, 90}, {30}, {-30, 30},
        {0, 90, 0, 90, 0}};

    for (const StackingSequence& sequence : sequences) {
        EXPECT_EQ(Plies(WriteStackingNotation(sequence)), sequence);
    }
}

}  // namespace
