#include <cmath>
#include <numbers>
#include <set>

#include "zelmat/exchange/DeckForm.h"
#include "zelmat/exchange/PlyNumbers.h"
#include "zelmat/exchange/calculix/CalculixCards.h"

namespace zelmat {

std::vector<DeckFile> CalculixLayup(const DeckLayup& layup, const DeckUnits& units, DeckNotes& notes);

namespace {

DeckTable OneRow(const std::vector<double>& numbers) {
    DeckTable table;
    for (const double number : numbers) table.columns.push_back({number});
    return table;
}

std::string PlyCards(const std::string& name, const PlyNumbers& ply) {
    std::string text = "*MATERIAL, NAME=" + name + "\n";
    if (ply.isotropic) {
        text += CalculixCard("*ELASTIC", OneRow({ply.e1, ply.nu12}));
    } else {
        text += CalculixCard(
            "*ELASTIC, TYPE=ENGINEERING CONSTANTS",
            OneRow({ply.e1, ply.e2, ply.e3, ply.nu12, ply.nu13, ply.nu23, ply.g12, ply.g13, ply.g23}));
    }
    if (ply.density) text += CalculixCard("*DENSITY", OneRow({*ply.density}));
    if (ply.alpha1) {
        text += ply.isotropic
                    ? CalculixCard("*EXPANSION", OneRow({*ply.alpha1}))
                    : CalculixCard("*EXPANSION, TYPE=ORTHO", OneRow({*ply.alpha1, *ply.alpha2, *ply.alpha2}));
    }
    return text;
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
    return CalculixCard("*ORIENTATION, NAME=" + name + ", SYSTEM=RECTANGULAR",
                        OneRow({c, s, 0.0, -s == 0.0 ? 0.0 : -s, c, 0.0}));
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
        if (written.insert(*ply).second) {
            const auto numbers = PlyNumbersOf(layup.layup.materials[*ply], units, notes);
            if (!numbers) return {};
            text += PlyCards(layup.plies[*ply], *numbers);
        }
        const std::string& orientation = layup.angleNames[at];
        if (oriented.insert(orientation).second) text += Orientation(orientation, layer.angle);
        section += DeckNumber(*thickness) + ", , " + layup.plies[*ply] + ", " + orientation + "\n";
    }
    if (section.empty()) return {};
    notes.Changed("layup: the element set of the section, " + layup.name +
                  ", is the model's to define; its elements have to be S8R or S6, in the plane x-y");
    return {{"", text + "*SHELL SECTION, COMPOSITE, ELSET=" + layup.name + "\n" + section}};
}

}  // namespace zelmat
