#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zelmat {

/// A stacking sequence as plies: the angle of each in degrees, the bottom one first.
using StackingSequence = std::vector<double>;

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
///
/// Blanks do not count, "S" and "s" are the same, a final "T" or "t" (total) says that nothing is mirrored,
/// and subscripts may be real ones (₂, ₛ).
std::variant<StackingSequence, NotationMistake> ReadStackingNotation(std::string_view notation);

/// The shortest notation of this kind for a sequence: mirrored and repeated where the sequence is.
std::string WriteStackingNotation(const StackingSequence& sequence);

}  // namespace zelmat
