#include "zelmat/layups/LayupDrawing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>

#include "tests/zelmat/layups/DrawnPicture.h"
#include "tests/zelmat/support/XmlProblem.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using zelmat::LayupDrawing;
using zelmat::LayupPicture;
using zelmat::StoredLayup;

constexpr double kMillimetre = 0.001;

StoredLayup ThreePlies() {
    return {.name = "Layup-1",
            .layers = {{"Carbon", 1.0 * kMillimetre, 0.0},
                       {"Glass", 2.0 * kMillimetre, 30.0},
                       {"Carbon", 1.0 * kMillimetre, 90.0}}};
}

StoredLayup Sandwich() {
    return {.name = "Layup-1",
            .layers = {{"Carbon", 0.125 * kMillimetre, 0.0},
                       {"Core", 10.0 * kMillimetre, 0.0},
                       {"Carbon", 0.125 * kMillimetre, 90.0}}};
}

/// So many plies of one thickness.
StoredLayup Laminate(const std::vector<double>& angles) {
    StoredLayup layup{.name = "Layup-1", .layers = {}};
    for (const double angle : angles) layup.layers.push_back({"Carbon", 0.125 * kMillimetre, angle});
    return layup;
}

TEST(LayupDrawing, StacksTheLayersToScaleWithTheBottomOneAtTheBottom) {
    const std::string text = LayupDrawing(ThreePlies(), {.title = "Three", .isotropic = {}});
    Picture picture(text);

    const auto boxes = Boxes(picture);

    ASSERT_THAT(boxes, SizeIs(3));
    EXPECT_EQ(boxes[0].Number("height"), 30.0);
    EXPECT_EQ(boxes[1].Number("height"), 60.0);
    EXPECT_EQ(boxes[2].Number("height"), 30.0);
    EXPECT_EQ(boxes[1].Number("y") + 60.0, boxes[0].Number("y"));
    EXPECT_EQ(boxes[2].Number("y") + 30.0, boxes[1].Number("y"));
    EXPECT_THAT(text, HasSubstr("3 layers, 4 mm thick; to scale through the thickness"));
}

TEST(LayupDrawing, HatchesAlongTheFibresSeenFromAbove) {
    Picture picture(LayupDrawing(ThreePlies(), {.title = "Three", .isotropic = {}}));
    const auto boxes = Boxes(picture);
    ASSERT_THAT(boxes, SizeIs(3));

    const auto along = Hatching(picture, boxes[0]);
    const auto turned = Hatching(picture, boxes[1]);
    const auto across = Hatching(picture, boxes[2]);

    ASSERT_FALSE(along.empty() || turned.empty() || across.empty());
    for (const Segment& line : along) EXPECT_EQ(line.y1, line.y2);
    for (const Segment& line : across) EXPECT_EQ(line.x1, line.x2);
    for (const Segment& line : turned) {
        EXPECT_NEAR(line.y1 - line.y2, 0.57735 * (line.x2 - line.x1), 0.02)
            << "the picture's y axis points down";
    }
}

TEST(LayupDrawing, HatchesInsideEachPlySoThatNeighboursOfOneAngleAreTwo) {
    Picture picture(LayupDrawing(Laminate({45, 45, 0, 0, 90, 90}), {.title = "Pairs", .isotropic = {}}));

    const auto boxes = Boxes(picture);

    ASSERT_THAT(boxes, SizeIs(6));
    for (const Element& box : boxes) {
        const auto lines = Hatching(picture, box);
        ASSERT_FALSE(lines.empty());
        for (const Segment& line : lines) {
            EXPECT_GE(std::min(line.y1, line.y2), box.Number("y") + 3.4);
            EXPECT_LE(std::max(line.y1, line.y2), box.Number("y") + box.Number("height") - 3.4);
            EXPECT_GE(std::min(line.x1, line.x2), box.Number("x") + 3.4);
            EXPECT_LE(std::max(line.x1, line.x2), box.Number("x") + box.Number("width") - 3.4);
        }
    }
}

TEST(LayupDrawing, DoesNotHatchWhatHasNoFibres) {
    const std::string text = LayupDrawing(Sandwich(), {.title = "Sandwich", .isotropic = {"Core"}});
    Picture picture(text);
    const auto boxes = Boxes(picture);
    ASSERT_THAT(boxes, SizeIs(3));

    EXPECT_THAT(Hatching(picture, boxes[0]), SizeIs(1));
    EXPECT_THAT(Hatching(picture, boxes[1]), IsEmpty());
    EXPECT_THAT(TextsWith(picture, "isotropic"),
                ElementsAre("2: isotropic, M2, 10 mm", "isotropic, 1 ply, 10 mm"));
    EXPECT_THAT(TextsOf(picture, "angle"), ElementsAre("0°, 1 ply", "90°, 1 ply"));
}

TEST(LayupDrawing, CutsThickPliesShortSoThatThinOnesAreSeenAndSaysSo) {
    const std::string text = LayupDrawing(Sandwich(), {.title = "Sandwich", .isotropic = {"Core"}});
    Picture picture(text);

    const auto boxes = Boxes(picture);

    ASSERT_THAT(boxes, SizeIs(3));
    EXPECT_EQ(boxes[0].Number("height"), 18.0);
    EXPECT_EQ(boxes[1].Number("height"), 140.0) << "not 1440";
    EXPECT_THAT(text, HasSubstr("3 layers, 10.25 mm thick; not to scale, thick plies are cut short"));
}

TEST(LayupDrawing, NamesAxesTopBottomAndMiddlePlane) {
    Picture picture(LayupDrawing(ThreePlies(), {.title = "Three", .isotropic = {}}));

    EXPECT_THAT(TextsOf(picture, "z"), ElementsAre("-2", "-1", "1", "2"));
    EXPECT_THAT(TextsWith(picture, "z ["), ElementsAre("z [mm]"));
    for (const char* axis : {"x", "y", "z"}) {
        const auto& all = picture.All("text");
        EXPECT_EQ(
            std::count_if(all.begin(), all.end(), [&](const Element& text) { return text.text == axis; }), 2)
            << axis << ": of the section and seen from above";
    }
    const auto boxes = Boxes(picture);
    for (const Element& text : picture.All("text")) {
        if (text.text == "top") {
            EXPECT_LT(text.Number("y"), boxes[2].Number("y"));
        }
        if (text.text == "bottom") {
            EXPECT_GT(text.Number("y"), boxes[0].Number("y") + 30.0);
        }
    }
    EXPECT_THAT(TextsWith(picture, "top"), SizeIs(1));
    EXPECT_THAT(TextsWith(picture, "bottom"), SizeIs(2)) << "the other says where the first layer is";
    EXPECT_THAT(TextsWith(picture, "middle plane"), SizeIs(1));
    for (const Element& line : picture.All("line")) {
        if (line.attributes.contains("class")) {
            EXPECT_EQ(line.Number("y1"), boxes[1].Number("y") + 30.0);
        }
    }
}

TEST(LayupDrawing, SaysAngleMaterialAndThicknessOfEveryPly) {
    Picture picture(LayupDrawing(ThreePlies(), {.title = "Three", .isotropic = {}}));

    EXPECT_THAT(TextsWith(picture, ": "), ElementsAre("1: 0°, M1, 1 mm", "2: 30°, M2, 2 mm",
                                                      "3: 90°, M1, 1 mm", "Hatching: the fibres from above"));
    EXPECT_THAT(TextsOf(picture, "material"), ElementsAre("M1 Carbon", "M2 Glass"));
    EXPECT_THAT(TextsWith(picture, "plies,"), ElementsAre("2 plies, 2 mm"));
    EXPECT_THAT(TextsOf(picture, "angle"), ElementsAre("0°, 1 ply", "30°, 1 ply", "90°, 1 ply"));
}

TEST(LayupDrawing, ShowsLengthsInTheChosenUnit) {
    const auto units = *zelmat::UnitChoice::Read("length=in", zelmat::UnitChoice::ForText());

    Picture picture(LayupDrawing(ThreePlies(), {.title = "Three", .isotropic = {}, .units = units}));

    EXPECT_THAT(TextsWith(picture, "z ["), ElementsAre("z [in]"));
    EXPECT_THAT(TextsWith(picture, "30°, M2"), ElementsAre("2: 30°, M2, 0.0787402 in"));
}

TEST(LayupDrawing, WrapsLongNames) {
    StoredLayup layup = ThreePlies();
    layup.layers[0].material =
        "Carbon fibre reinforced epoxy prepreg, unidirectional tape, cured for two hours";

    Picture picture(LayupDrawing(layup, {.title = std::string(10000, 'W'), .isotropic = {}}));

    EXPECT_THAT(TextsOf(picture, "material"),
                ElementsAre("M1 Carbon fibre reinforced", "epoxy prepreg,", "unidirectional tape, cured",
                            "for two hours", "M2 Glass", "M3 Carbon"));
    EXPECT_THAT(TextsWith(picture, "WWW"), SizeIs(3));
    EXPECT_THAT(TextsWith(picture, "W…"), SizeIs(1));
}

TEST(LayupDrawing, DrawsUpTo64PliesOneByOneAndEachWithRoomForItsText) {
    Picture picture(LayupDrawing(Laminate(std::vector<double>(64, 0.0)), {.title = "Many", .isotropic = {}}));

    const auto boxes = Boxes(picture);

    ASSERT_THAT(boxes, SizeIs(64));
    for (const Element& box : boxes) EXPECT_GE(box.Number("height"), 18.0);
    EXPECT_THAT(TextsOf(picture, "z"), SizeIs(65));
}

TEST(LayupDrawing, DrawsRepeatsOfManyPliesOnceAndSaysHowOften) {
    std::vector<double> angles;
    for (int i = 0; i < 1250; ++i) angles.insert(angles.end(), {0.0, 45.0, -45.0, 90.0});

    const std::string text = LayupDrawing(Laminate(angles), {.title = "Many", .isotropic = {}});

    Picture picture(text);
    EXPECT_THAT(Boxes(picture), SizeIs(4));
    EXPECT_THAT(TextsWith(picture, "×"), ElementsAre("×1250"));
    EXPECT_THAT(TextsWith(picture, ": "),
                ElementsAre("1, 5, …, 4997: 0°, 0.125 mm", "2, 6, …, 4998: 45°, 0.125 mm",
                            "3, 7, …, 4999: -45°, 0.125 mm", "4, 8, …, 5000: 90°, 0.125 mm",
                            "Hatching: the fibres from above"));
    EXPECT_THAT(TextsOf(picture, "z"), ElementsAre("-312.5", "312.5"));
    EXPECT_THAT(text, HasSubstr("5000 layers, 625 mm thick; plies that repeat are drawn once"));
}

TEST(LayupDrawing, LeavesOutTheMiddleOfManyPliesThatDoNotRepeat) {
    std::vector<double> angles(5000);
    std::iota(angles.begin(), angles.end(), 0.0);
    for (double& angle : angles) angle *= 0.01;

    Picture picture(LayupDrawing(Laminate(angles), {.title = "Many", .isotropic = {}}));

    EXPECT_THAT(Boxes(picture), SizeIs(48));
    EXPECT_THAT(TextsWith(picture, "not drawn"), ElementsAre("25 to 4976 not drawn: 619 mm"));
    EXPECT_THAT(TextsOf(picture, "angle"), SizeIs(16));
    EXPECT_THAT(TextsWith(picture, "more angles"), ElementsAre("and 4984 more angles"));
}

TEST(LayupDrawing, IsWellFormedWhateverNamesHold) {
    const std::string names[] = {"]]>",
                                 "<script>alert(1)</script>",
                                 "a & \"b\" 'c'",
                                 std::string("NUL\0 and\x1b[31m", 13),
                                 "\xff\xfe\x80 no UTF-8",
                                 "\xef\xbf\xbf",
                                 "<!--",
                                 "<?xml",
                                 "\xe2\x80\xaeturned"};
    for (const std::string& name : names) {
        StoredLayup layup = ThreePlies();
        layup.layers[1].material = name;

        const std::string text = LayupDrawing(layup, {.title = name, .isotropic = {}});

        EXPECT_EQ(XmlProblem(text), "") << name;
        EXPECT_THAT(text, Not(HasSubstr("<script")));
        EXPECT_THAT(text, Not(HasSubstr("\x1b")));
    }
}

TEST(LayupDrawing, NamesPliesWithoutMaterial) {
    StoredLayup layup = ThreePlies();
    layup.layers[1].material.reset();

    Picture picture(LayupDrawing(layup, {.title = "None", .isotropic = {}}));

    EXPECT_THAT(TextsWith(picture, "no material"),
                ElementsAre("2: 30°, no material, 2 mm", "M2 no material"));
}

TEST(LayupDrawing, DrawsAnEmptyLayupWithoutAStack) {
    const std::string text =
        LayupDrawing({.name = "Layup-1", .layers = {}}, {.title = "Nothing", .isotropic = {}});

    EXPECT_EQ(XmlProblem(text), "");
    Picture picture(text);
    EXPECT_THAT(Boxes(picture), SizeIs(0));
    EXPECT_THAT(TextsWith(picture, "no layers"), SizeIs(1));
    EXPECT_THAT(text, Not(HasSubstr("nan")));
    EXPECT_THAT(text, Not(HasSubstr("inf")));
}

}  // namespace
