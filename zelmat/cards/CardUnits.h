#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/files/JsonNode.h"
#include "zelmat/materials/TableKind.h"
#include "zelmat/quantities/Quantity.h"

namespace zelmat {

/// What a column is whose unit neither its header nor the card names. In CSV nothing else would say it.
enum class BareColumns { SI, REFUSED };

/// The units of a card's numbers where the numbers themselves do not say one: its key `units`, and SI for
/// what that does not name. "stress" speaks for moduli and pressures, too, unless these are named.
class CardUnits {
public:
    explicit CardUnits(BareColumns bare = BareColumns::SI) : bare_(bare) {}

    /// Reports quantities that there are not and units that do not measure them.
    explicit CardUnits(const JsonNode& units, BareColumns bare = BareColumns::SI);

    const Unit& For(const Quantity& quantity) const;

    /// Whether a column of it has to name its unit itself.
    bool HasToBeNamed(const Quantity& quantity) const;

    /// What a card may name: every quantity, and "thermal_expansion".
    static std::vector<std::string> QuantityNames();

private:
    const Unit* Find(const Quantity& quantity) const;
    const Unit* Named(const Quantity& quantity) const;

    BareColumns bare_ = BareColumns::SI;
    std::vector<std::pair<const Quantity*, Unit>> units_;
};

}  // namespace zelmat
