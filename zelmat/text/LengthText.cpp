#include "zelmat/text/LengthText.h"

#include <charconv>
#include <cmath>

#include "platform/analysis/KORUnitTypes.h"
#include "zelmat/text/NumberText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr double kPerMetre = 1000.0;

const KORUnitType& Length() {
    return *KORFindUnitType("LENGTH");
}

/// Divides where the unit is a whole fraction of the metre, so that 0.127 mm become 0.000127 m and not the
/// double next to it.
double InMetres(double value, const KORUnit& unit) {
    const double parts = 1.0 / unit.factor;
    return parts > 1.0 && parts == std::round(parts) ? value / parts : value * unit.factor;
}

}  // namespace

std::optional<double> ReadLength(std::string_view text) {
    double value = 0.0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc()) return std::nullopt;
    std::string_view symbol(read.ptr, static_cast<std::size_t>(text.data() + text.size() - read.ptr));
    while (symbol.starts_with(' ')) symbol.remove_prefix(1);
    const KORUnit* unit = KORFindUnit(Length(), symbol);
    return unit ? std::optional(InMetres(value, *unit)) : std::nullopt;
}

std::string LengthUnits() {
    return WordList(Length().units, [](const KORUnit& unit) { return std::string(unit.symbol); });
}

std::string Millimetres(double metres) {
    constexpr double kSteps = 1e9;  // a millimetre has that many
    const double steps = std::round(metres * kPerMetre * kSteps);
    return NumberText(steps == 0.0 ? 0.0 : steps / kSteps);
}

}  // namespace zelmat
