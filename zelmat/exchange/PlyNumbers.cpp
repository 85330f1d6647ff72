#include "zelmat/exchange/PlyNumbers.h"

#include <algorithm>
#include <cmath>

#include "zelmat/properties/LaminateProperty.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

/// Whether E and nu of direction 1 give all the others, to the last digits: rounded constants of an isotropic
/// material stay those that they are.
bool IsIsotropic(const PlyNumbers& ply) {
    const auto agrees = [](double number, double other) {
        return std::fabs(number - other) <= 1e-12 * std::fabs(other);
    };
    const double shear = ply.e1 / (2.0 * (1.0 + ply.nu12));
    return agrees(ply.e2, ply.e1) && agrees(ply.e3, ply.e1) && agrees(ply.nu13, ply.nu12) &&
           agrees(ply.nu23, ply.nu12) && agrees(ply.g12, shear) && agrees(ply.g13, shear) &&
           agrees(ply.g23, shear);
}

/// In the stored units, the ones across the ply from those in its plane where nobody gives them.
PlyNumbers Stored(const PlyMaterial& ply, const mechanics::OrthotropicPly& plane) {
    PlyNumbers numbers{};
    const auto across = [&](const char* name, double otherwise) {
        if (const auto given = ply.Constant(name)) return *given;
        numbers.assumed.emplace_back(name);
        return otherwise;
    };
    numbers.e1 = plane.e1;
    numbers.e2 = plane.e2;
    numbers.nu12 = plane.nu12;
    numbers.g12 = plane.g12;
    numbers.nu13 = across("nu13", plane.nu12);
    numbers.nu23 = across("nu23", plane.nu12);
    numbers.e3 = across("E3", plane.e2);
    numbers.g13 = across("G13", plane.g12);
    numbers.g23 = across("G23", plane.e2 / (2.0 * (1.0 + numbers.nu23)));
    numbers.isotropic = IsIsotropic(numbers);
    if (numbers.isotropic) numbers.assumed.clear();
    return numbers;
}

}  // namespace

bool PlyNumbers::IsGiven(const std::string& constant) const {
    return std::find(assumed.begin(), assumed.end(), constant) == assumed.end();
}

std::optional<PlyNumbers> PlyNumbersOf(const PlyMaterial& ply, const DeckUnits& units, DeckNotes& notes) {
    const std::string which = "ply material " + QuotedText(ply.name);
    const auto plane = PlyMaterialOf(ply.constants);
    if (!plane.Ok()) {
        notes.Lost(which + ": " + plane.Why());
        return std::nullopt;
    }
    PlyNumbers numbers = Stored(ply, plane->elastic);
    for (double* modulus :
         {&numbers.e1, &numbers.e2, &numbers.e3, &numbers.g12, &numbers.g13, &numbers.g23}) {
        const auto converted = units.FromStored(*modulus, "modulus");
        if (!converted) {
            notes.Lost(which + ": a modulus is too large for the unit");
            return std::nullopt;
        }
        *modulus = *converted;
    }
    if (plane->density) numbers.density = units.FromStored(*plane->density, "density");
    if (plane->expansion) {
        numbers.alpha1 = units.FromStored(plane->expansion->alpha1, "expansion");
        numbers.alpha2 = units.FromStored(plane->expansion->alpha2, "expansion");
    }
    if (plane->strength) notes.Lost(which + ": its strengths");
    return numbers;
}

}  // namespace zelmat
