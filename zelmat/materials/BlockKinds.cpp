#include "zelmat/materials/BlockKind.h"

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

using Form = std::optional<TableForm>;

template <class Names>
BlockKind SingleTable(const char* name, const char* title, Form (*form)(const Values&)) {
    return {.name = name,
            .title = title,
            .settings = BehaviorAccess<Names>::Settings(),
            .tables = {{.form = form}},
            .write = &BehaviorAccess<Names>::Write,
            .read = &BehaviorAccess<Names>::Read};
}

BlockKind Elastic() {
    return SingleTable<ElasticNames>("elastic", "Elastic", [](const Values&) -> Form {
        return TableForm{.columns = {StoredColumn("youngs_modulus", "ZELElasticLT", "YoungData"),
                                     StoredColumn("poissons_ratio", "ZELElasticLT", "PoissonData")}};
    });
}

Form PlasticForm(const Values& values) {
    const auto hardening = values.Get<std::string>("hardening");
    if (!hardening) return std::nullopt;
    if (*hardening == "johnson-cook") {
        return TableForm{
            .columns = {StoredColumn("A", "ZELPlasticJohnsonCookLT", "CoeffA"),
                        StoredColumn("B", "ZELPlasticJohnsonCookLT", "CoeffB"),
                        StoredColumn("n", "ZELPlasticJohnsonCookLT", "CoeffN"),
                        StoredColumn("m", "ZELPlasticJohnsonCookLT", "CoeffM"),
                        StoredColumn("melting_temperature", "ZELPlasticJohnsonCookLT", "MeltingTemperature"),
                        StoredColumn("transition_temperature", "ZELPlasticJohnsonCookLT",
                                     "TransitionTemperature")},
            .temperature = TemperatureRule::NEVER,
            .with = *hardening + " hardening",
            .singleRow = true};
    }
    return TableForm{.columns = {StoredColumn("yield_stress", "ZELPlasticLT", "StressData"),
                                 StoredColumn("plastic_strain", "ZELPlasticLT", "StrainData")},
                     .temperature = TemperatureRule::ALWAYS,
                     .with = *hardening + " hardening"};
}

BlockKind Plastic() {
    return {
        .name = "plastic",
        .title = "Plastic",
        .settings =
            {StoredSetting("hardening", "ZELPlasticLT", "PlasticHardeningType",
                           {.required = true, .choices = PlasticAccess::HardeningWords()}),
             {.name = "stress",
              .title = "stress given as",
              .stored = false,
              .choices = {"true", "engineering"}},
             {.name = "strain", .title = "strain given as", .stored = false, .choices = {"plastic", "total"}},
             // Of Johnson and Cook's law; the store has no place for its factor of the strain rate.
             {.name = "C",
              .title = "strain-rate coefficient C",
              .kind = SettingKind::UNREAD,
              .stored = false},
             {.name = "strain_rate_coefficient",
              .title = "strain-rate coefficient C",
              .kind = SettingKind::UNREAD,
              .stored = false},
             {.name = "reference_strain_rate",
              .title = "reference strain rate",
              .kind = SettingKind::UNREAD,
              .stored = false}},
        .tables = {{.form = PlasticForm,
                    .rules = {{.code = "first-plastic-strain",
                               .column = "plastic_strain",
                               .everyRow = false,
                               .broken = [](double strain) { return strain != 0.0; },
                               .bound = "has to be 0"}}}},
        .write = &PlasticAccess::Write,
        .read = &PlasticAccess::Read};
}

BlockKind Density() {
    return SingleTable<DensityNames>("density", "Density", [](const Values&) -> Form {
        return TableForm{.columns = {StoredColumn("density", "ZELDensityLT", "DensityData")}};
    });
}

BlockKind ThermalExpansion() {
    BlockKind block = SingleTable<ThermalExpansionNames>(
        "thermal_expansion", "Thermal expansion", [](const Values&) -> Form {
            return TableForm{.columns = {StoredColumn("thermal_expansion", "ZELThermalExpansionLT",
                                                      "ThermalExpansionData")}};
        });
    block.settings.push_back({.name = "kind", .title = "kind", .stored = false});
    return block;
}

BlockKind Conductivity() {
    return SingleTable<ConductivityNames>("conductivity", "Conductivity", [](const Values&) -> Form {
        return TableForm{.columns = {StoredColumn("conductivity", "ZELConductivityLT", "ConductivityData")}};
    });
}

BlockKind SpecificHeat() {
    return SingleTable<SpecificHeatNames>("specific_heat", "Specific heat", [](const Values&) -> Form {
        return TableForm{.columns = {StoredColumn("specific_heat", "ZELSpecificHeatLT", "SpecificHeatData")}};
    });
}

BlockKind UserMaterial() {
    return {.name = "user_material",
            .title = "User material",
            .settings = {StoredSetting("type", "MRVUserMaterialLT", "UserMaterialType",
                                       {.required = true, .choices = {"MECHANICAL", "THERMAL"}}),
                         StoredSetting("unsymmetric", "MRVUserMaterialLT", "UnsymmStiffnessMatrix"),
                         StoredSetting("state_variables", "MRVUserMaterialLT", "UserMaterialDepVar"),
                         {.name = "meaning", .title = "meaning of the constants", .stored = false},
                         {.name = "source", .title = "source", .stored = false}},
            .tables = {{.name = "constants",
                        .title = "constants, in the routine's own order and units",
                        .form = [](const Values&) -> Form {
                            return TableForm{.columns = {{"constant", "constant", ""}},
                                             .temperature = TemperatureRule::NEVER};
                        },
                        .flagged = false,
                        .list = true}},
            .write = &UserMaterialAccess::Write,
            .read = &UserMaterialAccess::Read};
}

BlockKind Hyperelastic() {
    return {.name = "hyperelastic",
            .title = "Hyperelastic",
            .alternatives = true,
            .settings = {StoredSetting("model", "MRVHyperelasticityLT", "HyperelasticMatModelType",
                                       {.required = true, .choices = HyperelasticModels()}),
                         StoredSetting("order", "ZELHyperelasticMaterialModelLT",
                                       "HyperelasticMatModelPotentialOrder", {.least = 1, .most = 6}),
                         {.name = "variant", .title = "variant", .stored = false},
                         {.name = "potential", .title = "potential", .stored = false},
                         {.name = "ogden_convention",
                          .title = "convention of mu",
                          .stored = false,
                          .choices = {"2mu/alpha^2", "mu/alpha"}},
                         {.name = "status", .title = "status", .stored = false},
                         {.name = "rms_relative_deviation",
                          .title = "relative deviation from the tests, RMS",
                          .kind = SettingKind::NUMBER,
                          .stored = false}},
            .tables = {{.form = [](const Values& values) -> Form {
                const auto model = values.Get<std::string>("model");
                const auto order = values.Get<int>("order");
                return model && order ? HyperelasticForm(*model, *order) : std::nullopt;
            }}},
            .write = &HyperelasticAccess::Write,
            .read = &HyperelasticAccess::Read};
}

TableForm PressureClosure(std::vector<ColumnKind> further) {
    std::vector<ColumnKind> columns = {
        StoredColumn("pressure", "ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingPressureData"),
        StoredColumn("closure", "ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingClosureData")};
    columns.insert(columns.end(), further.begin(), further.end());
    return {.columns = std::move(columns), .temperature = TemperatureRule::ALWAYS};
}

/// As the behavior looks at the origin of a loading curve.
bool IsOffOrigin(double value) {
    return ZELGenComparator::CompareDouble(value, 0.0) == 1;
}

std::vector<TableKind> GasketTables() {
    const auto origin = [](const char* code, const char* column) {
        return TableRule{
            .code = code, .column = column, .everyRow = false, .broken = IsOffOrigin, .bound = "has to be 0"};
    };
    return {{.name = "loading",
             .title = "loading",
             .form = [](const Values&) -> Form { return PressureClosure({}); },
             .rules = {origin("first-pressure", "pressure"), origin("first-closure", "closure")},
             .leastRows = 3},
            {.name = "unloading_elastic_plastic",
             .title = "unloading, elastic-plastic",
             .form = [](const Values&) -> Form {
                 return PressureClosure(
                     {StoredColumn("plastic_closure", "ZELGasketThicknessBehaviorUnLoadingEPLT",
                                   "ZELGasketUnLoadingEPPlasticClosureData")});
             },
             .required = false},
            {.name = "unloading_damage",
             .title = "unloading, damage",
             .form = [](const Values&) -> Form {
                 return PressureClosure(
                     {StoredColumn("max_closure", "ZELGasketThicknessBehaviorUnLoadingDamageLT",
                                   "ZELGasketUnLoadingDamageMaxClosureData")});
             },
             .required = false}};
}

BlockKind Gasket() {
    const auto stored = [](const char* name, const char* attribute) {
        return StoredSetting(name, "ZELGasketThicknessBehaviorLT", attribute);
    };
    Setting yieldOnset = stored("yield_onset.method", "ZELGasketYieldOnsetMethodType");
    yieldOnset.kind = SettingKind::TEXT;  // words for the numbers of the store
    yieldOnset.choices = GasketAccess::YieldOnsetWords();
    return {
        .name = "gasket",
        .title = "Gasket",
        .settings =
            {stored("behavior_type", "ZELGasketThicknessBehaviorType"),
             yieldOnset,
             stored("yield_onset.relative_value", "ZELGasketYieldOnsetMethodRelativeValue"),
             stored("yield_onset.closure_value", "ZELGasketYieldOnsetMethodClosureValue"),
             stored("tensile_stiffness_factor", "ZELGasketTensileStiffnessFactor"),
             stored("unloading", "ZELGasketThicknessUnLoadingFlag"),
             {.name = "initial_thickness",
              .title = "initial thickness",
              .unit = "m",
              .kind = SettingKind::NUMBER,
              .stored = false},
             {.name = "illustrative", .title = "illustrative", .kind = SettingKind::FLAG, .stored = false},
             {.name = "anchors", .title = "anchors", .kind = SettingKind::UNREAD, .stored = false}},
        .tables = GasketTables(),
        .write = &GasketAccess::Write,
        .read = &GasketAccess::Read};
}

BlockKind GasketMembrane() {
    return {.name = "gasket_membrane",
            .title = "Gasket membrane, elastic",
            .tables = {{.form = [](const Values&) -> Form {
                            return TableForm{
                                .columns = {StoredColumn("youngs_modulus", "ZELGasketMembraneElasticLT",
                                                         "ZELGasketMembraneElasticYoungsModulusData"),
                                            StoredColumn("poissons_ratio", "ZELGasketMembraneElasticLT",
                                                         "ZELGasketMembraneElasticPoissonsRatioData")},
                                .temperature = TemperatureRule::ALWAYS};
                        },
                        .rules = {{.code = "poissons-ratio",
                                   .column = "poissons_ratio",
                                   .broken = [](double ratio) { return ratio <= -1.0 || ratio >= 0.5; },
                                   .bound = "has to be above -1 and below 0.5"}}}},
            .write = &BehaviorAccess<GasketMembraneNames>::Write,
            .read = &GasketElasticAccess<GasketMembraneNames>::Read};
}

BlockKind GasketTransverseShear() {
    return {.name = "gasket_transverse_shear",
            .title = "Gasket transverse shear, elastic",
            .tables = {{.form = [](const Values&) -> Form {
                            return TableForm{.columns = {StoredColumn(
                                                 "shear_stiffness", "ZELGasketTransverseShearElasticLT",
                                                 "ZELGasketTransverseShearElasticShearStiffnessData")},
                                             .temperature = TemperatureRule::ALWAYS};
                        },
                        .rules = {{.code = "shear-stiffness",
                                   .column = "shear_stiffness",
                                   .broken = [](double stiffness) { return stiffness <= 0.0; },
                                   .bound = "has to be above 0"}},
                        .whenBroken = BrokenRule::REFUSED}},
            .write = &BehaviorAccess<GasketTransverseShearNames>::Write,
            .read = &GasketElasticAccess<GasketTransverseShearNames>::Read};
}

BlockKind TestData() {
    const auto test = [](const char* name) {
        return TableKind{.name = name,
                         .title = name,
                         .form = [](const Values&) -> Form {
                             return TableForm{.columns = {{"stretch", "stretch", "-"},
                                                          {"nominal_stress", "nominal stress", "Pa"}},
                                              .temperature = TemperatureRule::NEVER};
                         },
                         .required = false,
                         .flagged = false};
    };
    return {.name = "test_data",
            .title = "Test data",
            .use = BlockUse::FOR_INFORMATION,
            .settings = {{.name = "note", .title = "note", .stored = false}},
            .tables = {test("uniaxial"), test("equibiaxial"), test("planar")}};
}

}  // namespace

const std::vector<BlockKind>& BlockKinds() {
    static const std::vector<BlockKind> blocks = {
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
        {.name = "strength", .title = "Strength", .use = BlockUse::FOR_INFORMATION},
        {.name = "other_properties", .title = "Other properties", .use = BlockUse::FOR_INFORMATION},
        {.name = "fcmat", .title = "From an FCMat card", .use = BlockUse::FOR_INFORMATION},
    };
    return blocks;
}

}  // namespace zelmat
