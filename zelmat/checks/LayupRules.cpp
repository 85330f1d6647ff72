#include <cmath>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/mechanics/elastic/OrthotropicPly.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr double kThinnest = 1e-9;  // m; a few layers of atoms
constexpr double kThickest = 10.0;  // m
constexpr double kFullTurn = 360.0;

template <class Wrong, class Text>
auto EachLayer(Wrong wrong, Text text) {
    return [wrong, text](const LayupCard& layup, CheckReport& report) {
        for (std::size_t i = 0; i < layup.layers.size(); ++i) {
            const CardLayer& layer = layup.layers[i];
            if (wrong(layup, layer)) {
                report.Add(layer.line, "layer " + std::to_string(i + 1) + ": " + text(layer));
            }
        }
    };
}

bool IsUnknown(const LayupCard& layup, const CardLayer& layer) {
    if (!layer.material) return false;
    for (const PlyMaterial& material : layup.materials) {
        if (material.name == *layer.material) return false;
    }
    return true;
}

std::optional<double> Constant(const PlyMaterial& material, const std::string& name) {
    for (const auto& [constant, value] : material.constants) {
        if (constant == name) return value;
    }
    return std::nullopt;
}

void LookAtPlies(const LayupCard& layup, CheckReport& report) {
    for (const PlyMaterial& material : layup.materials) {
        const auto e1 = Constant(material, "E1"), e2 = Constant(material, "E2");
        const auto nu12 = Constant(material, "nu12"), g12 = Constant(material, "G12");
        if (!e1 || !e2 || !nu12 || !g12) continue;
        if (const auto refusal = mechanics::UnstablePly({*e1, *e2, *nu12, *g12})) {
            report.Add(0, "ply material " + Quoted(material.name) + ": " + refusal->text);
        }
    }
}

void LookAtLayers(const LayupCard& layup, CheckReport& report) {
    if (layup.layers.empty()) report.Add(layup.layersLine, "the layup has no layers");
}

}  // namespace

CheckTopic LayupRules() {
    return {.title = "Layups",
            .rules = {
                {.code = "no-layers",
                 .says = "A layup has a layer.",
                 .bound = "needs one or more",
                 .source = "what the layup's own validity asks",
                 .lookAtLayup = LookAtLayers},
                {.code = "layer-material",
                 .says = "Every layer has a material.",
                 .bound = "every layer needs one",
                 .source = "what the layup's own validity asks",
                 .lookAtLayup =
                     EachLayer([](const LayupCard&, const CardLayer& layer) { return !layer.material; },
                               [](const CardLayer&) { return std::string("it has no material"); })},
                {.code = "unknown-material",
                 .says = "The material of every layer is one of the layup's.",
                 .bound = "has to be one of the ply materials",
                 .source = "a layer keeps a link to its material",
                 .lookAtLayup = EachLayer(IsUnknown,
                                          [](const CardLayer& layer) {
                                              return "there is no ply material " + Quoted(*layer.material);
                                          })},
                {.code = "layer-thickness",
                 .says = "The thickness of a layer lies between 1e-9 m and 10 m.",
                 .bound = "has to be from 1e-9 m to 10 m",
                 .source = "set here: below it are few atoms, above it no laminate is known",
                 .lookAtLayup = EachLayer(
                     [](const LayupCard&, const CardLayer& layer) {
                         return !(layer.thickness >= kThinnest && layer.thickness <= kThickest);
                     },
                     [](const CardLayer& layer) {
                         return "its thickness is " + WithUnit(layer.thickness, "m");
                     })},
                {.code = "layer-angle",
                 .says = "The angle of a layer lies within a full turn: -360 to 360 degrees.",
                 .bound = "has to be from -360 to 360 deg",
                 .source = "set here: beyond a full turn an angle repeats itself",
                 .lookAtLayup = EachLayer(
                     [](const LayupCard&, const CardLayer& layer) {
                         return !(std::abs(layer.angle) <= kFullTurn);
                     },
                     [](const CardLayer& layer) { return "its angle is " + WithUnit(layer.angle, "deg"); })},
                {.code = "ply-constants",
                 .says = "E1, E2 and G12 of a ply material are positive and |nu12| < sqrt(E1/E2).",
                 .bound = "a positive strain energy is needed",
                 .source = "B. M. Lempriere, AIAA J. 6, 1968: Poisson's ratio in orthotropic materials",
                 .lookAtLayup = LookAtPlies},
            }};
}

}  // namespace zelmat
