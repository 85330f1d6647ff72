#include "zelmat/mechanics/gasket/GasketOverTemperature.h"

#include <gmock/gmock.h>

namespace {

using namespace zelmat::mechanics;
using testing::ElementsAre;

/// Twice as stiff at 300 as at 400.
std::vector<GasketAtTemperature> Gaskets() {
    return {{300, *GasketThickness::Over({{0, 0}, {1, 20}}, {})},
            {400, *GasketThickness::Over({{0, 0}, {1, 10}}, {})}};
}

Outcome<GasketValue> Read(double closure, double temperature, OutsidePolicy policy) {
    return ReadAt(Gaskets(), temperature, policy, [closure](const GasketThickness& gasket) {
        return gasket.Loading(closure, OutsidePolicy::CONSTANT);
    });
}

TEST(GasketOverTemperature, IsLinearBetweenTheTemperatures) {
    const auto value = Read(0.5, 325, OutsidePolicy::REFUSE);
    EXPECT_EQ(value->pressure, 8.75);
    EXPECT_EQ(value->secantStiffness, 17.5);
    EXPECT_EQ(value->tangentStiffness, 17.5);
    EXPECT_THAT(value->notes, ElementsAre("interpolated between rows"));
    EXPECT_EQ(Read(0.5, 300, OutsidePolicy::REFUSE)->pressure, 10);
}

TEST(GasketOverTemperature, SaysWhatItsReadingsSayAndWhereItIsOutside) {
    EXPECT_THAT(Read(2, 500, OutsidePolicy::CONSTANT)->notes,
                ElementsAre("beyond the loading curve: pressure of its last point",
                            "above the table: value of its last row"));
    EXPECT_EQ(Read(0.5, 500, OutsidePolicy::REFUSE).Why(), "the temperature lies outside the table");
    EXPECT_EQ(Read(-1, 300, OutsidePolicy::REFUSE).Why(), "a closure has to be a finite number from 0 on");
    EXPECT_FALSE(ReadAt({}, 300, OutsidePolicy::REFUSE, {}).Ok());
}

}  // namespace
