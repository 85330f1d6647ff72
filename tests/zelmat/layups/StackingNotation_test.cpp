#include "zelmat/layups/StackingNotation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
    EXPECT_EQ(Mistake("[0]q").text, "the end of the laminate, or 's', was expected here");
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
    EXPECT_EQ(WriteStackingNotation({0, 90, 0}), "[0/90_bar]s");
    EXPECT_EQ(WriteStackingNotation({0, 30, -45}), "[0/30/-45]");
    EXPECT_EQ(WriteStackingNotation({0, 0, 90, 0, 0, 90}), "[0_2/90]2");
    EXPECT_EQ(WriteStackingNotation({45}), "[45]");
    EXPECT_EQ(WriteStackingNotation({0, 0, 0, 0}), "[0]2s");
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
