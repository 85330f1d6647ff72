#pragma once

#include <string>

#include "zelmat/layups/StoredLayup.h"

namespace zelmat {

/// A layup as an SVG picture: the stack to scale, the bottom layer at the bottom, each layer hatched in the
/// direction of its fibres as seen from above, with its angle and material beside it and the z of every
/// interface. Of very many layers only some carry a label, and the picture says which.
std::string LayupDrawing(const StoredLayup& layup, const std::string& title);

}  // namespace zelmat
