#include "zelmat/exchange/HigherCompressibility.h"

#include <algorithm>

namespace zelmat {

void TellHigherD(const HyperelasticProperty& property, DeckNotes& notes) {
    const std::size_t before = CoefficientNames(property.Model(), property.Order()).size() + 1;
    for (const auto& row : property.Coefficients().Rows()) {
        const bool any = std::any_of(row.values.begin() + static_cast<std::ptrdiff_t>(before),
                                     row.values.end(), [](double d) { return d != 0.0; });
        if (any) return notes.Lost("hyperelastic: the compressibilities behind D1");
    }
}

}  // namespace zelmat
