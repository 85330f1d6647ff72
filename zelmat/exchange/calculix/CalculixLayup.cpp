#include <cmath>
#include <numbers>
#include <set>

#include "zelmat/exchange/DeckForm.h"
#include "zelmat/exchange/calculix/CalculixPly.h"

namespace zelmat {

std::vector<DeckFile> CalculixLayup(const DeckLayup& layup, const DeckUnits& units, DeckNotes& notes);

namespace {

std::string PlyCards(const std::string& name, const PlyMaterial& material, const PlyNumbers& ply,
                     DeckNotes& notes) {
    std::string text = "*MATERIAL, NAME=" + name + "\n" + CalculixPlyElastic(material.name, ply, notes);
    if (ply.density) text += CalculixRow("*DENSITY", {*ply.density});
    return text + CalculixPlyExpansion(ply);
}

/// The cosine of an angle in degrees, exact at the ones that matter.
double Cosine(double degrees) {
    const double turned = std::fabs(std::remainder(degrees, 360.0));
    if (turned == 90.0) return 0.0;
    return std::cos(turned * std::numbers::pi / 180.0);
}

/// Axis 1 along the fibre of a laminate that lies in the global plane x-y.
std::string Orientation(const std::string& name, double angle) {
    const double c = Cosine(angle), s = Cosine(angle - 90.0);
    return CalculixRow("*ORIENTATION, NAME=" + name + ", SYSTEM=RECTANGULAR",
                       {c, s, 0.0, -s == 0.0 ? 0.0 : -s, c, 0.0});
}

/// The place of a layer's ply among the card's; nothing when it has none.
std::optional<std::size_t> PlyOf(const LayupCard& layup, const CardLayer& layer) {
    for (std::size_t at = 0; at < layup.materials.size(); ++at) {
        if (layer.material == layup.materials[at].name) return at;
    }
    return std::nullopt;
}

}  // namespace

std::vector<DeckFile> CalculixLayup(const DeckLayup& layup, const DeckUnits& units, DeckNotes& notes) {
    std::string text, section;
    std::set<std::size_t> written;
    std::set<std::string> oriented;
    for (std::size_t at = 0; at < layup.layup.layers.size(); ++at) {
        const CardLayer& layer = layup.layup.layers[at];
        const std::string which = "layer " + std::to_string(at + 1);
        const auto ply = PlyOf(layup.layup, layer);
        const auto thickness = units.FromStored(layer.thickness, "length");
        if (!ply || !thickness) {
            notes.Lost(which + (ply ? ": its thickness is too large for the unit" : " has no material"));
            return {};
        }
        const DeckPly& named = layup.plies[*ply];
        if (!named.material && written.insert(*ply).second) {
            const PlyMaterial& material = layup.layup.materials[*ply];
            const auto numbers = PlyNumbersOf(material, units, notes);
            if (!numbers) return {};
            text += PlyCards(named.name, material, *numbers, notes);
        }
        const std::string& orientation = layup.angleNames[at];
        if (oriented.insert(orientation).second) text += Orientation(orientation, layer.angle);
        section +=
            DeckNumber(*thickness) + ", , " + named.material.value_or(named.name) + ", " + orientation + "\n";
    }
    if (section.empty()) return {};
    notes.Changed("layup: the element set of the section, " + layup.name +
                  ", is the model's to define; its elements have to be S8R or S6, in the plane x-y");
    return {{"", text + "*SHELL SECTION, COMPOSITE, ELSET=" + layup.name + "\n" + section}};
}

}  // namespace zelmat
