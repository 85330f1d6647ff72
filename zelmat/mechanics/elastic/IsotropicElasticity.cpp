#include "zelmat/mechanics/elastic/IsotropicElasticity.h"

#include <array>
#include <cmath>
#include <utility>

namespace zelmat::mechanics {

namespace {

using enum ElasticConstant;

constexpr std::array<std::pair<ElasticConstant, std::string_view>, 6> kKeywords = {{{YOUNGS_MODULUS, "E"},
                                                                                    {POISSONS_RATIO, "nu"},
                                                                                    {SHEAR_MODULUS, "G"},
                                                                                    {BULK_MODULUS, "K"},
                                                                                    {LAME_LAMBDA, "lambda"},
                                                                                    {P_WAVE_MODULUS, "M"}}};

double& Member(IsotropicElasticity& elasticity, ElasticConstant constant) {
    switch (constant) {
        case YOUNGS_MODULUS:
            return elasticity.youngsModulus;
        case POISSONS_RATIO:
            return elasticity.poissonsRatio;
        case SHEAR_MODULUS:
            return elasticity.shearModulus;
        case BULK_MODULUS:
            return elasticity.bulkModulus;
        case LAME_LAMBDA:
            return elasticity.lameLambda;
        case P_WAVE_MODULUS:
            break;
    }
    return elasticity.pWaveModulus;
}

/// Bulk and shear modulus, to which every pair leads.
struct Moduli {
    double bulk, shear;
};

/// With Poisson's ratio, every modulus is E times a factor of nu.
Moduli WithPoissonsRatio(double nu, ElasticConstant constant, double value) {
    double youngs = value;
    if (constant == SHEAR_MODULUS) youngs = 2.0 * value * (1.0 + nu);
    if (constant == BULK_MODULUS) youngs = 3.0 * value * (1.0 - 2.0 * nu);
    if (constant == LAME_LAMBDA) youngs = value * (1.0 + nu) * (1.0 - 2.0 * nu) / nu;
    if (constant == P_WAVE_MODULUS) youngs = value * (1.0 + nu) * (1.0 - 2.0 * nu) / (1.0 - nu);
    return {.bulk = youngs / (3.0 * (1.0 - 2.0 * nu)), .shear = youngs / (2.0 * (1.0 + nu))};
}

Moduli WithYoungsModulus(double youngs, ElasticConstant constant, double value) {
    if (constant == SHEAR_MODULUS) return {youngs * value / (3.0 * (3.0 * value - youngs)), value};
    if (constant == BULK_MODULUS) return {value, 3.0 * value * youngs / (9.0 * value - youngs)};
    if (constant == LAME_LAMBDA) {
        const double root = std::sqrt(youngs * youngs + 9.0 * value * value + 2.0 * youngs * value);
        const double shear = (youngs - 3.0 * value + root) / 4.0;
        return {value + 2.0 * shear / 3.0, shear};
    }
    const double root = std::sqrt(youngs * youngs + 9.0 * value * value - 10.0 * youngs * value);
    const double shear = (3.0 * value + youngs - root) / 8.0;
    return {value - 4.0 * shear / 3.0, shear};
}

/// G, K, lambda and M are sums of each other: bulk = value - part * shear.
double ShearPart(ElasticConstant constant) {
    if (constant == LAME_LAMBDA) return -2.0 / 3.0;
    return constant == P_WAVE_MODULUS ? 4.0 / 3.0 : 0.0;
}

Moduli OfSums(const ElasticValue& first, const ElasticValue& second) {
    if (first.constant == SHEAR_MODULUS)
        return {second.value - ShearPart(second.constant) * first.value, first.value};
    const double shear =
        (second.value - first.value) / (ShearPart(second.constant) - ShearPart(first.constant));
    return {first.value - ShearPart(first.constant) * shear, shear};
}

/// The first of the two in the order of the enumeration is E or nu, if either is.
Moduli ModuliFrom(const ElasticValue& first, const ElasticValue& second) {
    if (second.constant == POISSONS_RATIO)
        return WithPoissonsRatio(second.value, first.constant, first.value);
    if (first.constant == POISSONS_RATIO)
        return WithPoissonsRatio(first.value, second.constant, second.value);
    if (first.constant == YOUNGS_MODULUS)
        return WithYoungsModulus(first.value, second.constant, second.value);
    return OfSums(first, second);
}

}  // namespace

std::string_view Keyword(ElasticConstant constant) {
    for (const auto& [known, keyword] : kKeywords) {
        if (known == constant) return keyword;
    }
    return {};
}

std::optional<ElasticConstant> ElasticConstantOf(std::string_view keyword) {
    for (const auto& [constant, known] : kKeywords) {
        if (known == keyword) return constant;
    }
    return std::nullopt;
}

Outcome<IsotropicElasticity> IsotropicFrom(const ElasticValue& first, const ElasticValue& second) {
    if (first.constant == second.constant) return Refusal{"two different constants are needed"};
    if (!std::isfinite(first.value) || !std::isfinite(second.value)) {
        return Refusal{"a constant is not a finite number"};
    }
    const bool ordered = first.constant < second.constant;
    const auto [bulk, shear] = ordered ? ModuliFrom(first, second) : ModuliFrom(second, first);
    IsotropicElasticity elasticity{.youngsModulus = 9.0 * bulk * (shear / (3.0 * bulk + shear)),
                                   .poissonsRatio = (3.0 * bulk - 2.0 * shear) / (6.0 * bulk + 2.0 * shear),
                                   .shearModulus = shear,
                                   .bulkModulus = bulk,
                                   .lameLambda = bulk - 2.0 * shear / 3.0,
                                   .pWaveModulus = bulk + 4.0 * shear / 3.0};
    if (!(bulk > 0.0 && shear > 0.0) || !std::isfinite(bulk) || !std::isfinite(shear)) {
        return Refusal{"no stable material has these constants: E > 0 and -1 < nu < 0.5 have to hold"};
    }
    if (!(elasticity.youngsModulus > 0.0) || !std::isfinite(elasticity.pWaveModulus)) {
        return Refusal{"a constant that follows is beyond what a number can hold"};
    }
    // What was given comes back to the last bit.
    for (const ElasticValue& given : {first, second}) Member(elasticity, given.constant) = given.value;
    return elasticity;
}

Outcome<WaveSpeeds> WaveSpeedsOf(const IsotropicElasticity& elasticity, double density) {
    if (!std::isfinite(density) || density <= 0.0)
        return Refusal{"a density has to be a finite number above 0"};
    const WaveSpeeds speeds{.pressure = std::sqrt(elasticity.pWaveModulus / density),
                            .shear = std::sqrt(elasticity.shearModulus / density),
                            .bar = std::sqrt(elasticity.youngsModulus / density)};
    if (!std::isfinite(speeds.pressure)) return Refusal{"a wave speed is beyond what a number can hold"};
    return speeds;
}

}  // namespace zelmat::mechanics
