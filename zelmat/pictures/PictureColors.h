#pragma once

#include <cstddef>
#include <string>

namespace zelmat {

/// "#0072b2". Of few series colours that colour-blind people tell apart (M. Okabe, K. Ito, Color Universal
/// Design, 2008), of many or of graded ones steps of one scale from dark to light, whose brightness grows
/// evenly so that it is one in print, too (viridis: S. van der Walt, N. Smith, 2015).
std::string SeriesColor(std::size_t color, std::size_t colors, bool graded);

/// Of the marks of gnuplot's terminals those that are told apart in print: a number after `pointtype`.
int SeriesMark(std::size_t color);

}  // namespace zelmat
