#include "zelmat/commands/frame/Progress.h"

#include <unistd.h>

#include "zelmat/commands/frame/Terminal.h"

namespace zelmat {

namespace {

constexpr const char* kClearLine = "\r\x1b[K";

}  // namespace

Progress::Progress(std::ostream& notes) : notes_(notes), shows_(IsTerminal(STDERR_FILENO)) {}

Progress::~Progress() {
    if (shows_) notes_ << kClearLine << std::flush;
}

void Progress::Tell(const std::string& doing, std::size_t done, std::size_t all, const std::string& what) {
    if (!shows_) return;
    notes_ << kClearLine << doing << ' ' << done << " of " << all << ' ' << what << std::flush;
}

}  // namespace zelmat
