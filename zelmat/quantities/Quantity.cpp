#include "zelmat/quantities/Quantity.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr bool kPoint = true;

Quantity Make(std::string_view name, std::string_view title, std::initializer_list<std::string_view> units,
              std::string_view family = {}, bool isPoint = false) {
    std::vector<Unit> read;
    for (const std::string_view unit : units) read.push_back(*Unit::Read(unit));
    return {name, title, family, read.front(), read, isPoint};
}

/// The first unit is the one that documents hold.
std::vector<Quantity> MakeAll() {
    const std::initializer_list<std::string_view> pure = {"-", "%", "ppm"};
    const std::initializer_list<std::string_view> strains = {"-", "%", "microstrain", "mm/mm", "in/in"};
    const std::initializer_list<std::string_view> stress = {"Pa",  "kPa", "MPa", "GPa", "N/mm^2",
                                                            "bar", "psi", "ksi", "Msi", "kgf/mm^2"};
    return {
        Make("stress", "stress", stress),
        Make("modulus", "modulus", stress, "stress"),
        Make("pressure", "pressure", stress, "stress"),
        Make("number", "pure number", pure),
        Make("strain", "strain", strains, "number"),
        Make("density", "density",
             {"kg/m3", "g/cm^3", "t/mm3", "kg/mm3", "lb/in^3", "lb/ft^3", "lbf s2/in4"}),
        Make("expansion", "thermal expansion", {"1/K", "1e-6/K", "µm/m/K", "ppm/K", "1/degC", "1/degF"}),
        Make("conductivity", "thermal conductivity",
             {"W/(m K)", "mW/(mm K)", "kW/(mm K)", "W/(cm K)", "Btu/(h ft degF)", "Btu in/(h ft^2 degF)"}),
        Make("specific_heat", "specific heat",
             {"J/(kg K)", "kJ/(kg K)", "J/(g K)", "mJ/(t K)", "Btu/(lb degF)", "kcal_IT/(kg degC)"}),
        Make("temperature", "temperature", {"K", "degC", "degF", "degR"}, {}, kPoint),
        Make("temperature_difference", "temperature difference", {"K", "degC", "degF", "degR"}),
        Make("length", "length", {"m", "mm", "cm", "µm", "in", "mil", "ft"}),
        Make("angle", "angle", {"deg", "rad", "gon"}),
        Make("stiffness_per_area", "stiffness per area",
             {"Pa/m", "MPa/mm", "GPa/mm", "N/mm^3", "psi/in", "lbf/in^3"}),
        Make("compressibility", "compressibility", {"1/Pa", "1/MPa", "1/GPa", "mm^2/N", "1/psi", "in^2/lbf"}),
        Make("area_density", "mass per area", {"kg/m2", "g/m^2", "t/mm2", "kg/mm2", "lb/ft^2", "lb/in^2"}),
        Make("force", "force", {"N", "kN", "lbf", "kip", "kgf"}),
        Make("force_per_length", "force per length", {"N/m", "N/mm", "kN/mm", "lbf/in"}),
        Make("moment", "moment", {"N m", "N mm", "kN mm", "lbf in"}),
        Make("moment_per_length", "moment per length", {"N", "kN", "N m/m", "N mm/mm", "lbf", "lbf in/in"}),
        Make("curvature", "curvature", {"1/m", "1/mm", "1/in"}),
        Make("thermal_curvature", "curvature per temperature", {"1/(m K)", "1/(mm K)", "1/(in degF)"}),
        Make("membrane_compliance", "membrane compliance", {"m/N", "mm/N", "mm/kN", "in/lbf"}),
        Make("coupling_compliance", "coupling compliance", {"1/N", "1/kN", "1/lbf"}),
        Make("bending_compliance", "bending compliance", {"1/(N m)", "1/(N mm)", "1/(kN mm)", "1/(lbf in)"}),
        Make("energy_per_area", "energy per area", {"J/m2", "mJ/mm^2", "J/mm^2", "in lbf/in^2"}),
        Make("velocity", "velocity", {"m/s", "mm/s", "mm/ms", "in/s", "ft/s"}),
        Make("rate", "rate", {"1/s", "1/ms", "1/min", "Hz"}),
        Make("resistivity", "electrical resistivity", {"Ohm m", "µOhm cm", "nOhm m", "Ohm mm^2/m", "Ohm mm"}),
        Make("electrical_conductivity", "electrical conductivity", {"S/m", "MS/m", "S/mm"}),
    };
}

/// A pound or a kilogram where the unit needs the force that it weighs: "kg/mm^2" for a stress.
bool IsMassForForce(const Unit& unit, const Quantity& quantity) {
    static const Dimension kGravity = Unit::Read("m/s2")->Dimension();
    return unit.Dimension() * kGravity == quantity.stored.Dimension();
}

}  // namespace

std::span<const Quantity> Quantities() {
    static const std::vector<Quantity> all = MakeAll();
    return all;
}

const Quantity* FindQuantity(std::string_view name) {
    const auto all = Quantities();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Quantity& quantity) { return quantity.name == name; });
    return found == all.end() ? nullptr : &*found;
}

const Quantity* FindQuantityStoredIn(std::string_view unit) {
    const auto all = Quantities();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const Quantity& quantity) { return quantity.stored.Spelling() == unit; });
    return found == all.end() ? nullptr : &*found;
}

std::string UnitsThatDo(const Quantity& quantity) {
    std::string list;
    for (std::size_t i = 0; i < quantity.units.size(); ++i) {
        if (i > 0) list += i + 1 == quantity.units.size() ? " or " : ", ";
        list += quantity.units[i].Spelling();
    }
    return list;
}

QuantityResult<Unit> ReadUnit(std::string_view text, const Quantity& quantity) {
    const auto error = [&](const std::string& what) {
        return QuantityError{std::string(quantity.title) + ": " + what + "; expected " +
                             UnitsThatDo(quantity)};
    };
    auto unit = Unit::Read(text);
    if (!unit) return error(unit.Error().text);
    const std::string found = "the unit " + QuotedText(unit->Spelling());
    if (unit->Dimension() != quantity.stored.Dimension()) {
        const bool mass = IsMassForForce(*unit, quantity);
        return error(found + " measures something else" + (mass ? " (a mass for a force: kgf, lbf?)" : ""));
    }
    if (quantity.isPoint && unit->HasScaleWithin()) {
        return error(found + " is a difference, not a point of a scale");
    }
    return unit;
}

}  // namespace zelmat
