#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelmat::mechanics {

/// Hardening laws of metals at one temperature: true stress over plastic strain e.
enum class HardeningLaw : int {
    LUDWIK,        ///< sigma_0 + K e^n
    SWIFT,         ///< K (e_0 + e)^n
    VOCE,          ///< sigma_s - (sigma_s - sigma_0) exp(-e/e_c)
    JOHNSON_COOK,  ///< A + B e^n, the part of Johnson and Cook's law at the reference rate and the transition
                   ///< temperature
};

/// "ludwik", "swift", "voce", "johnson-cook"
std::string_view Keyword(HardeningLaw law);
std::optional<HardeningLaw> HardeningLawOf(std::string_view keyword);

/// In the order of the formulas: sigma_0, K, n | K, e_0, n | sigma_0, sigma_s, e_c | A, B, n.
std::vector<std::string> CoefficientNames(HardeningLaw law);

/// Whether a coefficient of this name is a stress; the others have no unit.
bool IsStressOfLaw(std::string_view name);

/// "sigma_0 + K e^n", e the plastic strain.
std::string FormulaOf(HardeningLaw law);

/// A stress with its derivatives by the coefficients.
struct HardeningStress {
    double stress;
    std::vector<double> byCoefficient;
};

/// For a plastic strain from 0 on and as many coefficients as the law has; Swift's e_0 and Voce's e_c above
/// 0. Stresses in the unit of the coefficients.
HardeningStress StressOf(HardeningLaw law, const std::vector<double>& coefficients, double plasticStrain);

}  // namespace zelmat::mechanics
