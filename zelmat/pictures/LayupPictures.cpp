#include "zelmat/pictures/LayupPictures.h"

#include "zelmat/pictures/LaminatePictures.h"
#include "zelmat/properties/LaminateProperty.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

StoredLayup LayupOf(const LayupCard& card) {
    StoredLayup layup{.name = card.name, .layers = {}};
    for (const CardLayer& layer : card.layers) {
        layup.layers.push_back({layer.material, layer.thickness, layer.angle});
    }
    return layup;
}

LayupPicture StackPicture(const LayupCard& card, const UnitChoice& units) {
    LayupPicture picture{.title = card.name, .isotropic = {}, .units = units};
    for (const PlyMaterial& material : card.materials) {
        if (material.IsIsotropic()) picture.isotropic.insert(material.name);
    }
    return picture;
}

std::vector<Picture> LayupPictures(const LayupCard& card, const UnitChoice& units, Findings& findings) {
    constexpr double kForce = 1e5;  // N/m
    constexpr int kDigits = 4;
    std::vector<Picture> pictures;
    const auto laminate = LaminateOf(card);
    if (!laminate.Ok()) {
        findings.Add({FindingKind::WARNING,
                      {card.file, card.layersLine},
                      "not-drawn",
                      "stresses and stiffness of " + QuotedText(card.name) + " cannot be drawn",
                      {laminate.Why()}});
        return pictures;
    }
    const std::string load = "Nx = " + ShownQuantity("force_per_length", units).Text(kForce, kDigits);
    const mechanics::LaminateLoad force{.force = {kForce, 0.0, 0.0}, .moment = {}};
    for (const auto& picture : {PlyStressPicture(card.name, *laminate, force, load, units),
                                StiffnessPicture(card.name, *laminate, units)}) {
        if (picture.Ok()) pictures.push_back(*picture);
    }
    return pictures;
}

}  // namespace zelmat
