#include <algorithm>
#include <array>
#include <cmath>

#include "zelmat/exchange/DeckForm.h"
#include "zelmat/exchange/HigherCompressibility.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ElasticProperty.h"
#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/properties/HyperelasticProperty.h"
#include "zelmat/properties/ValueAt.h"

namespace zelmat {

namespace {

using mechanics::OutsidePolicy;

constexpr double kRoomTemperature = 293.15;

/// Numbers in fields of 20 characters, as the format wants them.
std::string Fields(const std::vector<double>& numbers) {
    std::string line;
    for (const double number : numbers) {
        const std::string text = RealDeckNumber(number);
        line += std::string(kLongestDeckNumber - std::min(text.size(), kLongestDeckNumber), ' ') + text;
    }
    return line + "\n";
}

/// Whole numbers in fields of 10 characters.
std::string Counts(const std::vector<int>& counts) {
    std::string line;
    for (const int count : counts) {
        const std::string text = std::to_string(count);
        line += std::string(text.size() < 10 ? 10 - text.size() : 0, ' ') + text;
    }
    return line + "\n";
}

/// The name of a base unit by how many SI units it is; empty for one that has none here.
std::string BaseUnit(long double size, const std::array<std::pair<long double, const char*>, 3>& names) {
    for (const auto& [factor, name] : names) {
        if (std::fabs(size / factor - 1.0L) < 1e-9L) return name;
    }
    return {};
}

/// The mass, length and time that a system's stress and length come from.
std::string UnitBlock(const DeckUnits& units) {
    const long double length = units.For("length").Factor().Quotient();
    const long double time = 1.0L / units.For("rate").Factor().Quotient();
    const long double mass = units.For("stress").Factor().Quotient() * length * time * time;
    const std::string names[] = {BaseUnit(mass, {{{1.0L, "kg"}, {1e3L, "Mg"}, {1e-3L, "g"}}}),
                                 BaseUnit(length, {{{1.0L, "m"}, {1e-3L, "mm"}, {1e-2L, "cm"}}}),
                                 BaseUnit(time, {{{1.0L, "s"}, {1e-3L, "ms"}, {1e-6L, "mus"}}})};
    std::string line;
    for (const std::string& name : names) {
        if (name.empty())
            return "# mass, length and time of these units have no name here: say them in /BEGIN\n";
        line += std::string(kLongestDeckNumber - name.size(), ' ') + name;
    }
    return "/UNIT/1\nunits of the materials\n" + line + "\n";
}

class RadiossMaterial {
public:
    RadiossMaterial(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes)
        : material_(material), units_(units), notes_(notes) {}

    std::string Text() {
        if (!material_.Find("density")) {
            for (const Block& block : material_.blocks)
                notes_.LostBehavior(BehaviorOf(block), "every law of OpenRadioss needs a density");
            return {};
        }
        const auto density = AtRoomTemperature("density", "density", 0);
        if (!density) return {};
        density_ = *density;
        if (material_.Find("hyperelastic")) {
            TellHeatLost();
            return Rubber(*material_.Find("hyperelastic"));
        }
        const Block* plastic = material_.Find("plastic");
        const auto young = AtRoomTemperature("elastic", "modulus", 0),
                   ratio = AtRoomTemperature("elastic", "number", 1);
        if (!young || !ratio) {
            notes_.LostBehavior("density", "it needs a law of stress beside it");
            if (plastic) notes_.LostBehavior(BehaviorOf(*plastic), "it needs an elastic behavior beside it");
            TellHeatLost();
            return {};
        }
        young_ = *young;
        ratio_ = *ratio;
        return plastic ? Plastic(*plastic) : Elastic();
    }

private:
    void TellHeatLost() {
        if (material_.Find("specific_heat"))
            notes_.LostBehavior("specific_heat", "only Johnson and Cook's law has a place for it");
    }

    std::string Elastic() {
        TellHeatLost();
        return Head("ELAST") + Fields({density_}) + Fields({young_, ratio_});
    }

    std::string Head(const std::string& law) const {
        return "/MAT/" + law + "/" + std::to_string(material_.number) + "/1\n" + material_.name + "\n";
    }

    /// Its laws have no temperature: a table's value at 20 degC.
    std::optional<double> AtRoomTemperature(const char* name, const char* quantity, std::size_t column) {
        const Block* block = material_.Find(name);
        if (!block || block->tables.empty()) return std::nullopt;
        const auto table = OverTemperature(block->tables.front());
        const auto row = table.Ok()
                             ? ValueAt(*table, kRoomTemperature, OutsidePolicy::CONSTANT)
                             : mechanics::Outcome<mechanics::TableValue>(mechanics::Refusal{table.Why()});
        if (!row.Ok()) {
            notes_.LostBehavior(name, row.Why());
            return std::nullopt;
        }
        if (table->Range()) {
            notes_.Lost(std::string(name) +
                        ": its dependence on temperature; the value at 20 degC is written");
        }
        return units_.FromStored(row->values[column], quantity);
    }

    std::string Plastic(const Block& plastic) {
        const auto property = HardeningOf(plastic);
        if (!property.Ok()) {
            notes_.LostBehavior(BehaviorOf(plastic), property.Why());
            return Elastic();
        }
        if (const auto* law = std::get_if<mechanics::JohnsonCook>(&property->law)) return JohnsonCook(*law);
        TellHeatLost();
        return Curve(plastic, *property);
    }

    std::string JohnsonCook(const mechanics::JohnsonCook& law) {
        const auto stress = [&](double stored) { return units_.FromStored(stored, "stress").value_or(0.0); };
        double c = 0.0, rate = 0.0;
        if (law.rate) {
            c = law.rate->c;
            rate = units_.FromStored(law.rate->referenceRate, "rate").value_or(0.0);
        }
        double heat = 0.0;
        if (const auto specific = AtRoomTemperature("specific_heat", "specific_heat", 0))
            heat = density_ * *specific;
        // Absolute temperatures: the law starts from 0 of the scale.
        notes_.Changed("plastic johnson-cook: melting and reference temperature are in kelvin");
        return Head("PLAS_JOHNS") + "#              RHO_I\n" + Fields({density_}) +
               "#                  E                  Nu     Iflag\n" + Fields({young_, ratio_}) +
               "#                  a                   b                   n           EPS_p_max            "
               "SIG_max0\n" +
               Fields({stress(law.a), stress(law.b), law.n, 0.0, 0.0}) +
               "#                  c           EPS_DOT_0\n" + Fields({c, rate}) +
               "#                  m              T_melt              rhoC_p                 T_r\n" +
               Fields({law.m, law.meltingTemperature, heat, law.transitionTemperature});
    }

    std::string Curve(const Block& plastic, const HardeningProperty& property) {
        const auto& table = std::get<mechanics::HardeningTable>(property.law);
        const auto range = table.Temperatures();
        const double at = std::clamp(kRoomTemperature, range.lowest, range.highest);
        if (property.temperatureDependent) {
            notes_.Lost(BehaviorOf(plastic) +
                        ": its dependence on temperature; the curve nearest 20 degC is written");
        }
        const bool kinematic = BehaviorOf(plastic) == "plastic kinematic";
        const int function = material_.number;
        std::string curve;
        double strain = 0.0, stress = 0.0;
        for (const auto& point : table.Rows()) {
            if (property.temperatureDependent && NearestTemperature(table, at) != point.temperature) continue;
            strain = point.plasticStrain;
            stress = units_.FromStored(point.stress, "stress").value_or(0.0);
            curve += Fields({strain, stress});
        }
        curve += Fields({strain + 1.0, stress});
        notes_.Changed(
            BehaviorOf(plastic) +
            ": one more point behind the last, of the same stress: the curve stays constant there");
        return "/FUNCT/" + std::to_string(function) + "\n" + material_.name + " hardening\n" + curve +
               Head("PLAS_TAB") + "#              RHO_I\n" + Fields({density_}) +
               "#                  E                  Nu           Eps_p_max               Eps_t             "
               "  Eps_m\n" +
               Fields({young_, ratio_, 0.0, 0.0, 0.0}) +
               "#  N_funct  F_smooth              C_hard               F_cut               Eps_f\n" +
               Counts({1, 0}).substr(0, 20) + Fields({kinematic ? 1.0 : 0.0, 0.0, 0.0}) +
               "#  fct_IDp              Fscale   Fct_IDE                EInf                  CE\n" +
               Counts({0}).substr(0, 10) + Fields({0.0}).substr(0, 20) + Counts({0}).substr(0, 10) +
               Fields({0.0, 0.0}) + "#  fct_ID1\n" + Counts({function}) + "#           Fscale_1\n" +
               Fields({1.0}) + "#          Eps_dot_1\n" + Fields({0.0});
    }

    static double NearestTemperature(const mechanics::HardeningTable& table, double at) {
        double nearest = table.Rows().front().temperature;
        for (const auto& point : table.Rows()) {
            if (std::fabs(point.temperature - at) < std::fabs(nearest - at)) nearest = point.temperature;
        }
        return nearest;
    }

    std::string Rubber(const Block& block) {
        const auto property = HyperelasticProperty::Of(block);
        const auto material = property.Ok()
                                  ? property->At(kRoomTemperature, OutsidePolicy::CONSTANT)
                                  : mechanics::Outcome<HyperelasticAt>(mechanics::Refusal{property.Why()});
        if (!material.Ok()) {
            notes_.LostBehavior(BehaviorOf(block), material.Why());
            return {};
        }
        std::vector<double> mu, alpha;
        if (!Terms(*property, *material, mu, alpha)) {
            notes_.LostBehavior(BehaviorOf(block), "LAW42 has 5 terms, and no more than that is written");
            return {};
        }
        TellHigherD(*property, notes_);
        mu.resize(5, 0.0);
        alpha.resize(5, 0.0);
        if (property->Coefficients().Range())
            notes_.Lost("hyperelastic: its dependence on temperature; that at 20 degC is written");
        const auto bulk = material->volumetric.BulkModulus();
        double ratio = 0.495;
        if (bulk.Ok()) {
            const double shear = material->energy->ShearModulus();
            ratio = (3.0 * *bulk - 2.0 * shear) / (6.0 * *bulk + 2.0 * shear);
        }
        notes_.Changed(bulk.Ok() ? "hyperelastic: D1 is written as Poisson's ratio at rest"
                                 : "hyperelastic: incompressible is written as Poisson's ratio 0.495");
        return Head("OGDEN") + "#              RHO_I\n" + Fields({density_}) +
               "#                 Nu           sigma_cut\n" + Fields({ratio, 0.0}) +
               "#               Mu_1                Mu_2                Mu_3                Mu_4             "
               "   Mu_5\n" +
               Fields(mu) + "\n" +
               "#            alpha_1             alpha_2             alpha_3             alpha_4             "
               "alpha_5\n" +
               Fields(alpha) + "\n";
    }

    /// W = sum mu_p/alpha_p (l1^alpha_p + ... - 3): C10 is mu 2 C10 with alpha 2, C01 is mu -2 C01 with alpha
    /// -2.
    bool Terms(const HyperelasticProperty& property, const HyperelasticAt& material, std::vector<double>& mu,
               std::vector<double>& alpha) const {
        const auto& c = material.coefficients;
        const auto add = [&](double stored, double exponent) {
            mu.push_back(units_.FromStored(stored, "stress").value_or(0.0));
            alpha.push_back(exponent);
        };
        if (property.Model() == mechanics::HyperelasticModel::OGDEN) {
            for (std::size_t at = 0; at + 1 < c.size(); at += 2) add(2.0 * c[at] / c[at + 1], c[at + 1]);
        } else {
            add(2.0 * c[0], 2.0);
            if (c.size() > 1) add(-2.0 * c[1], -2.0);
        }
        return mu.size() <= 5;
    }

    const DeckMaterial& material_;
    const DeckUnits& units_;
    DeckNotes& notes_;
    double density_ = 0.0, young_ = 0.0, ratio_ = 0.0;
};

std::vector<DeckFile> Write(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes) {
    const std::string text = RadiossMaterial(material, units, notes).Text();
    if (text.empty()) return {};
    return {{"", text}};
}

std::vector<CarryRule> Rules() {
    return WithTheRestLost(
        {{"elastic", Carry::CARRIED, "/MAT/ELAST", "at 20 degC; needs a density"},
         {"plastic isotropic", Carry::CARRIED, "/MAT/PLAS_TAB, /FUNCT", "the curve nearest 20 degC"},
         {"plastic kinematic", Carry::CARRIED, "/MAT/PLAS_TAB, C_hard = 1", "the curve nearest 20 degC"},
         {"plastic johnson-cook", Carry::CARRIED, "/MAT/PLAS_JOHNS", "temperatures in kelvin"},
         {"density", Carry::CARRIED, "RHO_I", "at 20 degC; with a law of stress alone"},
         {"specific_heat", Carry::CONVERTED, "rhoC_p of /MAT/PLAS_JOHNS",
          "multiplied by the density; beside Johnson and Cook's law alone"},
         {"hyperelastic OGDEN", Carry::CONVERTED, "/MAT/OGDEN",
          "mu of the form mu/alpha; D1 as Poisson's ratio"},
         {"hyperelastic NEO_HOOKE", Carry::CONVERTED, "/MAT/OGDEN",
          "one term of alpha 2; D1 as Poisson's ratio"},
         {"hyperelastic MOONEY_RIVLIN", Carry::CONVERTED, "/MAT/OGDEN",
          "terms of alpha 2 and -2; D1 as Poisson's ratio"}},
        "OpenRadioss has no law for it that this program writes");
}

}  // namespace

DeckForm OpenRadiossForm() {
    return {.name = "openradioss",
            .title = "OpenRadioss",
            .comment = "# ",
            .names = {80, "-. ", false, "MATERIAL"},
            .outside = "the value at 20 degC, as at every temperature",
            .rules = Rules(),
            .write = &Write,
            .before = &UnitBlock};
}

}  // namespace zelmat
