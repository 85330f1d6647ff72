#include "zelmat/mechanics/plastic/HardeningLaw.h"

#include <cmath>

namespace zelmat::mechanics {

namespace {

using enum HardeningLaw;

/// The derivative of e^n by n; e^n ln e goes to 0 with e.
double PowerSlope(double strain, double n) {
    return strain > 0.0 ? std::pow(strain, n) * std::log(strain) : 0.0;
}

HardeningStress Ludwik(double yield, double factor, double n, double strain) {
    const double power = std::pow(strain, n);
    return {.stress = yield + factor * power, .byCoefficient = {1.0, power, factor * PowerSlope(strain, n)}};
}

HardeningStress Swift(double factor, double offset, double n, double strain) {
    const double total = offset + strain, power = std::pow(total, n);
    return {.stress = factor * power,
            .byCoefficient = {power, factor * n * power / total, factor * PowerSlope(total, n)}};
}

HardeningStress Voce(double yield, double saturation, double characteristic, double strain) {
    const double decay = std::exp(-strain / characteristic);
    return {.stress = saturation - (saturation - yield) * decay,
            .byCoefficient = {decay, 1.0 - decay,
                              -(saturation - yield) * decay * strain / (characteristic * characteristic)}};
}

}  // namespace

std::string_view Keyword(HardeningLaw law) {
    switch (law) {
        case LUDWIK:
            return "ludwik";
        case SWIFT:
            return "swift";
        case VOCE:
            return "voce";
        case JOHNSON_COOK:
            return "johnson-cook";
    }
    return {};
}

std::optional<HardeningLaw> HardeningLawOf(std::string_view keyword) {
    for (const auto law : {LUDWIK, SWIFT, VOCE, JOHNSON_COOK}) {
        if (Keyword(law) == keyword) return law;
    }
    return std::nullopt;
}

std::vector<std::string> CoefficientNames(HardeningLaw law) {
    switch (law) {
        case LUDWIK:
            return {"sigma_0", "K", "n"};
        case SWIFT:
            return {"K", "e_0", "n"};
        case VOCE:
            return {"sigma_0", "sigma_s", "e_c"};
        case JOHNSON_COOK:
            return {"A", "B", "n"};
    }
    return {};
}

bool IsStressOfLaw(std::string_view name) {
    return name != "n" && !name.starts_with("e_");
}

std::string FormulaOf(HardeningLaw law) {
    switch (law) {
        case HardeningLaw::LUDWIK:
            return "sigma_0 + K e^n";
        case HardeningLaw::SWIFT:
            return "K (e_0 + e)^n";
        case HardeningLaw::VOCE:
            return "sigma_s - (sigma_s - sigma_0) exp(-e/e_c)";
        case HardeningLaw::JOHNSON_COOK:
            return "A + B e^n, at the reference rate and transition temperature";
    }
    return {};
}

HardeningStress StressOf(HardeningLaw law, const std::vector<double>& c, double plasticStrain) {
    switch (law) {
        case LUDWIK:
        case JOHNSON_COOK:
            return Ludwik(c[0], c[1], c[2], plasticStrain);
        case SWIFT:
            return Swift(c[0], c[1], c[2], plasticStrain);
        case VOCE:
            return Voce(c[0], c[1], c[2], plasticStrain);
    }
    return {};
}

}  // namespace zelmat::mechanics
