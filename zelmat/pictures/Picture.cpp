#include "zelmat/pictures/Picture.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PictureRange.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WrappedText.h"

namespace zelmat {

namespace {

constexpr int kDigits = 4;
constexpr double kLeastDrawn = 1e-300;

std::string NumberWithUnit(double number, const std::string& unit) {
    const std::string text = RoundedText(number, kDigits);
    return unit == "-" ? text : text + " " + WrittenUnit(unit);
}

std::string Span(const PictureRange& range, const std::string& unit) {
    return RoundedText(range.lower, kDigits) + " to " + NumberWithUnit(range.upper, unit);
}

}  // namespace

std::string SpokenName(const std::string& name) {
    constexpr double kEms = 60.0;
    return ShortenedText(Printable(name), kEms, 1.0);
}

std::string Description(const Picture& picture) {
    std::string text = SpokenName(picture.title) + ": " + picture.what + ".";
    if (picture.kind == PictureKind::BARS) {
        for (const PictureBar& bar : picture.bars) {
            text += " " + SpokenName(bar.label) + ": " + NumberWithUnit(bar.value, picture.x.unit) + ";";
        }
        return text;
    }
    const auto x = RangeOf(picture, &PicturePoint::x), y = RangeOf(picture, &PicturePoint::y);
    if (!x || !y) return text;
    text += " " + picture.x.title + " from " + Span(*x, picture.x.unit) + ", " + picture.y.title + " from " +
            Span(*y, picture.y.unit) + ".";
    const auto named = std::count_if(picture.series.begin(), picture.series.end(),
                                     [](const Series& series) { return !series.label.empty(); });
    if (named > 1) text += " " + std::to_string(named) + " series.";
    return text;
}

bool IsDrawn(const PicturePoint& point) {
    return std::abs(point.x) <= kGreatestDrawn && std::abs(point.y) <= kGreatestDrawn;
}

std::optional<PictureRange> RangeOf(const Picture& picture, double PicturePoint::*coordinate) {
    std::optional<PictureRange> range;
    for (const Series& series : picture.series) {
        for (const PicturePoint& point : series.points) {
            if (!IsDrawn(point)) continue;
            const double value = point.*coordinate;
            if (!range) range = PictureRange{value, value};
            range->lower = std::min(range->lower, value);
            range->upper = std::max(range->upper, value);
        }
    }
    return range;
}

PictureRange WithMargin(PictureRange range, bool fromZero) {
    constexpr double kMargin = 0.05, kFlat = 1e-9;
    const double greatest = std::max(std::abs(range.lower), std::abs(range.upper));
    const bool zero = fromZero && range.lower >= 0.0;
    if (greatest < kLeastDrawn) return {zero ? 0.0 : -1.0, 1.0};
    if (range.upper - range.lower <= kFlat * greatest) {
        const double room = 0.1 * greatest;
        return {zero ? 0.0 : range.lower - room, range.upper + room};
    }
    const double room = kMargin * (range.upper - range.lower);
    return {zero ? 0.0 : range.lower - room, range.upper + room};
}

}  // namespace zelmat
