#include <algorithm>
#include <cmath>

#include "zelmat/exchange/DeckForm.h"
#include "zelmat/exchange/HardeningRows.h"
#include "zelmat/exchange/calculix/CalculixCards.h"
#include "zelmat/exchange/calculix/CalculixPly.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ExpansionProperty.h"
#include "zelmat/properties/HyperelasticProperty.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

std::vector<DeckFile> CalculixLayup(const DeckLayup& layup, const DeckUnits& units, DeckNotes& notes);

namespace {

constexpr int kGreatestOrder = 3;

std::vector<CarryRule> Rules() {
    const std::string noDirection = "it has no element law for sheets of gasket over their closure";
    return {
        {"elastic", Carry::CARRIED, "*ELASTIC", ""},
        {"plastic isotropic", Carry::CARRIED, "*PLASTIC", ""},
        {"plastic kinematic", Carry::CARRIED, "*PLASTIC, HARDENING=KINEMATIC",
         "wrong in steps without NLGEOM"},
        {"plastic johnson-cook", Carry::CONVERTED, "*PLASTIC",
         "HARDENING=JOHNSON COOK is run as isotropic without a word, so curves over temperature stand for "
         "the law"},
        {"density", Carry::CARRIED, "*DENSITY", ""},
        {"thermal_expansion", Carry::CARRIED,
         "*EXPANSION, ZERO=", "instantaneous coefficients are integrated to mean ones"},
        {"conductivity", Carry::CARRIED, "*CONDUCTIVITY", ""},
        {"specific_heat", Carry::CARRIED, "*SPECIFIC HEAT", ""},
        {"user_material MECHANICAL", Carry::CARRIED, "*USER MATERIAL, *DEPVAR",
         "the routine is found by the beginning of the material's name; no flag for an unsymmetric "
         "stiffness"},
        {"user_material THERMAL", Carry::CARRIED, "*USER MATERIAL, TYPE=THERMAL, *DEPVAR", ""},
        {"hyperelastic ARRUDA_BOYCE", Carry::CARRIED, "*HYPERELASTIC, ARRUDA-BOYCE",
         "D = 0 is written as 1e-4/mu0"},
        {"hyperelastic MOONEY_RIVLIN", Carry::CARRIED, "*HYPERELASTIC, MOONEY-RIVLIN",
         "D = 0 is written as 1e-4/mu0"},
        {"hyperelastic NEO_HOOKE", Carry::CARRIED, "*HYPERELASTIC, NEO HOOKE",
         "D = 0 is written as 1e-4/mu0"},
        {"hyperelastic OGDEN", Carry::CARRIED, "*HYPERELASTIC, OGDEN",
         "to order 3; D = 0 is written as 1e-4/mu0"},
        {"hyperelastic POLYNOMIAL", Carry::CARRIED, "*HYPERELASTIC, POLYNOMIAL",
         "to order 3; D = 0 is written as 1e-4/mu0"},
        {"hyperelastic REDUCED_POLYNOMIAL", Carry::CARRIED, "*HYPERELASTIC, REDUCED POLYNOMIAL",
         "to order 3; D = 0 is written as 1e-4/mu0"},
        {"hyperelastic VAN_DER_WAALS", Carry::LOST, "", "it has no such potential"},
        {"hyperelastic YEOH", Carry::CARRIED, "*HYPERELASTIC, YEOH", "D = 0 is written as 1e-4/mu0"},
        {"gasket", Carry::LOST, "", noDirection},
        {"gasket_membrane", Carry::LOST, "", noDirection},
        {"gasket_transverse_shear", Carry::LOST, "", noDirection},
        {kPlyConstants, Carry::CARRIED, "*ELASTIC, TYPE=ENGINEERING CONSTANTS, *EXPANSION, TYPE=ORTHO",
         "constants across the ply that nobody gives are assumed"},
        {"layup", Carry::CONVERTED, "*SHELL SECTION, COMPOSITE, *ORIENTATION",
         "for elements S8R and S6 alone; constants across the ply that nobody gives are assumed"},
    };
}

/// The beginnings by which the solver finds the routines that a user writes.
bool NamesARoutine(const std::string& name) {
    const std::string upper = InCapitals(name);
    return upper.starts_with("USER") || upper.starts_with("ABAQUS");
}

/// One card of the deck, for one block of the material. Nothing when it cannot be written after all.
class MaterialCards {
public:
    MaterialCards(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes)
        : material_(material), units_(units), notes_(notes) {}

    std::string Text() const {
        const auto ply = material_.ply ? PlyNumbersOf(*material_.ply, units_, notes_) : std::nullopt;
        if (material_.ply && !ply) notes_.LostBehavior(kPlyConstants, "they make no ply");
        std::string text = ply ? CalculixPlyElastic(material_.material.name, *ply, notes_) : "";
        for (const Block& block : material_.blocks) text += CardOf(block);
        if (ply) text += FurtherOf(*ply);
        return text;
    }

private:
    std::string CardOf(const Block& block) const {
        const std::string& name = block.kind->name;
        if (name == "plastic") return Plastic(block);
        if (name == "thermal_expansion") return Expansion(block);
        if (name == "hyperelastic") return Hyperelastic(block);
        if (name == "user_material") return UserMaterial(block);
        if (name == "elastic") return Simple(block, "*ELASTIC");
        if (name == "density") return Simple(block, "*DENSITY");
        if (name == "conductivity") return Simple(block, "*CONDUCTIVITY");
        if (name == "specific_heat") return Simple(block, "*SPECIFIC HEAT");
        return {};
    }

    /// What the ply constants say and no block does.
    std::string FurtherOf(const PlyNumbers& ply) const {
        std::string text;
        if (ply.density && !material_.Find("density")) text = CalculixRow("*DENSITY", {*ply.density});
        if (!material_.Find("thermal_expansion")) return text + CalculixPlyExpansion(ply);
        if (ply.alpha1 != ply.alpha2) notes_.Lost("alpha1 and alpha2: thermal_expansion is in the deck");
        return text;
    }

    std::string Card(const std::string& keyword, const DeckTable& table) const {
        const bool hot = std::any_of(table.temperatures.begin(), table.temperatures.end(),
                                     [](double temperature) { return temperature > kCalculixHottestStart; });
        if (hot) {
            notes_.Caution("CalculiX takes an initial temperature above " +
                           DeckNumber(kCalculixHottestStart) +
                           " for -2147.48 without a word: bring the model there by *TEMPERATURE");
        }
        return CalculixCard(keyword, table);
    }

    std::string Lost(const Block& block, const std::string& why) const {
        notes_.LostBehavior(BehaviorOf(block), why);
        return {};
    }

    /// A table as it is, where the formulas can read it.
    std::string Simple(const Block& block, const std::string& keyword) const {
        std::string why;
        const auto table = DeckTableOf(block, units_, why);
        if (!table) return Lost(block, why);
        const auto readable = OverTemperature(block.tables.front());
        if (!readable.Ok()) return Lost(block, readable.Why());
        return Card(keyword, *table);
    }

    std::string Plastic(const Block& block) const {
        if (!material_.Find("elastic")) return Lost(block, "it needs an elastic behavior beside it");
        auto rows = HardeningRowsOf(block, units_, notes_);
        if (!rows) return {};
        const std::size_t given = rows->stress.size();
        if (!ToCommonStrains(*rows)) {
            notes_.Caution(
                "the hardening curves have too many different plastic strains to write all of them at each "
                "temperature; between temperatures CalculiX reads a curve at the strains of the one below");
        } else if (rows->stress.size() != given) {
            notes_.Changed(BehaviorOf(block) +
                           ": each curve is written at the plastic strains of all, interpolated, since "
                           "CalculiX reads a curve at the strains of the one below it");
        }
        const bool kinematic = BehaviorOf(block) == "plastic kinematic";
        if (kinematic) {
            notes_.Caution(
                "CalculiX computes kinematic hardening wrongly in linear steps: use *STEP, NLGEOM");
        }
        return Card(kinematic ? "*PLASTIC, HARDENING=KINEMATIC" : "*PLASTIC",
                    {{rows->stress, rows->plasticStrain}, rows->temperatures});
    }

    std::string Expansion(const Block& block) const {
        std::string why;
        auto table = DeckTableOf(block, units_, why);
        if (!table) return Lost(block, why);
        const auto reference = block.values.Get<double>("reference_temperature");
        if (!reference) {
            notes_.Caution(
                "thermal_expansion has no reference temperature: CalculiX takes 0, and so does the deck");
            return Card("*EXPANSION", *table);
        }
        if (IsInstantaneous(block)) {
            const auto mean = ExpansionOf(block, mechanics::OutsidePolicy::CONSTANT);
            if (!mean.Ok()) return Lost(block, mean.Why());
            for (std::size_t row = 0; row < table->Rows(); ++row) {
                const auto value = units_.FromStored(mean->Mean().Rows()[row].values[0], "expansion");
                if (!value) return Lost(block, "a coefficient is too large for the unit");
                table->columns[0][row] = *value;
            }
            notes_.Changed(
                "thermal_expansion: mean coefficients from the reference temperature, integrated from the "
                "instantaneous ones");
        }
        const auto zero = units_.FromStored(*reference, "temperature");
        if (!zero) return Lost(block, "the reference temperature is too large for the unit");
        return Card("*EXPANSION, ZERO=" + DeckNumber(*zero), *table);
    }

    std::string Hyperelastic(const Block& block) const {
        const auto property = HyperelasticProperty::Of(block);
        if (!property.Ok()) return Lost(block, property.Why());
        const CalculixPotential* potential = FindCalculixPotential(property->Model());
        const int order = property->Order();
        if (HasOrder(property->Model()) && order > kGreatestOrder) {
            return Lost(block, "order " + std::to_string(order) + "; CalculiX goes to order 3");
        }
        std::string why;
        auto table = DeckTableOf(block, units_, why);
        if (!table) return Lost(block, why);
        const std::size_t coefficients = CoefficientNames(property->Model(), order).size();
        if (!GiveCompressibility(*property, coefficients, *table)) {
            return Lost(block, "its shear modulus at rest is not above 0");
        }
        std::string keyword = "*HYPERELASTIC, " + std::string(potential->keyword);
        if (HasOrder(property->Model())) keyword += ", N=" + std::to_string(order);
        return Card(keyword, *table);
    }

    /// CalculiX replaces D = 0 by one of its own, which makes stresses 4 to 7 % smaller at a stretch of 2.
    bool GiveCompressibility(const HyperelasticProperty& property, std::size_t coefficients,
                             DeckTable& table) const {
        std::vector<double>& d = table.columns[coefficients];
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            if (d[row] != 0.0) continue;
            const auto& stored = property.Coefficients().Rows()[row].values;
            const std::vector<double> values(stored.begin(),
                                             stored.begin() + static_cast<std::ptrdiff_t>(coefficients));
            const auto energy = MakeStrainEnergy(property.Model(), property.Order(), values);
            if (!energy.Ok() || !((*energy)->ShearModulus() > 0.0)) return false;
            const auto shear = units_.FromStored((*energy)->ShearModulus(), "stress");
            if (!shear) return false;
            d[row] = RoundedTo(kCalculixIncompressible / *shear, 6);
            notes_.Changed(
                "hyperelastic: D = 0 (incompressible) is written as D1 = 1e-4/mu0, since CalculiX puts a "
                "softer one in its place");
        }
        return true;
    }

    std::string UserMaterial(const Block& block) const {
        const Table* constants = block.Find("constants");
        if (!constants || constants->Rows() == 0) return Lost(block, "it has no constants");
        for (const double constant : constants->columns.front().values) {
            if (!std::isfinite(constant)) return Lost(block, "a constant is not finite");
        }
        const bool thermal = BehaviorOf(block) == "user_material THERMAL";
        if (block.values.Get<bool>("unsymmetric").value_or(false)) {
            notes_.Lost("user_material: that the stiffness is unsymmetric; CalculiX has no such flag");
        }
        notes_.Changed("user_material: the constants are as they are, in the routine's own units");
        if (!thermal && !NamesARoutine(material_.name)) {
            notes_.Caution(
                "user_material: CalculiX finds the routine by the beginning of the material's name "
                "(USER of one's own), which is no routine's here, and stops");
        }
        std::string text = "*USER MATERIAL, CONSTANTS=" + std::to_string(constants->Rows()) +
                           (thermal ? ", TYPE=THERMAL\n" : "\n");
        text += CalculixConstants(constants->columns.front().values);
        const int variables = block.values.Get<int>("state_variables").value_or(0);
        if (variables > 0) text += "*DEPVAR\n" + std::to_string(variables) + "\n";
        return text;
    }

    const DeckMaterial& material_;
    const DeckUnits& units_;
    DeckNotes& notes_;
};

std::vector<DeckFile> Write(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes) {
    const std::string cards = MaterialCards(material, units, notes).Text();
    if (cards.empty()) return {};
    return {{"", "*MATERIAL, NAME=" + material.name + "\n" + cards}};
}

}  // namespace

DeckForm CalculixForm() {
    return {.name = "calculix",
            .title = "CalculiX",
            .comment = "** ",
            .names = {80, "-", true, "MATERIAL"},
            .outside = "the nearest row's value",
            .rules = Rules(),
            .write = &Write,
            .writeLayup = &CalculixLayup};
}

}  // namespace zelmat
