#include "zelmat/mechanics/gasket/GasketThickness.h"

#include <gmock/gmock.h>

#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

namespace {

using namespace zelmat::mechanics;
using enum OutsidePolicy;
using testing::ElementsAre;
using testing::IsEmpty;

/// Loading to (1, 10), (2, 30) and (4, 50); two elastic-plastic unloading curves, from (2, 30) to 1 and from
/// (4, 50) to 2.
GasketThickness Gasket() {
    return *GasketThickness::Over({{0, 0}, {1, 10}, {2, 30}, {4, 50}},
                                  {{0, 1, 1}, {10, 1.5, 1}, {30, 2, 1}, {0, 2, 2}, {20, 3, 2}, {50, 4, 2}});
}

TEST(GasketThickness, LoadsLinearlyBetweenPoints) {
    const auto value = *Gasket().Loading(1.5, REFUSE);
    EXPECT_EQ(value.pressure, 20);
    EXPECT_NEAR(value.secantStiffness.value(), 20 / 1.5, 1e-14);
    EXPECT_EQ(value.tangentStiffness, 20);
    EXPECT_EQ(value.tangentStiffnessBelow, 20);
    EXPECT_THAT(value.notes, IsEmpty());
    const auto corner = *Gasket().Loading(1, REFUSE);
    EXPECT_EQ(corner.pressure, 10);
    EXPECT_EQ(corner.tangentStiffnessBelow, 10);
    EXPECT_EQ(corner.tangentStiffness, 20);
    EXPECT_FALSE(Gasket().Loading(0, REFUSE)->secantStiffness);  // 0 over 0
}

TEST(GasketThickness, NamesWhatItTakesBeyondTheLoadingCurve) {
    EXPECT_EQ(Gasket().Loading(5, REFUSE).Why(), "the closure lies beyond the loading curve");
    EXPECT_EQ(Gasket().Loading(5, CONSTANT)->pressure, 50);
    EXPECT_EQ(Gasket().Loading(5, CONSTANT)->tangentStiffness, 0);
    EXPECT_THAT(Gasket().Loading(5, CONSTANT)->notes,
                ElementsAre("beyond the loading curve: pressure of its last point"));
    EXPECT_EQ(Gasket().Loading(5, LINEAR)->pressure, 60);
    EXPECT_THAT(Gasket().Loading(5, LINEAR)->notes,
                ElementsAre("beyond the loading curve: extended along its last line"));
}

TEST(GasketThickness, UnloadsAlongTheCurveOfTheGreatestClosure) {
    EXPECT_EQ(Gasket().Unloading(4, 4)->pressure, 50);
    EXPECT_EQ(Gasket().Unloading(3.5, 4)->pressure, 35);
    EXPECT_EQ(Gasket().Unloading(3.5, 4)->tangentStiffness, 30);
    EXPECT_EQ(Gasket().Unloading(2, 4)->pressure, 0);
    const auto stays = *Gasket().Unloading(1, 4);
    EXPECT_EQ(stays.pressure, 0);
    EXPECT_THAT(stays.notes, ElementsAre("below the closure that stays: no pressure"));
}

TEST(GasketThickness, UnloadsBetweenTwoCurvesAtEqualFractionOfClosure) {
    // From 3, half way between the curves: without pressure at 1.5, at the middle 2.25 half of 10 + 20.
    const auto value = *Gasket().Unloading(2.25, 3);
    EXPECT_NEAR(value.pressure, 15, 1e-13);
    EXPECT_NEAR(value.tangentStiffness, 0.5 * (40 + 60) * 0.5 / 0.75, 0.5 * 40);
    EXPECT_THAT(value.notes,
                ElementsAre("interpolated between two unloading curves at equal fraction of closure"));
    EXPECT_NEAR(Gasket().Unloading(3, 3)->pressure, 40, 1e-13);  // the loading curve is there at 40, too
    EXPECT_NEAR(Gasket().Unloading(1.5, 3)->pressure, 0, 1e-13);
    const double step = 1e-6;
    EXPECT_NEAR(Gasket().Unloading(2, 3)->tangentStiffness,
                (Gasket().Unloading(2 + step, 3)->pressure - Gasket().Unloading(2, 3)->pressure) / step,
                1e-6);
}

TEST(GasketThickness, LosesTheEnergyBetweenLoadingAndUnloading) {
    // Loading 5 + 20 + 80, unloading 10 + 35.
    EXPECT_NEAR(Gasket().EnergyLoss(4)->energyLoss, 60, 1e-12);
    double back = 0;
    const int count = 20000;
    for (int i = 0; i < count; ++i)
        back += Gasket().Unloading(1.5 + 1.5 * (i + 0.5) / count, 3)->pressure * 1.5 / count;
    EXPECT_NEAR(Gasket().EnergyLoss(3)->energyLoss, 5 + 20 + 35 - back, 1e-4);
    EXPECT_EQ(Gasket().EnergyLoss(1)->energyLoss, 0);
}

TEST(GasketThickness, GoesBackAlongTheLoadingCurveBelowTheFirstUnloadingCurve) {
    const auto value = *Gasket().Unloading(0.5, 1.5);
    EXPECT_EQ(value.pressure, 5);
    EXPECT_THAT(value.notes, ElementsAre("below the first unloading curve: back along the loading curve"));
}

TEST(GasketThickness, ReadsTheSampleGasketInBothForms) {
    const auto sample =
        nlohmann::json::parse(std::ifstream(ZELMAT_SAMPLES "/gasket_fibre_illustrative.json"))["gasket"];
    std::vector<PressurePoint> loading;
    for (const auto& row : sample["loading"]["rows"])
        loading.push_back({row[1].get<double>(), row[0].get<double>()});
    for (const std::string form : {"unloading_elastic_plastic", "unloading_damage"}) {
        std::vector<UnloadingPoint> unloading;
        for (const auto& row : sample[form]["rows"]) {
            unloading.push_back({row[0].get<double>(), row[1].get<double>(), row[2].get<double>()});
        }
        const auto gasket = *GasketThickness::Over(loading, unloading);
        EXPECT_EQ(gasket.Loading(0.0002, REFUSE)->pressure, 34.5e6);
        EXPECT_EQ(gasket.Unloading(0.0002, 0.0002)->pressure, 34.5e6);
        EXPECT_EQ(gasket.Unloading(form == "unloading_damage" ? 0.00012 : 0.00016, 0.0002)->pressure,
                  form == "unloading_damage" ? 11213800.0 : 13756000.0);
        const auto cycle = *gasket.EnergyLoss(0.0002);
        if (form == "unloading_damage") {
            // The made-up curve is so coarse that it lies above the loading curve on its way.
            EXPECT_NEAR(cycle.energyLoss, -210.3328, 1e-3);
            EXPECT_THAT(cycle.notes,
                        ElementsAre("unloading lies above loading: the cycle would give energy"));
        } else {
            EXPECT_NEAR(cycle.energyLoss, 817.5443, 1e-3);
            EXPECT_THAT(cycle.notes, IsEmpty());
        }
    }
}

TEST(GasketThickness, IsRefusedForCurvesAndClosuresThatAreNone) {
    const auto why = [](std::vector<PressurePoint> loading, const std::vector<UnloadingPoint>& unloading) {
        return GasketThickness::Over(std::move(loading), unloading).Why();
    };
    EXPECT_EQ(why({{0, 0}}, {}), "loading: a curve of pressure over closure needs two points");
    EXPECT_EQ(why({{0, 1}, {1, 2}}, {}), "loading has to start without closure and pressure");
    EXPECT_EQ(why({{0, 0}, {0, 2}}, {}), "loading: point 2: the closure does not rise");
    EXPECT_EQ(why({{0, 0}, {1, NAN}}, {}), "loading: point 2 holds a number that is not finite");
    EXPECT_EQ(why({{0, 0}, {1, 2}}, {{0, 1, 1}}),
              "unloading curve 1: a curve of pressure over closure needs two points");
    EXPECT_EQ(why({{0, 0}, {1, 2}}, {{0, 0, 1}, {2, 1, 1}, {0, 0, 2}, {2, 1, 2}}),
              "unloading curve 2 does not end at a greater closure than the one before");
    EXPECT_EQ(Gasket().Loading(-1, LINEAR).Why(), "a closure has to be a finite number from 0 on");
    EXPECT_EQ(Gasket().Unloading(1, 5).Why(), "the greatest closure lies beyond the last unloading curve");
    EXPECT_EQ(Gasket().Unloading(3, 2).Why(), "the closure lies above the greatest one that was reached");
    EXPECT_EQ(Gasket().Unloading(1, NAN).Why(), "a closure has to be a finite number from 0 on");
    EXPECT_EQ(Gasket().Unloading(-1, 2).Why(), "a closure has to be a finite number from 0 on");
    EXPECT_EQ(GasketThickness::Over({{0, 0}, {1, 2}}, {})->EnergyLoss(1).Why(),
              "the gasket has no unloading curves");
}

}  // namespace
