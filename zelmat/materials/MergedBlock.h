#pragma once

#include "zelmat/materials/ExtraBlock.h"

namespace zelmat {

/// A block as a document holds it, with what the document keeps of the card's: notes, sources, kept keys; and
/// numbers and units as they were written, where they still mean what is held. A value that the card left out
/// and nobody has changed since is left out. A whole block takes the held one's place when it still means
/// that. `material`: what was read of it, whose elastic block gives a hardening curve its meaning.
Block Merged(const Block& held, const ExtraBlock& extra, const Material& material);

}  // namespace zelmat
