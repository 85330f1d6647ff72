#include "zelmat/pictures/LaminatePictures.h"

#include <algorithm>

#include "zelmat/mechanics/laminate/LaminateStiffness.h"
#include "zelmat/quantities/ShownQuantity.h"

namespace zelmat {

namespace {

/// Too thin beside the thickest one to be seen to scale.
bool HasThinLayers(const mechanics::Laminate& laminate) {
    constexpr double kSeen = 0.1;
    const auto [thinnest, thickest] = std::minmax_element(
        laminate.layers.begin(), laminate.layers.end(),
        [](const mechanics::Layer& a, const mechanics::Layer& b) { return a.thickness < b.thickness; });
    return thinnest->thickness < kSeen * thickest->thickness;
}

}  // namespace

mechanics::Outcome<Picture> PlyStressPicture(const std::string& title, const mechanics::Laminate& laminate,
                                             const mechanics::LaminateLoad& load, const std::string& loadText,
                                             const UnitChoice& units) {
    const auto response = mechanics::RespondTo(laminate, load);
    if (!response.Ok()) return response.Refused();
    const ShownQuantity stress("stress", units), length("length", units);
    Picture picture{.name = "laminate-stresses",
                    .title = title,
                    .what = "Stresses of the plies through the thickness, under " + loadText,
                    .x = {.title = "stress in the ply's axes", .unit = stress.Unit()},
                    .y = {.title = "z from the middle plane", .unit = length.Unit()},
                    .legend = "stress"};
    const bool byLayer = HasThinLayers(laminate);
    if (byLayer) picture.y = {.title = "layer, from the bottom, all drawn alike"};
    constexpr const char* kNames[] = {"σ1, along the fibre", "σ2, across it", "τ12, shear"};
    for (std::size_t component = 0; component < std::size(kNames); ++component) {
        Series series{.label = kNames[component], .style = SeriesStyle::ROWS, .color = component};
        for (const mechanics::PlyResponse& ply : response->plies) {
            const double below = static_cast<double>(ply.layer) + 0.5;
            const auto add = [&](const mechanics::PlyPoint& point, double inLayers) {
                series.points.push_back(
                    {stress(point.plyStress[component]), byLayer ? inLayers : length(point.z)});
            };
            add(ply.bottom, below);
            add(ply.top, below + 1.0);
        }
        picture.series.push_back(std::move(series));
    }
    picture.notes.emplace_back(
        "Classical lamination theory; points at the faces of each ply, layer 1 at the bottom.");
    return picture;
}

mechanics::Outcome<Picture> StiffnessPicture(const std::string& title, const mechanics::Laminate& laminate,
                                             const UnitChoice& units) {
    const ShownQuantity modulus("modulus", units);
    Picture picture{.name = "laminate-stiffness",
                    .title = title,
                    .what = "Stiffness of the laminate in its plane, by direction from x",
                    .kind = PictureKind::POLAR,
                    .x = {.title = "direction from x", .unit = "deg"},
                    .y = {.title = "modulus of the membrane", .unit = modulus.Unit()},
                    .legend = "modulus"};
    Series young{.label = "E, loaded along", .style = SeriesStyle::LINE, .color = 0};
    Series shear{.label = "G, sheared along", .style = SeriesStyle::LINE, .color = 1};
    constexpr int kStep = 3, kTurn = 360;
    for (int direction = 0; direction <= kTurn; direction += kStep) {
        mechanics::Laminate turned = laminate;
        for (mechanics::Layer& layer : turned.layers) layer.angle -= direction;
        const auto stiffness = mechanics::StiffnessOf(turned);
        if (!stiffness.Ok()) return stiffness.Refused();
        const auto membrane = mechanics::ModuliOf(*stiffness).membrane;
        young.points.push_back({static_cast<double>(direction), modulus(membrane.ex)});
        shear.points.push_back({static_cast<double>(direction), modulus(membrane.gxy)});
    }
    picture.series = {std::move(young), std::move(shear)};
    picture.notes.emplace_back("Classical lamination theory; an unsymmetric laminate is free to curve.");
    return picture;
}

}  // namespace zelmat
