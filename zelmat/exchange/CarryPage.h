#pragma once

#include <string>

namespace zelmat {

/// docs/exchange.md: what every form of deck carries of every behavior, as Markdown, made from the writers'
/// own tables.
std::string CarryPage();

}  // namespace zelmat
