#include "zelmat/quantities/UnitChoice.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>

#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

/// Units that differ from those of documents; what a system does not name has the unit of its family or the
/// stored one.
struct UnitSystem {
    struct Row {
        std::string_view quantity;
        std::string_view unit;
    };
    std::string_view name;
    std::vector<Row> rows;
};

namespace {

const std::vector<UnitSystem>& Systems() {
    static const std::vector<UnitSystem> systems = {
        {"si", {}},
        {"mm-t-s",
         {{"stress", "MPa"},
          {"density", "t/mm3"},
          {"conductivity", "mW/(mm K)"},
          {"specific_heat", "mJ/(t K)"},
          {"temperature", "degC"},
          {"length", "mm"},
          {"stiffness_per_area", "MPa/mm"},
          {"compressibility", "1/MPa"},
          {"area_density", "t/mm2"},
          {"force_per_length", "N/mm"},
          {"moment", "N mm"},
          {"curvature", "1/mm"},
          {"thermal_curvature", "1/(mm K)"},
          {"membrane_compliance", "mm/N"},
          {"bending_compliance", "1/(N mm)"},
          {"energy_per_area", "mJ/mm^2"},
          {"velocity", "mm/s"},
          {"resistivity", "Ohm mm"},
          {"electrical_conductivity", "S/mm"}}},
        {"mm-kg-ms",
         {{"stress", "GPa"},
          {"density", "kg/mm3"},
          {"conductivity", "kW/(mm K)"},
          {"temperature", "degC"},
          {"length", "mm"},
          {"stiffness_per_area", "GPa/mm"},
          {"compressibility", "1/GPa"},
          {"area_density", "kg/mm2"},
          {"force", "kN"},
          {"force_per_length", "kN/mm"},
          {"moment", "kN mm"},
          {"moment_per_length", "kN"},
          {"curvature", "1/mm"},
          {"thermal_curvature", "1/(mm K)"},
          {"membrane_compliance", "mm/kN"},
          {"coupling_compliance", "1/kN"},
          {"bending_compliance", "1/(kN mm)"},
          {"energy_per_area", "J/mm^2"},
          {"velocity", "mm/ms"},
          {"rate", "1/ms"},
          {"resistivity", "Ohm mm"},
          {"electrical_conductivity", "S/mm"}}},
        {"us",
         {{"stress", "psi"},
          {"density", "lb/in^3"},
          {"expansion", "1/degF"},
          {"conductivity", "Btu/(h ft degF)"},
          {"specific_heat", "Btu/(lb degF)"},
          {"temperature", "degF"},
          {"temperature_difference", "degF"},
          {"length", "in"},
          {"stiffness_per_area", "psi/in"},
          {"compressibility", "1/psi"},
          {"area_density", "lb/in^2"},
          {"force", "lbf"},
          {"force_per_length", "lbf/in"},
          {"moment", "lbf in"},
          {"moment_per_length", "lbf in/in"},
          {"curvature", "1/in"},
          {"thermal_curvature", "1/(in degF)"},
          {"membrane_compliance", "in/lbf"},
          {"coupling_compliance", "1/lbf"},
          {"bending_compliance", "1/(lbf in)"},
          {"energy_per_area", "in lbf/in^2"},
          {"velocity", "in/s"}}},
    };
    return systems;
}

const UnitSystem& TextSystem() {
    static const UnitSystem system = {"",
                                      {{"stress", "MPa"},
                                       {"temperature", "degC"},
                                       {"length", "mm"},
                                       {"stiffness_per_area", "MPa/mm"},
                                       {"compressibility", "1/MPa"},
                                       {"force_per_length", "N/mm"},
                                       {"moment", "N mm"},
                                       {"curvature", "1/mm"},
                                       {"thermal_curvature", "1/(mm K)"},
                                       {"membrane_compliance", "mm/N"},
                                       {"bending_compliance", "1/(N mm)"},
                                       {"energy_per_area", "mJ/mm^2"}}};
    return system;
}

const UnitSystem* FindSystem(std::string_view name) {
    const auto& systems = Systems();
    const auto found = std::find_if(systems.begin(), systems.end(),
                                    [&](const UnitSystem& system) { return system.name == name; });
    return found == systems.end() ? nullptr : &*found;
}

std::size_t IndexOf(const Quantity& quantity) {
    return static_cast<std::size_t>(&quantity - Quantities().data());
}

std::string QuantityNames() {
    std::string names;
    for (const Quantity& quantity : Quantities()) {
        names += (names.empty() ? "" : ", ") + std::string(quantity.name);
    }
    return names;
}

}  // namespace

UnitChoice::UnitChoice(const UnitSystem& system) {
    for (const Quantity& quantity : Quantities()) {
        const auto row =
            std::find_if(system.rows.begin(), system.rows.end(), [&](const UnitSystem::Row& one) {
                return one.quantity == quantity.name || one.quantity == quantity.family;
            });
        units_.push_back(row == system.rows.end() ? quantity.stored : *ReadUnit(row->unit, quantity));
    }
}

UnitChoice UnitChoice::Si() {
    return UnitChoice(*FindSystem("si"));
}

UnitChoice UnitChoice::ForText() {
    return UnitChoice(TextSystem());
}

std::string UnitChoice::Systems() {
    std::string names;
    for (const UnitSystem& system : zelmat::Systems()) {
        const bool last = &system == &zelmat::Systems().back();
        names += (names.empty() ? "" : last ? " and " : ", ") + std::string(system.name);
    }
    return names;
}

const Unit& UnitChoice::For(const Quantity& quantity) const {
    return units_[IndexOf(quantity)];
}

/// One "quantity=unit". `own` says which quantities were named by themselves.
QuantityResult<bool> UnitChoice::Set(std::string_view piece, std::vector<bool>& own) {
    const std::size_t equals = piece.find('=');
    if (equals == std::string_view::npos) {
        return QuantityError{QuotedText(piece) + " is no system of units (" + Systems() +
                             ") and no choice such as 'stress=MPa'"};
    }
    const std::string_view name = WithoutBlanksAround(piece.substr(0, equals));
    const Quantity* quantity = FindQuantity(name);
    if (!quantity) {
        return QuantityError{QuotedText(name) + " is no quantity; there are " + QuantityNames()};
    }
    if (own[IndexOf(*quantity)]) return QuantityError{QuotedText(name) + " is given two units"};
    const auto unit = ReadUnit(piece.substr(equals + 1), *quantity);
    if (!unit) return unit.Error();
    for (const Quantity& member : Quantities()) {
        if (member.family == name && !own[IndexOf(member)]) units_[IndexOf(member)] = *unit;
    }
    units_[IndexOf(*quantity)] = *unit;
    own[IndexOf(*quantity)] = true;
    return true;
}

QuantityResult<UnitChoice> UnitChoice::Read(std::string_view text, const UnitChoice& base) {
    UnitChoice choice = base;
    std::vector<bool> own(Quantities().size(), false);
    bool first = true;
    for (bool more = true; more; first = false) {
        const std::size_t comma = text.find(',');
        const std::string_view piece = WithoutBlanksAround(text.substr(0, comma));
        more = comma != std::string_view::npos;
        if (more) text.remove_prefix(comma + 1);
        if (const UnitSystem* system = first ? FindSystem(piece) : nullptr) {
            choice = UnitChoice(*system);
        } else if (const auto set = choice.Set(piece, own); !set) {
            return set.Error();
        }
    }
    return choice;
}

}  // namespace zelmat
