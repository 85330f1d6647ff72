#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

namespace zelmat {

/// The most numbers on a data line.
constexpr std::size_t kCalculixNumbers = 8;

/// D times the shear modulus at rest of what stands for an incompressible material: K0 = 2e4 mu0.
constexpr double kCalculixIncompressible = 1e-4;

/// CalculiX (2.20) takes a temperature of *INITIAL CONDITIONS in millionths as a whole number of 32 bits: a
/// higher one becomes -2147.48. *TEMPERATURE takes any.
constexpr double kCalculixHottestStart = 2147.48;

/// A potential as the deck calls it. Its coefficients stand there in the stored order, then D1, D2, ..., then
/// the temperature.
struct CalculixPotential {
    mechanics::HyperelasticModel model;
    std::string_view keyword;  ///< "MOONEY-RIVLIN"
};

/// Null for VAN_DER_WAALS.
const CalculixPotential* FindCalculixPotential(mechanics::HyperelasticModel model);

/// By its keyword without blanks, in capital letters: "NEOHOOKE". Null for another word.
const CalculixPotential* FindCalculixPotential(std::string_view keyword);

/// A keyword line, then the rows; a row of more than 8 numbers goes on on the next line.
std::string CalculixCard(const std::string& keyword, const DeckTable& table);

/// The constants of a user material for every temperature, eight a line. After them CalculiX reads a
/// temperature, for which it wants one more line where the last one is full.
std::string CalculixConstants(const std::vector<double>& constants);

}  // namespace zelmat
