#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "zelmat/mechanics/Outcome.h"

namespace zelmat::mechanics {

/// The constants of an isotropic elastic material. Two of them fix the others.
enum class ElasticConstant : int {
    YOUNGS_MODULUS,
    POISSONS_RATIO,
    SHEAR_MODULUS,
    BULK_MODULUS,
    LAME_LAMBDA,     ///< Lame's first constant; his second one is the shear modulus
    P_WAVE_MODULUS,  ///< lambda + 2 G, the stiffness without lateral strain
};

/// "E", "nu", "G", "K", "lambda", "M"
std::string_view Keyword(ElasticConstant constant);
std::optional<ElasticConstant> ElasticConstantOf(std::string_view keyword);

/// All of them; moduli in one unit of stress.
struct IsotropicElasticity {
    double youngsModulus;  ///< E
    double poissonsRatio;  ///< nu
    double shearModulus;   ///< G = E / (2 (1 + nu))
    double bulkModulus;    ///< K = E / (3 (1 - 2 nu))
    double lameLambda;     ///< K - 2 G / 3
    double pWaveModulus;   ///< K + 4 G / 3
};

struct ElasticValue {
    ElasticConstant constant;
    double value;
};

/// From any two different constants. Refused for the same constant twice, for numbers that are not finite,
/// and for a material that would not be stable: E > 0 and -1 < nu < 0.5 have to come out. E and M leave two
/// Poisson's ratios: the one from 0 on is taken if E <= M, the only one that common materials have.
Outcome<IsotropicElasticity> IsotropicFrom(const ElasticValue& first, const ElasticValue& second);

/// The speeds of sound; m/s for moduli in Pa and a density in kg/m3.
struct WaveSpeeds {
    double pressure;  ///< sqrt(M/rho), in the bulk
    double shear;     ///< sqrt(G/rho)
    double bar;       ///< sqrt(E/rho), along a thin rod
};

/// Refused for a density that is not above 0.
Outcome<WaveSpeeds> WaveSpeedsOf(const IsotropicElasticity& elasticity, double density);

}  // namespace zelmat::mechanics
