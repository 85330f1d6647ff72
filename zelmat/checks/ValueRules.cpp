#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/TableLooks.h"

namespace zelmat {

namespace {

constexpr const char* kStable =
    "L. D. Landau, E. M. Lifshitz, Theory of Elasticity, section 5: the strain energy is never negative";
constexpr const char* kSecondLaw = "second law of thermodynamics";

}  // namespace

CheckTopic ValueRules() {
    const TableRule& ratio = RuleOfBehavior("gasket_membrane", "", "poissons-ratio");
    const TableRule& shear = RuleOfBehavior("gasket_transverse_shear", "", "shear-stiffness");
    return {.title = "Single values",
            .rules = {
                {.code = "youngs-modulus",
                 .says = "Young's modulus is positive.",
                 .bound = "has to be above 0",
                 .source = kStable,
                 .look = EachValue({{"elastic", "youngs_modulus"}, {"gasket_membrane", "youngs_modulus"}},
                                   IsNotPositive)},
                {.code = ratio.code,
                 .says = "Poisson's ratio lies between -1 and 0.5, both excluded.",
                 .bound = ratio.bound,
                 .source = kStable,
                 .look = EachValue({{"elastic", "poissons_ratio"}, {"gasket_membrane", "poissons_ratio"}},
                                   ratio.broken)},
                {.code = "density",
                 .says = "Density is positive.",
                 .bound = "has to be above 0",
                 .source = "definition of mass density",
                 .look = EachValue({{"density", "density"}}, IsNotPositive)},
                {.code = "conductivity",
                 .says = "Thermal conductivity is positive.",
                 .bound = "has to be above 0",
                 .source = kSecondLaw,
                 .look = EachValue({{"conductivity", "conductivity"}}, IsNotPositive)},
                {.code = "specific-heat",
                 .says = "Specific heat is positive.",
                 .bound = "has to be above 0",
                 .source = kSecondLaw,
                 .look = EachValue({{"specific_heat", "specific_heat"}}, IsNotPositive)},
                {.code = shear.code,
                 .says = "The transverse shear stiffness of a gasket is positive.",
                 .bound = shear.bound,
                 .source = kStable,
                 .look = EachValue({{"gasket_transverse_shear", shear.column.c_str()}}, shear.broken)},
            }};
}

}  // namespace zelmat
