#include "zelmat/materials/QuantityOf.h"

namespace zelmat {

const Quantity* QuantityOf(std::string_view name, std::string_view unit) {
    for (const std::string_view ending : {"modulus", "pressure", "strain"}) {
        if (!name.ends_with(ending)) continue;
        const Quantity* quantity = FindQuantity(ending);
        if (quantity->stored.Spelling() == unit) return quantity;
    }
    return unit.empty() ? nullptr : FindQuantityStoredIn(unit);
}

}  // namespace zelmat
