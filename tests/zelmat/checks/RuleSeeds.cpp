#include "tests/zelmat/checks/RuleSeeds.h"

namespace {

std::string Card(const std::string& blocks) {
    return "{\"name\": \"M\", " + blocks + "}";
}

std::string Plain(const std::string& block, const std::string& columns, const std::string& rows) {
    return "\"" + block + "\": {\"temperature_dependent\": false, \"columns\": [" + columns +
           "], \"rows\": " + rows + "}";
}

std::string ByTemperature(const std::string& block, const std::string& columns, const std::string& rows) {
    return "\"" + block + "\": {\"temperature_dependent\": true, \"columns\": [" + columns +
           ", \"temperature\"], \"rows\": " + rows + "}";
}

std::string Elastic(const std::string& row) {
    return Plain("elastic", "\"youngs_modulus\", \"poissons_ratio\"", "[" + row + "]");
}

const std::string kSteel = Elastic("[210e9, 0.3]");

std::string OneColumn(const std::string& name, const std::string& value) {
    return Plain(name, "\"" + name + "\"", "[[" + value + "]]");
}

std::string Densities(const std::string& rows) {
    return Card(ByTemperature("density", "\"density\"", rows));
}

std::string Hardening(const std::string& rows, const std::string& flag = "true") {
    return Card(kSteel + R"(, "plastic": {"hardening": "isotropic", "temperature_dependent": )" + flag +
                R"(, "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": )" + rows + "}");
}

/// A tensile test, with the total strain of its first point; at 0.002 that is the yield point.
std::string Tensile(const std::string& strain) {
    return Card(kSteel +
                R"(, "plastic": {"hardening": "isotropic", "strain": "total", "temperature_dependent": false,
        "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[420e6, )" +
                strain + ", 293], [500e6, 0.1, 293]]}");
}

std::string Others(const std::string& values) {
    return Card(R"("other_properties": {)" + values + "}");
}

std::string JohnsonCook(const std::string& row) {
    return Card(kSteel + R"(, "plastic": {"hardening": "johnson-cook", "temperature_dependent": false,
        "columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"], "rows": [)" +
                row + "]}");
}

std::string Expansion(const std::string& row, const std::string& more = "") {
    return R"("thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"],
        "reference_temperature": 293.15, "rows": [[)" +
           row + "]]" + more + "}";
}

std::string Fit(const std::string& model, const std::string& order, const std::string& columns,
                const std::string& row) {
    return Card(R"("hyperelastic": [{"model": ")" + model + R"(", "order": )" + order +
                R"(, "temperature_dependent": false, "columns": [)" + columns + "], \"rows\": [" + row +
                "]}]");
}

std::string GasketTable(const std::string& name, const std::string& columns, const std::string& rows) {
    return "\"" + name + R"(": {"temperature_dependent": true, "columns": [)" + columns +
           ", \"temperature\"], \"rows\": " + rows + "}";
}

std::string Loading(const std::string& rows) {
    return GasketTable("loading", "\"pressure\", \"closure\"", rows);
}

std::string Unloading(const std::string& rows) {
    return GasketTable("unloading_elastic_plastic", "\"pressure\", \"closure\", \"plastic_closure\"", rows);
}

std::string Gasket(const std::string& content) {
    return Card("\"gasket\": {" + content + "}");
}

const std::string kLoading = Loading("[[0, 0, 293], [1e6, 1e-5, 293], [3e6, 2e-5, 293]]");
const std::string kUnloading = Unloading("[[0, 1e-5, 1e-5, 293], [3e6, 2e-5, 1e-5, 293]]");

void LoseAColumn(zelmat::Material& material) {
    material.fits.front().tables.front().columns.pop_back();
}

void LoseTheReference(zelmat::Material& material) {
    for (zelmat::Block& block : material.blocks) block.values = {};
}

std::vector<RuleSeed> OfValues() {
    return {
        {"youngs-modulus", "error", Card(Elastic("[-210e9, 0.3]")), Card(kSteel)},
        {"poissons-ratio", "error", Card(Elastic("[210e9, 0.5]")), Card(Elastic("[210e9, 0.49999]"))},
        {"density", "error", Card(OneColumn("density", "0")), Card(OneColumn("density", "7850"))},
        {"conductivity", "error", Card(OneColumn("conductivity", "-1")),
         Card(OneColumn("conductivity", "50"))},
        {"specific-heat", "error", Card(OneColumn("specific_heat", "-440")),
         Card(OneColumn("specific_heat", "440"))},
        {"shear-stiffness", "error",
         Card(ByTemperature("gasket_transverse_shear", "\"shear_stiffness\"", "[[0, 293]]")),
         Card(ByTemperature("gasket_transverse_shear", "\"shear_stiffness\"", "[[1, 293]]"))},
        {"temperature", "error", Densities("[[7850, 0]]"), Densities("[[7850, 0.1]]")},
        {"temperature-order", "error", Densities("[[7850, 293], [7800, 293]]"),
         Densities("[[7850, 293], [7800, 294]]")},
        {"scattered-curve", "error", Hardening("[[4e8, 0, 293], [3e8, 0, 400], [5e8, 0.1, 293]]"),
         Hardening("[[4e8, 0, 293], [5e8, 0.1, 293], [3e8, 0, 400]]")},
        {"several-rows", "warning", Card(Plain("density", "\"density\"", "[[7850], [7800]]")),
         Card(Plain("density", "\"density\"", "[[7850]]"))},
        {"unused-temperatures", "warning", Hardening("[[4e8, 0, 293], [3e8, 0, 400]]", "false"),
         Hardening("[[4e8, 0, 293], [3e8, 0, 400]]", "true")},
    };
}

std::vector<RuleSeed> OfHardening() {
    return {
        {"yield-stress", "error", Hardening("[[0, 0, 293]]"), Hardening("[[4e8, 0, 293]]")},
        {"first-plastic-strain", "error", Hardening("[[4e8, 0, 293], [3e8, 0.001, 400], [4e8, 0.1, 400]]"),
         Hardening("[[4e8, 0, 293], [3e8, 0, 400], [4e8, 0.1, 400]]")},
        {"plastic-strain-order", "error", Hardening("[[4e8, 0, 293], [5e8, 0.1, 293], [6e8, 0.1, 293]]"),
         Hardening("[[4e8, 0, 293], [5e8, 0.1, 293], [6e8, 0.2, 293]]")},
        {"unconvertible-curve", "error", Tensile("0.0022"), Tensile("0.002")},
        {"softening", "warning", Hardening("[[4e8, 0, 293], [3.9e8, 0.1, 293]]"),
         Hardening("[[4e8, 0, 293], [4e8, 0.1, 293], [3e8, 0, 400]]")},
        {"johnson-cook-A", "error", JohnsonCook("[0, 292e6, 0.31, 1.09, 1356, 298]"),
         JohnsonCook("[90e6, 292e6, 0.31, 1.09, 1356, 298]")},
        {"johnson-cook-B", "error", JohnsonCook("[90e6, -1, 0.31, 1.09, 1356, 298]"),
         JohnsonCook("[90e6, 0, 0.31, 1.09, 1356, 298]")},
        {"johnson-cook-n", "error", JohnsonCook("[90e6, 292e6, 0, 1.09, 1356, 298]"),
         JohnsonCook("[90e6, 292e6, 0.31, 1.09, 1356, 298]")},
        {"johnson-cook-n-high", "warning", JohnsonCook("[90e6, 292e6, 1.31, 1.09, 1356, 298]"),
         JohnsonCook("[90e6, 292e6, 1, 1.09, 1356, 298]")},
        {"johnson-cook-m", "error", JohnsonCook("[90e6, 292e6, 0.31, -1, 1356, 298]"),
         JohnsonCook("[90e6, 292e6, 0.31, 1.09, 1356, 298]")},
        {"johnson-cook-temperatures", "error", JohnsonCook("[90e6, 292e6, 0.31, 1.09, 298, 1356]"),
         JohnsonCook("[90e6, 292e6, 0.31, 1.09, 1356, 298]")},
    };
}

std::vector<RuleSeed> OfRubberAndGaskets() {
    const std::string mooney = "\"C10\", \"C01\"";
    const std::string arruda = "\"mu\", \"lambda_m\"";
    const std::string hooke = "\"C10\", \"D1\"";
    return {
        {"coefficient-count", "error", Fit("MOONEY_RIVLIN", "1", mooney, "[4e5, 1e5]"),
         Fit("MOONEY_RIVLIN", "1", mooney, "[4e5, 1e5]"), LoseAColumn},
        {"coefficients", "error", Fit("ARRUDA_BOYCE", "1", arruda, "[4e5, 0]"),
         Fit("ARRUDA_BOYCE", "1", arruda, "[4e5, 3]")},
        {"initial-shear-modulus", "error", Fit("MOONEY_RIVLIN", "1", mooney, "[4e5, -4e5]"),
         Fit("MOONEY_RIVLIN", "1", mooney, "[4e5, -1e5]")},
        {"compressibility", "error", Fit("NEO_HOOKE", "1", hooke, "[4e5, -1e-9]"),
         Fit("NEO_HOOKE", "1", hooke, "[4e5, 0]")},
        {"initial-bulk-modulus", "warning", Fit("NEO_HOOKE", "1", hooke, "[4e5, 1e-3]"),
         Fit("NEO_HOOKE", "1", hooke, "[4e5, 1e-9]")},
        {"first-pressure", "error", Gasket(Loading("[[1, 0, 293], [1e6, 1e-5, 293], [3e6, 2e-5, 293]]")),
         Gasket(kLoading)},
        {"first-closure", "error", Gasket(Loading("[[0, 1e-6, 293], [1e6, 1e-5, 293], [3e6, 2e-5, 293]]")),
         Gasket(kLoading)},
        {"too-few-rows", "error", Gasket(Loading("[[0, 0, 293], [1e6, 1e-5, 293]]")), Gasket(kLoading)},
        {"gasket-curve", "error", Gasket(Loading("[[0, 0, 293], [1e6, 1e-5, 293], [9e5, 2e-5, 293]]")),
         Gasket(Loading("[[0, 0, 293], [1e6, 1e-5, 293], [1e6, 2e-5, 293]]"))},
        {"unloading-above-loading", "warning",
         Gasket(kLoading + ", " + Unloading("[[0, 1e-5, 1e-5, 293], [3.1e6, 2e-5, 1e-5, 293]]")),
         Gasket(kLoading + ", " + kUnloading)},
        {"unloading-ends", "warning",
         Gasket(kLoading + ", " + Unloading("[[0, 1e-5, 5e-6, 293], [3e6, 2e-5, 5e-6, 293]]")),
         Gasket(kLoading + ", " + kUnloading)},
        {"unloading-without-table", "error", Gasket(kLoading + ", \"unloading\": true"),
         Gasket(kLoading + ", \"unloading\": true, " + kUnloading)},
        {"unused-unloading", "warning", Gasket(kLoading + ", \"unloading\": false, " + kUnloading),
         Gasket(kLoading + ", " + kUnloading)},
    };
}

std::vector<RuleSeed> OfCompleteness() {
    return {
        {"expansion-without-elasticity", "warning", Card(Expansion("12e-6")),
         Card(kSteel + ", " + Expansion("12e-6"))},
        {"plasticity-without-elasticity", "warning",
         Card(R"("plastic": {"hardening": "isotropic", "temperature_dependent": false,
              "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[4e8, 0, 293]]})"),
         Hardening("[[4e8, 0, 293]]")},
        {"expansion-reference", "warning", Card(kSteel + ", " + Expansion("12e-6")),
         Card(kSteel + ", " + Expansion("12e-6")), LoseTheReference},
        {"expansion-kind", "warning",
         Card(kSteel + ", " + Expansion("12e-6", R"(, "kind": "Instantaneous coefficient")")),
         Card(kSteel + ", " + Expansion("12e-6", R"(, "kind": "mean, from the reference")"))},
    };
}

std::vector<RuleSeed> OfPlausibility() {
    const std::string hooke = "\"C10\"";
    const auto metal = [](const std::string& blocks) { return Card("\"class\": \"metal\", " + blocks); };
    return {
        {"impossible-modulus", "error", Card(Elastic("[210, 0.3]")), Card(Elastic("[210000, 0.3]"))},
        {"implausible-modulus", "warning", Card(Elastic("[210000, 0.3]")), Card(Elastic("[210e9, 0.3]"))},
        {"implausible-poissons-ratio", "warning", Card(Elastic("[210e9, -0.1]")),
         Card(Elastic("[210e9, 0]"))},
        {"impossible-yield-stress", "error", Hardening("[[4e11, 0, 293]]"), Hardening("[[4e8, 0, 293]]")},
        {"implausible-yield-stress", "warning", Hardening("[[355, 0, 293]]"), Hardening("[[355e6, 0, 293]]")},
        {"implausible-plastic-strain", "warning", Hardening("[[4e8, 0, 293], [5e8, 20, 293]]"),
         Hardening("[[4e8, 0, 293], [5e8, 5, 293]]")},
        {"implausible-reference-temperature", "warning", JohnsonCook("[90e6, 292e6, 0.31, 1.09, 1356, 25]"),
         JohnsonCook("[90e6, 292e6, 0.31, 1.09, 1356, 298]")},
        {"impossible-density", "error", Card(OneColumn("density", "7.85e-9")),
         Card(OneColumn("density", "7850"))},
        {"implausible-density", "warning", Card(OneColumn("density", "7.85")),
         Card(OneColumn("density", "7850"))},
        {"impossible-expansion", "error", Card(Expansion("12")), Card(Expansion("12e-6"))},
        {"implausible-expansion", "warning", metal(Expansion("2e-4")), metal(Expansion("2e-5"))},
        {"impossible-conductivity", "error", Card(OneColumn("conductivity", "50000")),
         Card(OneColumn("conductivity", "50"))},
        {"implausible-conductivity", "warning", metal(OneColumn("conductivity", "0.5")),
         metal(OneColumn("conductivity", "50"))},
        {"impossible-specific-heat", "error", Card(OneColumn("specific_heat", "0.44")),
         Card(OneColumn("specific_heat", "440"))},
        {"implausible-specific-heat", "warning", metal(OneColumn("specific_heat", "4400")),
         metal(OneColumn("specific_heat", "440"))},
        {"impossible-initial-shear-modulus", "error", Fit("NEO_HOOKE", "1", hooke, "[0.2]"),
         Fit("NEO_HOOKE", "1", hooke, "[0.2e6]")},
        {"implausible-initial-shear-modulus", "warning", Fit("NEO_HOOKE", "1", hooke, "[200]"),
         Fit("NEO_HOOKE", "1", hooke, "[0.2e6]")},
        {"impossible-speed-of-sound", "error", Card(kSteel + ", " + OneColumn("density", "7.85")),
         Card(kSteel + ", " + OneColumn("density", "7850"))},
        {"implausible-speed-of-sound", "warning",
         metal(Elastic("[1e10, 0.3]") + ", " + OneColumn("density", "19000")),
         metal(kSteel + ", " + OneColumn("density", "7850"))},
        {"unknown-class", "warning", Card("\"class\": \"metall\", " + kSteel), metal(kSteel)},
    };
}

std::vector<RuleSeed> OfOrthotropic() {
    const std::string ply = R"("YoungsModulusX": "181 GPa", "YoungsModulusY": "10.3 GPa", )";
    const std::string even = R"("E1": 1e10, "E2": 1e10, "E3": 1e10, "nu12": 0.5, "nu13": 0.5, "nu23": )";
    return {
        {"orthotropic-moduli", "error", Others(ply + R"("ShearModulusXY": "-7.17 GPa")"),
         Others(ply + R"("ShearModulusXY": "7.17 GPa")")},
        {"orthotropic-ratios", "error", Others(ply + R"("PoissonRatioXY": "4.2")"),
         Others(ply + R"("PoissonRatioXY": "4.19")")},
        {"orthotropic-determinant", "error", Others(even + "0.51"), Others(even + "0.49")},
    };
}

std::vector<RuleSeed> OfAgreement() {
    const std::string copper = "\"class\": \"metal\", " + OneColumn("conductivity", "386");
    return {
        {"elastic-constants", "warning", Card(kSteel + ", \"shear_modulus\": \"88 GPa\""),
         Card(kSteel + ", \"shear_modulus\": \"79 GPa\"")},
        {"wiedemann-franz", "warning", Card(copper + ", \"electrical_resistivity\": \"1.7 µOhm m\""),
         Card(copper + ", \"electrical_resistivity\": \"17 nOhm m\"")},
        {"above-melting", "warning",
         Card("\"melting_temperature\": \"1083 degC\", " +
              ByTemperature("density", "\"density\"", "[[8900, 293], [8000, 1357]]")),
         Card("\"melting_temperature\": \"1083 degC\", " +
              ByTemperature("density", "\"density\"", "[[8900, 293], [8300, 1356]]"))},
        {"sudden-change", "warning", Densities("[[7850, 293], [7.8, 400]]"),
         Densities("[[7850, 293], [7800, 400]]")},
    };
}

}  // namespace

const std::vector<RuleSeed>& RuleSeeds() {
    static const std::vector<RuleSeed> seeds = [] {
        std::vector<RuleSeed> all;
        for (const auto& topic : {OfValues(), OfHardening(), OfRubberAndGaskets(), OfCompleteness(),
                                  OfPlausibility(), OfOrthotropic(), OfAgreement()}) {
            all.insert(all.end(), topic.begin(), topic.end());
        }
        return all;
    }();
    return seeds;
}
