#include <algorithm>
#include <set>

#include "zelmat/exchange/CodeAsterPly.h"
#include "zelmat/exchange/DeckForm.h"

namespace zelmat {

std::vector<DeckFile> CodeAsterLayup(const DeckLayup& layup, const DeckUnits& units, DeckNotes& notes);

std::string CodeAsterPly(const PlyNumbers& ply) {
    std::string text;
    const auto add = [&](const char* keyword, double value) {
        text += std::string(keyword) + "=" + RealDeckNumber(value) + ", ";
    };
    const auto addGiven = [&](const char* keyword, const char* constant, double value) {
        if (!ply.isotropic && ply.IsGiven(constant)) add(keyword, value);
    };
    add("E_L", ply.e1);
    add("E_T", ply.e2);
    addGiven("E_N", "E3", ply.e3);
    add("NU_LT", ply.nu12);
    addGiven("NU_LN", "nu13", ply.nu13);
    addGiven("NU_TN", "nu23", ply.nu23);
    add("G_LT", ply.g12);
    addGiven("G_LN", "G13", ply.g13);
    addGiven("G_TN", "G23", ply.g23);
    if (ply.density) add("RHO", *ply.density);
    if (ply.alpha1) add("ALPHA_L", *ply.alpha1);
    if (ply.alpha1) add("ALPHA_T", *ply.alpha2);
    return "ELAS_ORTH=_F(" + text + ")";
}

std::vector<DeckFile> CodeAsterLayup(const DeckLayup& layup, const DeckUnits& units, DeckNotes& notes) {
    std::string text, layers;
    std::set<std::string> written;
    for (std::size_t at = 0; at < layup.layup.layers.size(); ++at) {
        const CardLayer& layer = layup.layup.layers[at];
        const auto& materials = layup.layup.materials;
        const auto ply = std::find_if(materials.begin(), materials.end(),
                                      [&](const PlyMaterial& one) { return one.name == layer.material; });
        const auto thickness = units.FromStored(layer.thickness, "length");
        if (ply == materials.end() || !thickness) {
            notes.Lost("layer " + std::to_string(at + 1) + " has no material");
            return {};
        }
        const std::string& name = layup.plies[static_cast<std::size_t>(ply - materials.begin())].name;
        if (written.insert(name).second) {
            const auto numbers = PlyNumbersOf(*ply, units, notes);
            if (!numbers) return {};
            text += name + " = DEFI_MATERIAU(\n    " + CodeAsterPly(*numbers) + ",\n)\n";
        }
        layers += "    _F(EPAIS=" + RealDeckNumber(*thickness) + ", MATER=" + name +
                  ", ORIENTATION=" + RealDeckNumber(layer.angle) + "),\n";
    }
    if (layers.empty()) return {};
    return {{"", text + layup.name + " = DEFI_COMPOSITE(COUCHE=(\n" + layers + "))\n"}};
}

}  // namespace zelmat
