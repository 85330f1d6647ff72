#include "zelmat/commands/frame/Terminal.h"

#include <unistd.h>

#include <cstdlib>

namespace zelmat {

namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

}  // namespace

bool IsTerminal(int stream) {
    return ::isatty(stream) == 1;
}

bool IsColored(int stream, const std::string& wish) {
    if (wish != "auto") return wish == "always";
    return IsTerminal(stream) && Environment("NO_COLOR").empty() && Environment("TERM") != "dumb";
}

}  // namespace zelmat
