#pragma once

#include <string>

namespace zelmat {

/// A word as a shell takes it: as it is where that is harmless, else between single quotes.
std::string ShellWord(const std::string& word);

}  // namespace zelmat
