#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zelmat {

/// A stacking sequence as plies: the angle of each in degrees, the bottom one first.
using StackingSequence = std::vector<double>;

constexpr double kLargestAngle = 360.0;  ///< of a ply, in degrees, to either side

/// Where a notation cannot be read, and what was expected there.
struct NotationMistake {
    std::size_t position;  ///< counted from 1, in characters (not bytes)
    std::string text;
};

/// Reads the usual notation of laminates, written from the bottom ply up:
///
///   [0/45/-45/90]s   symmetric: the plies, then the same ones in reverse
///   [±45/0]2         repeated; also [±45/0]_2, [..]2s (repeated, then mirrored) and a subscript of its own
///   [0/90_bar]s      a mid-ply: it stands in the middle of a symmetric laminate once
///   [0_2/90]s        a ply repeated; [(0/90)2/45]s a group repeated
///   [±45], [∓45]     +45/-45 and -45/+45; also written +-45 and -+45
///   [30/60]as        antisymmetric: 30, 60, -60, -30; a mirrored ply of 90 stays one of 90
///
/// Blanks do not count, a degree sign may follow an angle, "S" and "s" are the same, a final "T" or "t"
/// (total) says that nothing is mirrored, and subscripts may be real ones (₂, ₛ). Angles lie within ±360
/// degrees. At most 100,000 plies.
std::variant<StackingSequence, NotationMistake> ReadStackingNotation(std::string_view notation);

/// A notation that is read back as the same sequence, never longer than its plain list: repeats and symmetry
/// are folded, by the shortest of these forms where 64 plies say the whole.
std::string WriteStackingNotation(const StackingSequence& sequence);

}  // namespace zelmat
