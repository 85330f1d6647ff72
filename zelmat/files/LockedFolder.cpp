#include "zelmat/files/LockedFolder.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <system_error>

namespace zelmat {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kAnyName = "XXXXXX";  // of mkdtemp

/// What is locked, and tells the program's own folders from others of such a name.
std::string LockIn(const fs::path& folder) {
    return folder / ".zelmat-lock";
}

bool TakeLock(const OpenFile& lock) {
    return lock && ::flock(lock.Number(), LOCK_EX | LOCK_NB) == 0;
}

void RemoveLeftovers(const fs::path& parent, const std::string& prefix) {
    std::error_code problem;
    for (fs::directory_iterator at(parent, problem), end; !problem && at != end; at.increment(problem)) {
        const std::string name = at->path().filename().string();
        std::error_code none;
        const bool named = name.size() == prefix.size() + kAnyName.size() && name.starts_with(prefix);
        if (!named || !fs::is_directory(at->symlink_status(none))) continue;
        const OpenFile left(LockIn(at->path()), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
        const auto state = left ? left.State() : std::nullopt;
        const bool own = state && S_ISREG(state->st_mode) && state->st_uid == ::geteuid();
        if (own && TakeLock(left)) fs::remove_all(at->path(), none);
    }
}

}  // namespace

LockedFolder::LockedFolder(const fs::path& parent, const std::string& prefix) {
    RemoveLeftovers(parent, prefix);
    constexpr int kTries = 100;
    for (int i = 0; i < kTries; ++i) {
        std::string wanted = parent / (prefix + std::string(kAnyName));
        if (!::mkdtemp(wanted.data())) return;
        constexpr mode_t kMode = 0600;
        lock_ = OpenFile(LockIn(wanted), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, kMode);
        const int why = errno;
        if (!lock_) {
            ::rmdir(wanted.c_str());
            errno = why;
            return;
        }
        // Between the two calls another program may have taken it for a leftover.
        const auto state = TakeLock(lock_) ? lock_.State() : std::nullopt;
        if (state && state->st_nlink > 0) {
            path_ = wanted;
            return;
        }
    }
    errno = EBUSY;
}

LockedFolder::~LockedFolder() {
    std::error_code ignored;
    if (Exists()) fs::remove_all(path_, ignored);
}

}  // namespace zelmat
