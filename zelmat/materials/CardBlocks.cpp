#include "zelmat/materials/CardBlocks.h"

#include <algorithm>

#include "ZELShared/ZELGenComparator.h"
#include "zelmat/materials/BehaviorAccess.h"
#include "zelmat/materials/GasketAccess.h"
#include "zelmat/materials/GasketElasticAccess.h"
#include "zelmat/materials/HyperelasticAccess.h"
#include "zelmat/materials/HyperelasticForms.h"
#include "zelmat/materials/PlasticAccess.h"
#include "zelmat/materials/UserMaterialAccess.h"

namespace zelmat {

namespace {

using Form = std::optional<CardTableForm>;

template <class Names>
CardBlock SingleTable(const char* name, const char* title, Form (*form)(const CardValues&)) {
    return {.name = name,
            .title = title,
            .tables = {{.form = form}},
            .write = &BehaviorAccess<Names>::Write,
            .read = &BehaviorAccess<Names>::Read};
}

CardBlock Elastic() {
    return SingleTable<ElasticNames>("elastic", "Elastic", [](const CardValues&) -> Form {
        return CardTableForm{.columns = {{"youngs_modulus", "Young's modulus", "Pa"},
                                         {"poissons_ratio", "Poisson's ratio", "-"}}};
    });
}

Form PlasticForm(const CardValues& values) {
    const auto hardening = values.Get<std::string>("hardening");
    if (!hardening) return std::nullopt;
    if (*hardening == "johnson-cook") {
        return CardTableForm{.columns = {{"A", "A", "Pa"},
                                         {"B", "B", "Pa"},
                                         {"n", "n", "-"},
                                         {"m", "m", "-"},
                                         {"melting_temperature", "melting temperature", "K"},
                                         {"transition_temperature", "transition temperature", "K"}},
                             .temperature = TemperatureRule::NEVER,
                             .with = *hardening + " hardening",
                             .singleRow = true};
    }
    return CardTableForm{
        .columns = {{"yield_stress", "yield stress", "Pa"}, {"plastic_strain", "plastic strain", "-"}},
        .temperature = TemperatureRule::ALWAYS,
        .with = *hardening + " hardening"};
}

CardBlock Plastic() {
    return {.name = "plastic",
            .title = "Plastic",
            .settings = {{.name = "hardening",
                          .title = "hardening",
                          .required = true,
                          .choices = PlasticAccess::HardeningWords()}},
            .tables = {{.form = PlasticForm,
                        .rules = {{.code = "first-plastic-strain",
                                   .column = "plastic_strain",
                                   .everyRow = false,
                                   .broken = [](double strain) { return strain != 0.0; },
                                   .bound = "has to be 0"}}}},
            .write = &PlasticAccess::Write,
            .read = &PlasticAccess::Read};
}

CardBlock Density() {
    return SingleTable<DensityNames>("density", "Density", [](const CardValues&) -> Form {
        return CardTableForm{.columns = {{"density", "density", "kg/m3"}}};
    });
}

CardBlock ThermalExpansion() {
    CardBlock block = SingleTable<ThermalExpansionNames>(
        "thermal_expansion", "Thermal expansion", [](const CardValues&) -> Form {
            return CardTableForm{.columns = {{"thermal_expansion", "thermal expansion", "1/K"}}};
        });
    block.settings = {{.name = "reference_temperature",
                       .title = "reference temperature",
                       .unit = "K",
                       .kind = SettingKind::NUMBER,
                       .required = true},
                      {.name = "kind", .title = "kind", .stored = false}};
    return block;
}

CardBlock Conductivity() {
    return SingleTable<ConductivityNames>("conductivity", "Conductivity", [](const CardValues&) -> Form {
        return CardTableForm{.columns = {{"conductivity", "conductivity", "W/(m K)"}}};
    });
}

CardBlock SpecificHeat() {
    return SingleTable<SpecificHeatNames>("specific_heat", "Specific heat", [](const CardValues&) -> Form {
        return CardTableForm{.columns = {{"specific_heat", "specific heat", "J/(kg K)"}}};
    });
}

CardBlock UserMaterial() {
    return {.name = "user_material",
            .title = "User material",
            .settings =
                {{.name = "type", .title = "type", .required = true, .choices = {"MECHANICAL", "THERMAL"}},
                 {.name = "unsymmetric", .title = "unsymmetric stiffness matrix", .kind = SettingKind::FLAG},
                 {.name = "state_variables",
                  .title = "solution-dependent state variables",
                  .kind = SettingKind::COUNT},
                 {.name = "meaning", .title = "meaning of the constants", .stored = false},
                 {.name = "source", .title = "source", .stored = false}},
            .tables = {{.name = "constants",
                        .title = "constants, in the routine's own order and units",
                        .form = [](const CardValues&) -> Form {
                            return CardTableForm{.columns = {{"constant", "constant", ""}},
                                                 .temperature = TemperatureRule::NEVER};
                        },
                        .flagged = false,
                        .list = true}},
            .write = &UserMaterialAccess::Write,
            .read = &UserMaterialAccess::Read};
}

CardBlock Hyperelastic() {
    return {
        .name = "hyperelastic",
        .title = "Hyperelastic",
        .alternatives = true,
        .settings = {{.name = "model", .title = "model", .required = true, .choices = HyperelasticModels()},
                     {.name = "order",
                      .title = "order",
                      .kind = SettingKind::COUNT,
                      .required = true,
                      .least = 1,
                      .most = 6},
                     {.name = "variant", .title = "variant", .stored = false},
                     {.name = "potential", .title = "potential", .stored = false},
                     {.name = "status", .title = "status", .stored = false},
                     {.name = "rms_relative_deviation",
                      .title = "relative deviation from the tests, RMS",
                      .kind = SettingKind::NUMBER,
                      .stored = false}},
        .tables = {{.form = [](const CardValues& values) -> Form {
            const auto model = values.Get<std::string>("model");
            const auto order = values.Get<int>("order");
            return model && order ? HyperelasticForm(*model, *order) : std::nullopt;
        }}},
        .write = &HyperelasticAccess::Write,
        .read = &HyperelasticAccess::Read};
}

CardTableForm PressureClosure(std::vector<CardColumn> further) {
    std::vector<CardColumn> columns = {{"pressure", "pressure", "Pa"}, {"closure", "closure", "m"}};
    columns.insert(columns.end(), further.begin(), further.end());
    return {.columns = std::move(columns), .temperature = TemperatureRule::ALWAYS};
}

/// As the behavior looks at the origin of a loading curve.
bool IsOffOrigin(double value) {
    return ZELGenComparator::CompareDouble(value, 0.0) == 1;
}

std::vector<CardTableKind> GasketTables() {
    const auto origin = [](const char* code, const char* column) {
        return CardRule{
            .code = code, .column = column, .everyRow = false, .broken = IsOffOrigin, .bound = "has to be 0"};
    };
    return {{.name = "loading",
             .title = "loading",
             .form = [](const CardValues&) -> Form { return PressureClosure({}); },
             .rules = {origin("first-pressure", "pressure"), origin("first-closure", "closure")},
             .leastRows = 3},
            {.name = "unloading_elastic_plastic",
             .title = "unloading, elastic-plastic",
             .form = [](const CardValues&) -> Form {
                 return PressureClosure({{"plastic_closure", "plastic closure", "m"}});
             },
             .required = false},
            {.name = "unloading_damage",
             .title = "unloading, damage",
             .form = [](const CardValues&) -> Form {
                 return PressureClosure({{"max_closure", "maximum closure", "m"}});
             },
             .required = false}};
}

CardBlock Gasket() {
    const auto number = [](const char* name, const char* title, const char* unit, bool stored) {
        return CardSetting{
            .name = name, .title = title, .unit = unit, .kind = SettingKind::NUMBER, .stored = stored};
    };
    return {
        .name = "gasket",
        .title = "Gasket",
        .settings =
            {{.name = "behavior_type", .title = "kind of thickness behavior", .kind = SettingKind::COUNT},
             {.name = "yield_onset.method",
              .title = "yield onset by",
              .choices = GasketAccess::YieldOnsetWords()},
             number("yield_onset.relative_value", "yield onset, relative value", "-", true),
             number("yield_onset.closure_value", "yield onset, closure", "m", true),
             number("tensile_stiffness_factor", "tensile stiffness factor", "-", true),
             {.name = "unloading", .title = "unloading data", .kind = SettingKind::FLAG},
             number("initial_thickness", "initial thickness", "m", false),
             {.name = "illustrative", .title = "illustrative", .kind = SettingKind::FLAG, .stored = false},
             {.name = "anchors", .title = "anchors", .kind = SettingKind::UNREAD}},
        .tables = GasketTables(),
        .write = &GasketAccess::Write,
        .read = &GasketAccess::Read};
}

CardBlock GasketMembrane() {
    return {.name = "gasket_membrane",
            .title = "Gasket membrane, elastic",
            .tables = {{.form = [](const CardValues&) -> Form {
                            return CardTableForm{.columns = {{"youngs_modulus", "Young's modulus", "Pa"},
                                                             {"poissons_ratio", "Poisson's ratio", "-"}},
                                                 .temperature = TemperatureRule::ALWAYS};
                        },
                        .rules = {{.code = "poissons-ratio",
                                   .column = "poissons_ratio",
                                   .broken = [](double ratio) { return ratio <= -1.0 || ratio >= 0.5; },
                                   .bound = "has to be above -1 and below 0.5"}}}},
            .write = &GasketElasticAccess<GasketMembraneNames>::Write,
            .read = &GasketElasticAccess<GasketMembraneNames>::Read};
}

CardBlock GasketTransverseShear() {
    return {.name = "gasket_transverse_shear",
            .title = "Gasket transverse shear, elastic",
            .tables = {{.form = [](const CardValues&) -> Form {
                            return CardTableForm{.columns = {{"shear_stiffness", "shear stiffness", "Pa/m"}},
                                                 .temperature = TemperatureRule::ALWAYS};
                        },
                        .rules = {{.code = "shear-stiffness",
                                   .column = "shear_stiffness",
                                   .broken = [](double stiffness) { return stiffness <= 0.0; },
                                   .bound = "has to be above 0"}},
                        .whenBroken = BrokenRule::REFUSED}},
            .write = &GasketElasticAccess<GasketTransverseShearNames>::Write,
            .read = &GasketElasticAccess<GasketTransverseShearNames>::Read};
}

CardBlock TestData() {
    const auto test = [](const char* name) {
        return CardTableKind{.name = name,
                             .title = name,
                             .form = [](const CardValues&) -> Form {
                                 return CardTableForm{.columns = {{"stretch", "stretch", "-"},
                                                                  {"nominal_stress", "nominal stress", "Pa"}},
                                                      .temperature = TemperatureRule::NEVER};
                             },
                             .required = false,
                             .flagged = false};
    };
    return {.name = "test_data",
            .title = "Test data",
            .use = CardUse::FOR_INFORMATION,
            .settings = {{.name = "note", .title = "note", .stored = false}},
            .tables = {test("uniaxial"), test("equibiaxial"), test("planar")}};
}

}  // namespace

const CardTableKind* CardBlock::FindTable(const std::string& table) const {
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const CardTableKind& kind) { return kind.name == table; });
    return found == tables.end() ? nullptr : &*found;
}

std::string CardBlock::TableName(const CardTableKind& table) const {
    return table.name.empty() ? name : name + "." + table.name;
}

const std::vector<CardBlock>& CardBlocks() {
    static const std::vector<CardBlock> blocks = {
        Elastic(),
        Plastic(),
        Density(),
        ThermalExpansion(),
        Conductivity(),
        SpecificHeat(),
        UserMaterial(),
        Hyperelastic(),
        Gasket(),
        GasketMembrane(),
        GasketTransverseShear(),
        TestData(),
        {.name = "strength", .title = "Strength", .use = CardUse::FOR_INFORMATION},
    };
    return blocks;
}

const CardBlock* FindCardBlock(const std::string& name) {
    const auto& blocks = CardBlocks();
    const auto found = std::find_if(blocks.begin(), blocks.end(),
                                    [&](const CardBlock& block) { return block.name == name; });
    return found == blocks.end() ? nullptr : &*found;
}

}  // namespace zelmat
