#pragma once

#include <string>

#include "zelmat/layups/LayupCard.h"

namespace zelmat {

/// The text of a layup card, numbers in SI; LayupCardReader reads the same card from it.
std::string LayupCardText(const LayupCard& card);

}  // namespace zelmat
