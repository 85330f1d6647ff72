#include "zelmat/exchange/PlyNumbers.h"

#include "zelmat/properties/LaminateProperty.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

std::optional<PlyNumbers> PlyNumbersOf(const PlyMaterial& ply, const DeckUnits& units, DeckNotes& notes) {
    const auto plane = PlyMaterialOf(ply.constants);
    if (!plane.Ok()) {
        notes.Lost("ply material " + QuotedText(ply.name) + ": " + plane.Why());
        return std::nullopt;
    }
    const auto& elastic = plane->elastic;
    std::vector<std::string> assumed;
    const auto across = [&](const char* name, double otherwise) {
        if (const auto given = ply.Constant(name)) return *given;
        assumed.emplace_back(name);
        return otherwise;
    };
    PlyNumbers numbers{};
    numbers.isotropic = ply.IsIsotropic();
    numbers.nu12 = elastic.nu12;
    numbers.nu13 = across("nu13", elastic.nu12);
    numbers.nu23 = across("nu23", elastic.nu12);
    const struct {
        double* into;
        double stored;
    } moduli[] = {
        {&numbers.e1, elastic.e1},
        {&numbers.e2, elastic.e2},
        {&numbers.e3, across("E3", elastic.e2)},
        {&numbers.g12, elastic.g12},
        {&numbers.g13, across("G13", elastic.g12)},
        {&numbers.g23, across("G23", elastic.e2 / (2.0 * (1.0 + numbers.nu23)))},
    };
    for (const auto& [into, stored] : moduli) {
        const auto converted = units.FromStored(stored, "modulus");
        if (!converted) {
            notes.Lost("ply material " + QuotedText(ply.name) + ": a modulus is too large for the unit");
            return std::nullopt;
        }
        *into = *converted;
    }
    if (plane->density) numbers.density = units.FromStored(*plane->density, "density");
    if (plane->alpha1 != 0.0 || plane->alpha2 != 0.0) {
        numbers.alpha1 = units.FromStored(plane->alpha1, "expansion");
        numbers.alpha2 = units.FromStored(plane->alpha2, "expansion");
    }
    if (!numbers.isotropic && !assumed.empty()) {
        notes.Changed("ply material " + QuotedText(ply.name) +
                      ": assumed to be the same in 2 and 3, with nu23 = nu12: " + WordList(assumed));
    }
    if (plane->strength) notes.Lost("ply material " + QuotedText(ply.name) + ": its strengths");
    return numbers;
}

}  // namespace zelmat
