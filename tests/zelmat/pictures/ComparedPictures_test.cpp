#include "zelmat/pictures/ComparedPictures.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zelmat::ComparedPictures;
using zelmat::Findings;
using zelmat::Material;
using zelmat::Picture;
using zelmat::PictureKind;
using zelmat::UnitChoice;

Material Hot() {
    return CardOf(R"({"name": "Hot", "density": {"temperature_dependent": false, "columns": ["density"],
        "rows": [[7850.0]]}, "elastic": {"temperature_dependent": true,
        "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
        "rows": [[210e9, 0.3, 293.15], [200e9, 0.3, 393.15]]}})");
}

Material Plain() {
    return CardOf(
        R"({"name": "Plain", "source": ["A handbook"], "density": {"temperature_dependent": false, "columns": ["density"],
        "rows": [[2700.0]]}, "elastic": {"temperature_dependent": false,
        "columns": ["youngs_modulus", "poissons_ratio"], "rows": [[70e9, 0.33]]}})");
}

std::vector<Picture> Compared(const std::vector<Material>& materials, const std::string& block = "") {
    Findings findings;
    return ComparedPictures(materials, block, UnitChoice::ForText(), findings);
}

TEST(ComparedPictures, PutSeveralMaterialsIntoOnePictureForEachProperty) {
    const auto pictures = Compared({Plain(), Hot()});

    ASSERT_THAT(pictures, SizeIs(3));
    const Picture& modulus = pictures[0];
    EXPECT_EQ(modulus.title, "Elastic: Young's modulus");
    EXPECT_EQ(modulus.what, "2 materials compared");
    ASSERT_THAT(modulus.series, SizeIs(2));
    EXPECT_EQ(modulus.series[0].label, "Plain") << "in the order in which they were given";
    EXPECT_EQ(modulus.series[0].color, 0u);
    EXPECT_EQ(modulus.series[0].points.front().x, 20.0) << "level, as far as the other one goes";
    EXPECT_EQ(modulus.series[0].points.back().x, 120.0);
    EXPECT_EQ(modulus.series[0].points.back().y, 70000.0);
    EXPECT_EQ(modulus.series[1].label, "Hot");
    EXPECT_EQ(modulus.series[1].points.back().y, 200000.0);
}

TEST(ComparedPictures, HaveBarsWhereNothingDependsOnTemperature) {
    const auto pictures = Compared({Hot(), Plain()}, "density");

    ASSERT_THAT(pictures, SizeIs(1));
    EXPECT_EQ(pictures[0].kind, PictureKind::BARS);
    ASSERT_THAT(pictures[0].bars, SizeIs(2));
    EXPECT_EQ(pictures[0].bars[0].label, "Hot");
    EXPECT_EQ(pictures[0].bars[0].value, 7850.0);
    EXPECT_EQ(pictures[0].x.unit, "kg/m3");
    EXPECT_EQ(pictures[0].title, "Density");
    EXPECT_THAT(pictures[0].notes, ElementsAre("Plain: A handbook"));
}

TEST(ComparedPictures, NeedTwoMaterialsThatHaveTheProperty) {
    EXPECT_THAT(Compared({Hot()}), IsEmpty());
    EXPECT_THAT(Compared({Hot(), Plain()}, "conductivity"), IsEmpty());
}

TEST(ComparedPictures, TakeTheHardeningCurveNextToRoomTemperature) {
    const auto metal = [](const char* name, const char* at) {
        return CardOf(std::string(R"({"name": ")") + name + R"(", "plastic": {"temperature_dependent": true,
            "hardening": "isotropic", "columns": ["yield_stress", "plastic_strain", "temperature"],
            "rows": [[300e6, 0.0, )" +
                      at + R"(], [400e6, 0.1, )" + at + R"(], [100e6, 0.0, 900.0],
            [150e6, 0.1, 900.0]]}})");
    };

    const auto pictures = Compared({metal("A", "273.15"), metal("B", "293.15")});

    ASSERT_THAT(pictures, SizeIs(1));
    ASSERT_THAT(pictures[0].series, SizeIs(2));
    EXPECT_EQ(pictures[0].series[0].label, "A, 0 °C");
    EXPECT_EQ(pictures[0].series[1].label, "B, 20 °C");
    EXPECT_EQ(pictures[0].series[1].points.back().y, 400.0);
}

}  // namespace
