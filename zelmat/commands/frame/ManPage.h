#pragma once

#include <string>

namespace zelmat {

/// The manual page of the program, for man(1), made of what `zelmat --help` and `zelmat help COMMAND` print.
std::string ManPage();

}  // namespace zelmat
