#include "zelmat/pictures/LaminatePictures.h"

#include <gmock/gmock.h>

namespace {

using testing::SizeIs;
using zelmat::PictureKind;
using zelmat::PlyStressPicture;
using zelmat::StiffnessPicture;
using zelmat::UnitChoice;
using zelmat::mechanics::Laminate;

/// T300/5208, plies of 0.125 mm.
Laminate Carbon(const std::vector<double>& angles) {
    Laminate laminate{.materials = {{.elastic = {.e1 = 181e9, .e2 = 10.3e9, .nu12 = 0.28, .g12 = 7.17e9},
                                     .expansion = {},
                                     .density = {},
                                     .strength = {}}},
                      .layers = {}};
    for (const double angle : angles) laminate.layers.push_back({0, 0.125e-3, angle});
    return laminate;
}

TEST(LaminatePictures, ShowStiffnessByDirection) {
    const auto picture = StiffnessPicture("Ply", Carbon({0.0}), UnitChoice::ForText());

    ASSERT_TRUE(picture.Ok());
    EXPECT_EQ(picture->kind, PictureKind::POLAR);
    ASSERT_THAT(picture->series, SizeIs(2));
    ASSERT_THAT(picture->series[0].points, SizeIs(121));
    EXPECT_NEAR(picture->series[0].points[0].y, 181000.0, 1e-6);
    EXPECT_EQ(picture->series[0].points[30].x, 90.0);
    EXPECT_NEAR(picture->series[0].points[30].y, 10300.0, 1e-6) << "across the fibre";
    EXPECT_NEAR(picture->series[1].points[0].y, 7170.0, 1e-6);
}

TEST(LaminatePictures, TurnCounterClockwise) {
    const auto picture = StiffnessPicture("Ply", Carbon({30.0}), UnitChoice::ForText());

    ASSERT_TRUE(picture.Ok());
    EXPECT_NEAR(picture->series[0].points[10].y, 181000.0, 1e-6) << "30 degrees";
    EXPECT_LT(picture->series[0].points[110].y, 30000.0) << "330 degrees";
}

TEST(LaminatePictures, ShowTheStressesOfEachPlyAtBothFaces) {
    const auto picture = PlyStressPicture("Ply", Carbon({0.0, 0.0}), {.force = {1e5, 0.0, 0.0}, .moment = {}},
                                          "Nx", UnitChoice::ForText());

    ASSERT_TRUE(picture.Ok());
    ASSERT_THAT(picture->series, SizeIs(3));
    ASSERT_THAT(picture->series[0].points, SizeIs(4));
    EXPECT_NEAR(picture->series[0].points[0].x, 400.0, 1e-9) << "100 N/mm over 0.25 mm";
    EXPECT_NEAR(picture->series[0].points[0].y, -0.125, 1e-12);
    EXPECT_NEAR(picture->series[0].points[3].y, 0.125, 1e-12);
    EXPECT_NEAR(picture->series[1].points[0].x, 0.0, 1e-9);
}

TEST(LaminatePictures, CountLayersWhereSomeAreTooThinToBeSeen) {
    Laminate sandwich = Carbon({0.0, 0.0, 0.0});
    sandwich.layers[1].thickness = 10e-3;

    const auto picture = PlyStressPicture("Sandwich", sandwich, {.force = {1e5, 0.0, 0.0}, .moment = {}},
                                          "Nx", UnitChoice::ForText());

    ASSERT_TRUE(picture.Ok());
    EXPECT_EQ(picture->series[0].points[0].y, 0.5);
    EXPECT_EQ(picture->series[0].points[5].y, 3.5);
    EXPECT_EQ(picture->y.unit, "-");
}

TEST(LaminatePictures, AreRefusedForWhatIsNoLaminate) {
    EXPECT_FALSE(StiffnessPicture("None", Carbon({}), UnitChoice::ForText()).Ok());
}

}  // namespace
