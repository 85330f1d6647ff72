#include "zelmat/mechanics/tables/TemperatureTable.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace zelmat::mechanics;
using enum OutsidePolicy;
using testing::ElementsAre;
using testing::IsEmpty;

/// Two coefficients of a rubber at three temperatures.
TemperatureTable Coefficients() {
    return *TemperatureTable::Over({{273, {1, 10}}, {293, {3, 20}}, {333, {5, 60}}});
}

TEST(TemperatureTable, HasTheValuesOfARowAtItsTemperature) {
    const auto value = Coefficients().At(293, REFUSE);
    EXPECT_THAT(value->values, ElementsAre(3, 20));
    EXPECT_EQ(value->position, TablePosition::ON_ROW);
    EXPECT_THAT(value->notes, IsEmpty());
}

TEST(TemperatureTable, InterpolatesBetweenTheNearestRowsAndSaysSo) {
    const auto value = Coefficients().At(303, REFUSE);
    EXPECT_THAT(value->values, ElementsAre(3.5, 30));
    EXPECT_EQ(value->position, TablePosition::BETWEEN_ROWS);
    EXPECT_THAT(value->notes, ElementsAre("interpolated between rows"));
}

TEST(TemperatureTable, AnswersOutsideByThePolicyThatIsNamed) {
    const auto table = Coefficients();
    EXPECT_EQ(table.At(272, REFUSE).Why(), "the temperature lies outside the table");
    EXPECT_EQ(table.At(334, REFUSE).Why(), "the temperature lies outside the table");

    EXPECT_THAT(table.At(200, CONSTANT)->values, ElementsAre(1, 10));
    EXPECT_THAT(table.At(200, CONSTANT)->notes, ElementsAre("below the table: value of its first row"));
    EXPECT_THAT(table.At(400, CONSTANT)->values, ElementsAre(5, 60));
    EXPECT_THAT(table.At(400, CONSTANT)->notes, ElementsAre("above the table: value of its last row"));

    EXPECT_THAT(table.At(263, LINEAR)->values, ElementsAre(0, 5));
    EXPECT_EQ(table.At(263, LINEAR)->position, TablePosition::BELOW);
    EXPECT_THAT(table.At(353, LINEAR)->values, ElementsAre(6, 80));
    EXPECT_THAT(table.At(353, LINEAR)->notes,
                ElementsAre("above the table: extended along its last two rows on that side"));
}

TEST(TemperatureTable, WithoutTemperaturesHasOneValue) {
    const auto table = TemperatureTable::Independent({7});
    EXPECT_THAT(table.At(1e6, REFUSE)->values, ElementsAre(7));
    EXPECT_THAT(table.At(1e6, REFUSE)->notes, ElementsAre("does not depend on temperature"));
    EXPECT_THAT(table.SlopesAt(300, LINEAR)->above, ElementsAre(0));
    EXPECT_FALSE(table.Range());
}

TEST(TemperatureTable, OfOneRowHasNoLineToFollow) {
    const auto table = *TemperatureTable::Over({{293, {7}}});
    EXPECT_THAT(table.At(293, REFUSE)->values, ElementsAre(7));
    EXPECT_THAT(table.At(300, CONSTANT)->values, ElementsAre(7));
    EXPECT_EQ(table.At(300, LINEAR).Why(), "a table of one row cannot be extended linearly");
    EXPECT_EQ(table.Range()->lowest, 293);
    EXPECT_EQ(table.Range()->highest, 293);
}

TEST(TemperatureTable, HasSlopesThatDifferOnARow) {
    const auto table = Coefficients();
    EXPECT_THAT(table.SlopesAt(293, REFUSE)->below, ElementsAre(0.1, 0.5));
    EXPECT_THAT(table.SlopesAt(293, REFUSE)->above, ElementsAre(0.05, 1));
    EXPECT_THAT(table.SlopesAt(280, REFUSE)->below, ElementsAre(0.1, 0.5));
    EXPECT_THAT(table.SlopesAt(273, REFUSE)->below, ElementsAre(0.1, 0.5));
    EXPECT_THAT(table.SlopesAt(333, REFUSE)->above, ElementsAre(0.05, 1));
    EXPECT_THAT(table.SlopesAt(400, CONSTANT)->above, ElementsAre(0, 0));
    EXPECT_THAT(table.SlopesAt(200, LINEAR)->above, ElementsAre(0.1, 0.5));
    EXPECT_FALSE(table.SlopesAt(400, REFUSE).Ok());
}

TEST(TemperatureTable, IsRefusedForRowsThatAreNoTable) {
    const auto why = [](const std::vector<TemperatureTable::Row>& rows) {
        return TemperatureTable::Over(rows).Why();
    };
    EXPECT_EQ(why({}), "a table over temperature needs a row");
    EXPECT_EQ(why({{300, {1}}, {300, {2}}}), "the temperature of row 2 is not above that of the row before");
    EXPECT_EQ(why({{300, {1}}, {400, {2, 3}}}), "row 2 is not as long as the first one");
    EXPECT_EQ(why({{300, {NAN}}}), "row 1 holds a number that is not finite");
    EXPECT_EQ(Coefficients().At(NAN, CONSTANT).Why(), "a temperature has to be a finite number");
}

TEST(TemperatureTable, HasPoliciesByTheirKeywords) {
    EXPECT_EQ(OutsidePolicyOf("error"), REFUSE);
    EXPECT_EQ(OutsidePolicyOf("constant"), CONSTANT);
    EXPECT_EQ(OutsidePolicyOf("linear"), LINEAR);
    EXPECT_FALSE(OutsidePolicyOf("nearest"));
}

}  // namespace
