#pragma once

#include <string>

namespace zelmat {

/// Whether a stream of the program (1 or 2) goes to a terminal.
bool IsTerminal(int stream);

/// Whether what goes to a stream is coloured. `wish`: "always", "never", or "auto": on a terminal that can
/// ("TERM" is not "dumb"), unless the environment sets NO_COLOR to anything but the empty text.
bool IsColored(int stream, const std::string& wish);

}  // namespace zelmat
