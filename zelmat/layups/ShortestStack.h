#pragma once

#include <string>
#include <vector>

namespace zelmat {

/// The stacking notation of a sequence of angles in degrees, the bottom ply first: the plain list, or the
/// list with plies (`0_2`), groups (`(0/90)2`), the whole (`[0/90]2`) repeated, or one half of a symmetric
/// laminate (`[0/90]s`,
/// `[0/45/90_bar]s`), whichever is shortest. Of two of one length the symmetric form is taken, then the
/// repeated one. Parts of more than 64 plies are folded by equal neighbours only, in linear time.
std::string ShortestStack(const std::vector<double>& angles);

}  // namespace zelmat
