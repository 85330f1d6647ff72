#include "zelmat/pictures/MaterialPictures.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/cards/ReadCard.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using zelmat::Findings;
using zelmat::Material;
using zelmat::Picture;
using zelmat::PicturePoint;
using zelmat::Series;
using zelmat::SeriesStyle;
using zelmat::UnitChoice;

Material SampleCard(const std::string& name) {
    Findings findings;
    return *zelmat::ReadCard(Sample(name), findings);
}

std::vector<Picture> PicturesOf(const Material& material, const std::string& block = "") {
    Findings findings;
    return MaterialPictures(material, {.block = block}, UnitChoice::ForText(), findings);
}

std::vector<std::string> Names(const std::vector<Picture>& pictures) {
    std::vector<std::string> names;
    for (const Picture& picture : pictures) names.push_back(picture.name);
    return names;
}

std::vector<std::string> Labels(const Picture& picture) {
    std::vector<std::string> labels;
    for (const Series& series : picture.series) labels.push_back(series.label);
    return labels;
}

void ExpectPoint(const PicturePoint& point, double x, double y) {
    EXPECT_DOUBLE_EQ(point.x, x);
    EXPECT_DOUBLE_EQ(point.y, y);
}

TEST(MaterialPictures, DrawEveryPropertyThatDependsOnTemperature) {
    const auto pictures = PicturesOf(SampleCard("steel_s355.json"));

    EXPECT_THAT(Names(pictures), ElementsAre("elastic-youngs_modulus", "elastic-poissons_ratio",
                                             "plastic-hardening", "thermal_expansion-thermal_expansion",
                                             "conductivity-conductivity", "specific_heat-specific_heat"))
        << "not the density, which does not";
}

TEST(MaterialPictures, HaveTheRowsAsPointsInTheChosenUnits) {
    const auto pictures = PicturesOf(SampleCard("steel_s355.json"), "elastic");
    ASSERT_THAT(pictures, SizeIs(2));
    const Picture& modulus = pictures[0];

    EXPECT_EQ(modulus.title, "Structural steel S355");
    EXPECT_EQ(modulus.what, "Elastic: Young's modulus over temperature");
    EXPECT_EQ(modulus.x.unit, "degC");
    EXPECT_EQ(modulus.y.unit, "MPa");
    ASSERT_THAT(modulus.series, SizeIs(1));
    EXPECT_EQ(modulus.series[0].style, SeriesStyle::ROWS);
    ASSERT_THAT(modulus.series[0].points, SizeIs(12));
    ExpectPoint(modulus.series[0].points[0], 20.0, 210000.0);
    ExpectPoint(modulus.series[0].points[11], 1100.0, 4725.0);
    EXPECT_THAT(modulus.notes, Contains(HasSubstr("Source: E = 210 GPa")));
}

TEST(MaterialPictures, SayTheReferenceOfThermalExpansion) {
    const auto pictures = PicturesOf(SampleCard("steel_s355.json"), "thermal_expansion");

    ASSERT_THAT(pictures, SizeIs(1));
    EXPECT_THAT(pictures[0].notes, Contains("Mean (secant) coefficient from 20 °C"));
}

TEST(MaterialPictures, HaveAHardeningCurveForEachTemperature) {
    const auto pictures = PicturesOf(SampleCard("steel_s355.json"), "plastic");

    ASSERT_THAT(pictures, SizeIs(1));
    EXPECT_THAT(Labels(pictures[0]),
                ElementsAre("20 °C", "100 °C", "200 °C", "300 °C", "400 °C", "500 °C", "600 °C", "700 °C",
                            "800 °C", "900 °C", "1000 °C", "1100 °C"));
    EXPECT_TRUE(pictures[0].graded);
    // 127.8 MPa and 276.9 MPa are engineering stresses, E 126 GPa: s (1 + e) over ln(1 + e) - sigma/E.
    ExpectPoint(pictures[0].series[5].points[0], 0.0, 127.9296257142857);
    ExpectPoint(pictures[0].series[5].points[4], 0.13723435004459017, 318.43489451428576);
}

TEST(MaterialPictures, DrawJohnsonAndCooksLawAtFourTemperatures) {
    const auto pictures = PicturesOf(SampleCard("copper_ofhc.json"), "plastic");

    ASSERT_THAT(pictures, SizeIs(1));
    EXPECT_EQ(pictures[0].what, "Plastic, Johnson-Cook hardening: true stress over plastic strain");
    EXPECT_THAT(Labels(pictures[0]), ElementsAre("24.85 °C", "289.35 °C", "553.85 °C", "818.35 °C"));
    ExpectPoint(pictures[0].series[0].points.front(), 0.0, 90.0);
    EXPECT_EQ(pictures[0].series[0].points.back().x, 0.5);
    EXPECT_NEAR(pictures[0].series[0].points.back().y, 325.537, 0.01) << "90 + 292 * 0.5^0.31";
}

TEST(MaterialPictures, MarkWhereRubberIsNotStableAnyMore) {
    const Material rubber =
        CardOf(R"({"name": "Rubber", "hyperelastic": [{"model": "MOONEY_RIVLIN", "order": 1,
        "temperature_dependent": false, "columns": ["C10", "C01", "D1"], "rows": [[0.5e6, -0.1e6, 0.0]]}]})");

    const auto pictures = PicturesOf(rubber);

    ASSERT_THAT(Names(pictures),
                ElementsAre("hyperelastic-MOONEY_RIVLIN", "hyperelastic-MOONEY_RIVLIN-shear"));
    EXPECT_THAT(Labels(pictures[0]),
                ElementsAre("uniaxial", "", "uniaxial: unstable from 2.236", "equibiaxial", "",
                            "equibiaxial: unstable up to 0.6687", "", "equibiaxial: unstable from 1.64",
                            "planar", "", "planar: unstable from 2.122"))
        << "in tension: 2.2361, 1.6396 and 2.1218";
    const Series& stable = pictures[0].series[0];
    EXPECT_EQ(stable.style, SeriesStyle::LINE);
    EXPECT_NEAR(stable.points.back().x, 2.2361, 5e-5);
    const Series& unstable = pictures[0].series[1];
    EXPECT_EQ(unstable.style, SeriesStyle::DASHED);
    EXPECT_NEAR(unstable.points.front().x, 2.2361, 5e-5);
    EXPECT_EQ(pictures[0].series[2].style, SeriesStyle::LIMIT);
    EXPECT_THAT(pictures[0].notes, Contains("Dashed: not stable by Drucker's criterion."));
}

TEST(MaterialPictures, StandBesideTheTests) {
    const auto pictures = PicturesOf(SampleCard("natural_rubber_treloar.json"));
    const Picture& first = pictures.front();

    ASSERT_EQ(first.series[0].label, "uniaxial, test");
    EXPECT_EQ(first.series[0].style, SeriesStyle::POINTS);
    EXPECT_EQ(first.series[1].label, "uniaxial");
    EXPECT_EQ(first.series[1].style, SeriesStyle::PLAIN) << "the marks are the tests'";
    EXPECT_THAT(first.notes, Contains(testing::StartsWith("Source of the tests: L. R. G. Treloar, ")));
    EXPECT_EQ(pictures[1].name, "hyperelastic-OGDEN-shear");
    EXPECT_THAT(Labels(pictures[1]), ElementsAre("")) << "one curve needs no legend";
    EXPECT_EQ(pictures.back().name, "hyperelastic-fits");
    EXPECT_EQ(pictures.back().bars.front().label.substr(0, 14), "OGDEN, order 3");
    EXPECT_NEAR(pictures.back().bars.front().value, 0.08188, 5e-6);
}

TEST(MaterialPictures, RankAllPotentialsWhenAsked) {
    const Material rubber = CardOf(R"({"name": "Rubber", "test_data": {"uniaxial": {"columns": ["stretch",
        "nominal_stress"], "rows": [[1.0, 0.0], [1.2, 0.3e6], [1.5, 0.6e6], [2.0, 0.9e6]]}}})");
    Findings findings;

    const auto pictures = MaterialPictures(rubber, {.ranking = true}, UnitChoice::ForText(), findings);

    ASSERT_THAT(Names(pictures), ElementsAre("hyperelastic-ranking", "test_data"));
    EXPECT_GE(pictures[0].bars.size(), 4u);
    for (std::size_t i = 1; i < pictures[0].bars.size(); ++i) {
        EXPECT_LE(pictures[0].bars[i - 1].value, pictures[0].bars[i].value);
    }
}

TEST(MaterialPictures, DrawLoadingAndUnloadingOfAGasket) {
    const auto pictures = PicturesOf(SampleCard("gasket_fibre_illustrative.json"));

    ASSERT_THAT(Names(pictures), ElementsAre("gasket-unloading_elastic_plastic", "gasket-unloading_damage"));
    EXPECT_THAT(Labels(pictures[0]),
                ElementsAre("loading", "unloading, plastic 0.06 mm", "unloading, plastic 0.1 mm",
                            "unloading, plastic 0.1225 mm"));
    EXPECT_THAT(Labels(pictures[1]), Contains("unloading from 0.12 mm"));
    ExpectPoint(pictures[0].series[0].points.front(), 0.0, 0.0);
    EXPECT_EQ(pictures[0].legend, "") << "loading is among them";
    EXPECT_EQ(pictures[0].x.unit, "mm");
}

TEST(MaterialPictures, NameTheSourceOfTheTableElseThatOfTheCard) {
    const Material steel = CardOf(R"({"name": "Steel", "source": ["A handbook", "a test"],
        "density": {"temperature_dependent": true, "columns": ["density", "temperature"],
        "rows": [[7850.0, 293.15], [7800.0, 393.15]]},
        "conductivity": {"temperature_dependent": true, "source": "A table", "columns": ["conductivity",
        "temperature"], "rows": [[50.0, 293.15], [45.0, 393.15]]}})");

    const auto pictures = PicturesOf(steel);

    ASSERT_THAT(pictures, SizeIs(2));
    EXPECT_EQ(pictures[0].what, "Density over temperature");
    EXPECT_EQ(pictures[0].notes.back(), "Source: A handbook, a test");
    EXPECT_EQ(pictures[1].notes.back(), "Source: A table");
}

TEST(MaterialPictures, SayWhatCannotBeDrawn) {
    const Material metal = CardOf(R"({"name": "Metal", "plastic": {"temperature_dependent": false,
        "hardening": "isotropic", "columns": ["yield_stress", "plastic_strain", "temperature"],
        "rows": [[200e6, 0.0, 293.0], [250e6, 0.1, 293.0], [240e6, 0.05, 293.0]]}})");
    Findings findings;

    const auto pictures = MaterialPictures(metal, {}, UnitChoice::ForText(), findings);

    EXPECT_THAT(pictures, IsEmpty());
    ASSERT_THAT(findings.All(), SizeIs(1));
    EXPECT_EQ(findings.All()[0].code, "not-drawn");
    EXPECT_EQ(findings.All()[0].text, "plastic of 'Metal' cannot be drawn");
}

}  // namespace
