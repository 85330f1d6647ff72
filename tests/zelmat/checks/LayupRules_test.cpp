#include <gmock/gmock.h>

#include "zelmat/checks/Checks.h"

namespace {

using namespace zelmat;
using testing::ElementsAre;
using testing::IsEmpty;

/// One ply of T300/5208 at line 7.
LayupCard GoodLayup() {
    LayupCard layup;
    layup.file = "l.json";
    layup.layersLine = 5;
    layup.materials.push_back({"T300", {{"E1", 181e9}, {"E2", 10.3e9}, {"nu12", 0.28}, {"G12", 7.17e9}}, {}});
    layup.layers.push_back({.line = 7, .material = "T300", .thickness = 0.125e-3, .angle = 45.0});
    return layup;
}

std::vector<std::string> Lines(const LayupCard& layup) {
    std::vector<std::string> lines;
    const Findings found = CheckLayup(layup);
    for (const Finding& finding : found.All()) lines.push_back(FindingLine(finding));
    return lines;
}

TEST(LayupRules, AreSilentAboutARealPly) {
    EXPECT_THAT(Lines(GoodLayup()), IsEmpty());
}

TEST(LayupRules, WantALayer) {
    LayupCard layup = GoodLayup();
    layup.layers.clear();
    EXPECT_THAT(Lines(layup),
                ElementsAre("l.json:5: error[no-layers]: the layup has no layers (needs one or more)"));
}

TEST(LayupRules, WantAMaterialThatTheLayupKnows) {
    LayupCard layup = GoodLayup();
    layup.layers[0].material = std::nullopt;
    EXPECT_THAT(Lines(layup), ElementsAre("l.json:7: error[layer-material]: layer 1: it has no material "
                                          "(every layer needs one)"));
    layup.layers[0].material = "T800";
    EXPECT_THAT(Lines(layup), ElementsAre("l.json:7: error[unknown-material]: layer 1: there is no ply "
                                          "material \"T800\" (has to be one of the ply materials)"));
}

TEST(LayupRules, BoundTheThickness) {
    LayupCard layup = GoodLayup();
    for (const double good : {1e-9, 10.0}) {
        layup.layers[0].thickness = good;
        EXPECT_THAT(Lines(layup), IsEmpty());
    }
    for (const double bad : {0.9e-9, 10.1, 0.0, -1.0}) {
        layup.layers[0].thickness = bad;
        EXPECT_THAT(Lines(layup), ElementsAre(testing::HasSubstr("error[layer-thickness]: layer 1"))) << bad;
    }
    layup.layers[0].thickness = 125.0;
    EXPECT_THAT(Lines(layup), ElementsAre("l.json:7: error[layer-thickness]: layer 1: its thickness is 125 m "
                                          "(has to be from 1e-9 m to 10 m)"));
}

TEST(LayupRules, BoundTheAngleByAFullTurn) {
    LayupCard layup = GoodLayup();
    for (const double good : {-360.0, 360.0}) {
        layup.layers[0].angle = good;
        EXPECT_THAT(Lines(layup), IsEmpty());
    }
    layup.layers[0].angle = -361.0;
    EXPECT_THAT(Lines(layup), ElementsAre("l.json:7: error[layer-angle]: layer 1: its angle is -361 deg (has "
                                          "to be from -360 to 360 deg)"));
}

TEST(LayupRules, WantPlyConstantsWithAPositiveStrainEnergy) {
    LayupCard layup = GoodLayup();
    layup.materials[0].constants[2].second = 4.2;  // sqrt(181/10.3) is 4.192
    EXPECT_THAT(Lines(layup),
                ElementsAre("l.json: error[ply-constants]: ply material \"T300\": nu12 of a ply has to lie "
                            "between -sqrt(E1/E2) and sqrt(E1/E2) (a positive strain energy is needed)"));
    layup.materials[0].constants[2].second = 4.19;
    EXPECT_THAT(Lines(layup), IsEmpty());
    layup.materials[0].constants[3].second = 0.0;
    EXPECT_THAT(Lines(layup), ElementsAre(testing::HasSubstr("E1, E2 and G12 of a ply have to be above 0")));
    layup.materials[0].constants.pop_back();
    EXPECT_THAT(Lines(layup), IsEmpty());
}

}  // namespace
