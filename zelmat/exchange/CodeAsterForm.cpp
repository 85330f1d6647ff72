
#include "zelmat/exchange/CodeAsterPly.h"
#include "zelmat/exchange/DeckForm.h"
#include "zelmat/exchange/HardeningRows.h"
#include "zelmat/exchange/HigherCompressibility.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ElasticProperty.h"
#include "zelmat/properties/ExpansionProperty.h"
#include "zelmat/properties/HyperelasticProperty.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

std::vector<DeckFile> CodeAsterLayup(const DeckLayup& layup, const DeckUnits& units, DeckNotes& notes);

namespace {

/// K0 over the shear modulus at rest of what stands for an incompressible material.
constexpr double kIncompressible = 2e4;

/// Three digits to the base of 36.
constexpr int kMostFunctions = 36 * 36 * 36 - 1;

/// To the base of 36, so that a short name tells many apart.
std::string Digits36(int number, int width) {
    std::string digits(static_cast<std::size_t>(width), '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number /= 36) {
        *digit = "0123456789abcdefghijklmnopqrstuvwxyz"[number % 36];
    }
    return digits;
}

std::string Numbers(const std::vector<double>& numbers) {
    std::string text;
    for (const double number : numbers) text += RealDeckNumber(number) + ", ";
    return text;
}

/// Commands that define one material: functions, then DEFI_MATERIAU.
class AsterMaterial {
public:
    AsterMaterial(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes)
        : material_(material), units_(units), notes_(notes) {}

    std::string Text() {
        Elastic();
        Ply();
        Plastic();
        Thermal();
        Hyperelastic();
        if (material_.Find("density") && !densityWritten_)
            notes_.LostBehavior("density", "it needs an elastic behavior beside it");
        if (functionCount_ > kMostFunctions) {
            for (const Block& block : material_.blocks) {
                notes_.LostBehavior(BehaviorOf(block),
                                    "its material has more functions than names tell apart");
            }
            return {};
        }
        if (factors_.empty()) return {};
        std::string text = functions_ + material_.name + " = DEFI_MATERIAU(\n";
        for (const std::string& factor : factors_) text += "    " + factor + ",\n";
        return text + ")\n";
    }

private:
    std::optional<DeckTable> TableOf(const char* name) {
        const Block* block = material_.Find(name);
        if (!block) return std::nullopt;
        std::string why;
        auto table = DeckTableOf(*block, units_, why);
        const auto readable = OverTemperature(block->tables.front());
        if (table && readable.Ok()) return table;
        notes_.LostBehavior(BehaviorOf(*block), (table ? readable.Why() : why));
        return std::nullopt;
    }

    /// "f", four digits of the material's number and three of a count: eight characters, where a material's
    /// name has at most seven, so that they never meet.
    std::string NewFunction(const std::string& command) {
        std::string name = "f" + Digits36(material_.number, 4) + Digits36(++functionCount_, 3);
        functions_ += name + " = " + command + "\n";
        return name;
    }

    std::string Function(const std::vector<double>& x, const std::vector<double>& y, const char* parameter) {
        std::string values;
        for (std::size_t at = 0; at < x.size(); ++at) values += Numbers({x[at], y[at]});
        return NewFunction(std::string("DEFI_FONCTION(NOM_PARA='") + parameter +
                           "', PROL_GAUCHE='CONSTANT', PROL_DROITE='CONSTANT', VALE=(" + values + "))");
    }

    std::string OverTemperatureFunction(const DeckTable& table, std::size_t column) {
        if (!table.temperatures.empty()) return Function(table.temperatures, table.columns[column], "TEMP");
        return NewFunction("DEFI_CONSTANTE(VALE=" + RealDeckNumber(table.columns[column].front()) + ")");
    }

    /// The density, which code_aster wants constant.
    double Constant(const DeckTable& density, const char* what) {
        densityWritten_ = true;
        if (density.Rows() > 1) {
            notes_.Changed(std::string(what) + ": code_aster takes one number, that of the first row");
        }
        return density.columns[0].front();
    }

    void Elastic() {
        const auto elastic = TableOf("elastic"), expansion = MeanExpansion(), density = TableOf("density");
        if (!elastic) {
            const bool ofThePly = material_.ply && material_.ply->Constant("alpha");
            if (material_.Find("thermal_expansion") && !ofThePly)
                notes_.LostBehavior("thermal_expansion", "it needs an elastic behavior beside it");
            return;
        }
        const bool functions =
            !elastic->temperatures.empty() || (expansion && !expansion->temperatures.empty());
        std::string text;
        const auto add = [&](const char* keyword, const DeckTable& table, std::size_t column) {
            text += std::string(keyword) + "=" +
                    (functions ? OverTemperatureFunction(table, column)
                               : RealDeckNumber(table.columns[column].front())) +
                    ", ";
        };
        add("E", *elastic, 0);
        add("NU", *elastic, 1);
        if (expansion) add("ALPHA", *expansion, 0);
        if (expansion && functions) text += "TEMP_DEF_ALPHA=" + RealDeckNumber(reference_) + ", ";
        if (expansion) {
            notes_.Changed(
                "thermal_expansion: the reference temperature is given again in AFFE_MATERIAU (VALE_REF=" +
                DeckNumber(reference_) + ")");
        }
        if (density) text += "RHO=" + RealDeckNumber(Constant(*density, "density")) + ", ";
        factors_.push_back(std::string(functions ? "ELAS_FO" : "ELAS") + "=_F(" + text + ")");
    }

    void Ply() {
        if (!material_.ply) return;
        auto ply = PlyNumbersOf(*material_.ply, units_, notes_);
        if (!ply) return notes_.LostBehavior(kPlyConstants, "they make no ply");
        if (ply->density) densityWritten_ = true;
        factors_.push_back(CodeAsterPly(*ply));
    }

    std::optional<DeckTable> MeanExpansion() {
        const Block* block = material_.Find("thermal_expansion");
        if (!block) return std::nullopt;
        const auto stored = block->values.Get<double>("reference_temperature");
        const auto zero = stored ? units_.FromStored(*stored, "temperature") : std::nullopt;
        if (IsInstantaneous(*block) || !zero) {
            notes_.LostBehavior("thermal_expansion",
                                "it needs mean coefficients with a reference temperature");
            return std::nullopt;
        }
        reference_ = *zero;
        return TableOf("thermal_expansion");
    }

    void Plastic() {
        const Block* plastic = material_.Find("plastic");
        const Block* elastic = material_.Find("elastic");
        if (!plastic) return;
        if (!elastic)
            return notes_.LostBehavior(BehaviorOf(*plastic), "it needs an elastic behavior beside it");
        const auto rows = HardeningRowsOf(*plastic, units_, notes_);
        if (!rows) return;
        if (BehaviorOf(*plastic) == "plastic kinematic") return Kinematic(*rows, *elastic);
        std::vector<double> temperatures;
        std::string curves;
        for (std::size_t row = 0; row < rows->stress.size();) {
            std::size_t end = row + 1;
            while (end < rows->stress.size() && rows->plasticStrain[end] > 0.0) ++end;
            const double temperature = rows->temperatures.empty() ? 0.0 : rows->temperatures[row];
            const auto young = YoungsModulus(
                *elastic, rows->temperatures.empty() ? std::nullopt : std::optional(temperature));
            if (!young)
                return notes_.LostBehavior(BehaviorOf(*plastic), "no Young's modulus at its temperatures");
            std::vector<double> strains, stresses;
            for (; row < end; ++row) {
                strains.push_back(RoundedTo(rows->plasticStrain[row] + rows->stress[row] / *young, 12));
                stresses.push_back(rows->stress[row]);
            }
            if (strains.size() == 1) {  // a curve of one point is perfectly plastic
                strains.push_back(strains[0] + 1.0);
                stresses.push_back(stresses[0]);
            }
            temperatures.push_back(temperature);
            curves += Function(strains, stresses, "EPSI") + ", ";
        }
        std::string curve = curves.substr(0, curves.size() - 2);
        if (!rows->temperatures.empty()) {
            curve = NewFunction(
                "DEFI_NAPPE(NOM_PARA='TEMP', PROL_GAUCHE='CONSTANT', PROL_DROITE='CONSTANT', PARA=(" +
                Numbers(temperatures) + "), FONCTION=(" + curves + "))");
        }
        notes_.Changed(BehaviorOf(*plastic) +
                       ": TRACTION holds the stress over total strain, with the elastic part added");
        factors_.push_back("TRACTION=_F(SIGM=" + curve + ")");
    }

    void Kinematic(const HardeningRows& rows, const Block& elastic) {
        const auto young = YoungsModulus(elastic, std::nullopt);
        if (!young || rows.stress.size() != 2 || !rows.temperatures.empty()) {
            return notes_.LostBehavior("plastic kinematic",
                                       "ECRO_LINE is one straight line for all temperatures");
        }
        const double plastic = (rows.stress[1] - rows.stress[0]) / rows.plasticStrain[1];
        factors_.push_back("ECRO_LINE=_F(D_SIGM_EPSI=" +
                           RealDeckNumber(RoundedTo(*young * plastic / (*young + plastic), 12)) +
                           ", SY=" + RealDeckNumber(rows.stress[0]) + ")");
    }

    std::optional<double> YoungsModulus(const Block& elastic, std::optional<double> temperature) const {
        const auto kelvin = temperature ? units_.ToStored(*temperature, "temperature") : std::nullopt;
        const auto constants = ElasticityAt(elastic, kelvin, mechanics::OutsidePolicy::CONSTANT);
        if (!constants.Ok()) return std::nullopt;
        return units_.FromStored(constants->constants.youngsModulus, "modulus");
    }

    void Thermal() {
        const auto conductivity = TableOf("conductivity");
        auto heat = TableOf("specific_heat");
        const auto density = TableOf("density");
        if (heat && !density) notes_.LostBehavior("specific_heat", "RHO_CP needs a density beside it");
        if (!density) heat.reset();
        if (!conductivity) {
            if (heat) notes_.LostBehavior("specific_heat", "THER needs a conductivity beside it");
            return;
        }
        if (heat) {
            for (double& number : heat->columns[0]) number *= Constant(*density, "density in RHO_CP");
        }
        const bool functions = !conductivity->temperatures.empty() || (heat && !heat->temperatures.empty());
        std::string text;
        const auto add = [&](const char* keyword, const DeckTable& table) {
            text +=
                std::string(keyword) + "=" +
                (functions ? OverTemperatureFunction(table, 0) : RealDeckNumber(table.columns[0].front())) +
                ", ";
        };
        add("LAMBDA", *conductivity);
        if (heat) add("RHO_CP", *heat);
        factors_.push_back(std::string(functions ? "THER_NL" : "THER") + "=_F(" + text + ")");
    }

    void Hyperelastic() {
        const Block* block = material_.Find("hyperelastic");
        if (!block) return;
        const auto property = HyperelasticProperty::Of(*block);
        const auto material = property.Ok()
                                  ? property->At(std::nullopt, mechanics::OutsidePolicy::CONSTANT)
                                  : mechanics::Outcome<HyperelasticAt>(mechanics::Refusal{property.Why()});
        if (!material.Ok()) return notes_.LostBehavior(BehaviorOf(*block), material.Why());
        TellHigherD(*property, notes_);
        std::string text;
        for (std::size_t at = 0; at < material->coefficients.size(); ++at) {
            const std::string name = CoefficientNames(property->Model(), property->Order())[at];
            const auto number = units_.FromStored(material->coefficients[at], "stress");
            const bool known = name == "C10" || name == "C01" || name == "C20";
            if (!number || !known) {
                return notes_.LostBehavior(BehaviorOf(*block),
                                           "ELAS_HYPER has C10, C01 and C20, not " + name);
            }
            text += name + "=" + RealDeckNumber(*number) + ", ";
        }
        if (text.find("C01") == std::string::npos) text += "C01=0., ";
        const auto bulk = material->volumetric.BulkModulus();
        const double stored = bulk.Ok() ? *bulk : kIncompressible * material->energy->ShearModulus();
        if (!bulk.Ok()) notes_.Changed("hyperelastic: incompressible is written as K = 2e4 mu0");
        text += "K=" + RealDeckNumber(units_.FromStored(stored, "stress").value_or(0.0)) + ", ";
        if (const auto density = TableOf("density"))
            text += "RHO=" + RealDeckNumber(Constant(*density, "density")) + ", ";
        factors_.push_back("ELAS_HYPER=_F(" + text + ")");
    }

    const DeckMaterial& material_;
    const DeckUnits& units_;
    DeckNotes& notes_;
    double reference_ = 0.0;
    int functionCount_ = 0;
    bool densityWritten_ = false;
    std::string functions_;
    std::vector<std::string> factors_;
};

std::vector<DeckFile> Write(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes) {
    const std::string text = AsterMaterial(material, units, notes).Text();
    if (text.empty()) return {};
    return {{"", text}};
}

std::vector<CarryRule> Rules() {
    return WithTheRestLost(
        {{"elastic", Carry::CARRIED, "ELAS, ELAS_FO", ""},
         {"plastic isotropic", Carry::CONVERTED, "TRACTION", "stress over total strain"},
         {"plastic kinematic", Carry::CONVERTED, "ECRO_LINE",
          "one straight line for all temperatures; else lost"},
         {"plastic johnson-cook", Carry::CONVERTED, "TRACTION", "curves over temperature stand for the law"},
         {"density", Carry::CARRIED, "RHO", "one number"},
         {"thermal_expansion", Carry::CARRIED, "ALPHA, TEMP_DEF_ALPHA", "mean coefficients alone"},
         {"conductivity", Carry::CARRIED, "LAMBDA of THER, THER_NL", ""},
         {"specific_heat", Carry::CONVERTED, "RHO_CP", "multiplied by the density"},
         {"hyperelastic NEO_HOOKE", Carry::CARRIED, "ELAS_HYPER", "D = 0 is written as K = 2e4 mu0"},
         {"hyperelastic MOONEY_RIVLIN", Carry::CARRIED, "ELAS_HYPER", "D = 0 is written as K = 2e4 mu0"},
         {"hyperelastic REDUCED_POLYNOMIAL", Carry::CARRIED, "ELAS_HYPER", "to order 2; no D2"},
         {"hyperelastic POLYNOMIAL", Carry::CARRIED, "ELAS_HYPER", "order 1"},
         {kPlyConstants, Carry::CARRIED, "ELAS_ORTH", "of the constants across the ply those that are given"},
         {"layup", Carry::CONVERTED, "ELAS_ORTH, DEFI_COMPOSITE",
          "every ply orthotropic; of the constants across it those that are given"}},
        "DEFI_MATERIAU has no keyword for it that this program writes");
}

}  // namespace

DeckForm CodeAsterForm() {
    return {.name = "code_aster",
            .title = "code_aster",
            .comment = "# ",
            .names = {7, "", true, "MAT"},
            .reserved = {"AND",    "AS",      "ASSERT", "ASYNC",   "AWAIT", "BREAK",  "CALCUL", "CLASS",
                         "COPIER", "DEBUT",   "DEF",    "DEL",     "ELIF",  "ELSE",   "EXCEPT", "FALSE",
                         "FIN",    "FINALLY", "FOR",    "FORMULE", "FROM",  "GLOBAL", "IF",     "IMPORT",
                         "IN",     "INCLUDE", "IS",     "LAMBDA",  "NONE",  "NOT",    "OR",     "PASS",
                         "RAISE",  "RETURN",  "TRUE",   "TRY",     "WHILE", "WITH",   "YIELD"},
            .outside = "the nearest row's value",
            .rules = Rules(),
            .write = &Write,
            .writeLayup = &CodeAsterLayup};
}

}  // namespace zelmat
