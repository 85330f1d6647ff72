#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/TableKind.h"
#include "zelmat/quantities/Quantity.h"

namespace zelmat {

/// The units of a card's numbers where the numbers themselves do not say one: its key `units`, and SI for
/// what that does not name. "stress" speaks for moduli and pressures, too, unless these are named.
class CardUnits {
public:
    CardUnits() = default;  ///< SI

    /// Reports quantities that there are not and units that do not measure them.
    explicit CardUnits(const JsonNode& units);

    const Unit& For(const Quantity& quantity) const;

    /// What a card may name: every quantity, and "thermal_expansion".
    static std::vector<std::string> QuantityNames();

private:
    const Unit* Find(const Quantity& quantity) const;

    std::vector<std::pair<const Quantity*, Unit>> units_;
};

}  // namespace zelmat
