#include "zelmat/pictures/PictureColors.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace zelmat {

namespace {

constexpr std::array<const char*, 7> kDistinct = {"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                                                  "#e69f00", "#56b4e9", "#000000"};

using Rgb = std::array<double, 3>;

/// viridis without its light end, which is not seen on white.
constexpr std::array<Rgb, 8> kScale = {{{68, 1, 84},
                                        {70, 50, 127},
                                        {54, 92, 141},
                                        {39, 127, 142},
                                        {31, 161, 135},
                                        {74, 194, 109},
                                        {135, 205, 70},
                                        {180, 200, 40}}};

std::string OfTheScale(double place) {
    const double at = place * static_cast<double>(kScale.size() - 1);
    const auto lower = std::min(static_cast<std::size_t>(at), kScale.size() - 2);
    const double part = at - static_cast<double>(lower);
    std::array<unsigned, 3> mixed{};
    for (std::size_t i = 0; i < mixed.size(); ++i) {
        const double value = kScale[lower][i] + part * (kScale[lower + 1][i] - kScale[lower][i]);
        mixed[i] = static_cast<unsigned>(std::lround(value));
    }
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", mixed[0], mixed[1], mixed[2]);
    return text.data();
}

}  // namespace

std::string SeriesColor(std::size_t color, std::size_t colors, bool graded) {
    if (!graded && colors <= kDistinct.size()) return kDistinct[color % kDistinct.size()];
    if (colors < 2) return kDistinct[0];
    return OfTheScale(static_cast<double>(color % colors) / static_cast<double>(colors - 1));
}

int SeriesMark(std::size_t color) {
    constexpr std::array<int, 8> kMarks = {7, 5, 9, 13, 11, 6, 4, 8};
    return kMarks[color % kMarks.size()];
}

}  // namespace zelmat
