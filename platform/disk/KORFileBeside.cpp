#include "platform/disk/KORFileBeside.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnd = ".tmp";
constexpr std::string_view kJournal = "-journal";  // SQLite's own, beside what it writes

/// "." and the file's name, which a process's number follows.
std::string Beginning(const fs::path& place) {
    return "." + place.filename().string() + ".";
}

/// The lock belongs to the descriptor, so that SQLite's own on the same file do not touch it, and lies behind
/// the bytes that these are on.
bool Lock(int number, bool wait) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = 0x7FFFFFFF;
    lock.l_len = 1;
    return fcntl(number, wait ? F_OFD_SETLKW : F_OFD_SETLK, &lock) == 0;
}

bool IsStillThere(int number) {
    struct stat status {};
    return fstat(number, &status) == 0 && status.st_nlink > 0;
}

bool Flush(const fs::path& path) {
    const int number = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = number >= 0 && fsync(number) == 0;
    if (number >= 0) close(number);
    return flushed;
}

}  // namespace

KORFileBeside::KORFileBeside(const fs::path& place)
    : place_(place),
      folder_(place.parent_path()),
      path_(folder_ / (Beginning(place) + std::to_string(getpid()) + std::string(kEnd))) {}

KORFileBeside::~KORFileBeside() {
    if (number_ < 0) return;
    unlink(path_.c_str());
    close(number_);
}

bool KORFileBeside::Make() {
    constexpr int kTries = 10;
    for (int i = 0; i < kTries; ++i) {
        RemoveLeftovers();
        number_ = open(path_.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
        if (number_ < 0) return false;
        Lock(number_, true);  // without locks on this file system nobody takes it for a leftover
        if (IsStillThere(number_)) return true;
        close(number_);  // another program had taken it for a leftover before it was locked
        number_ = -1;
    }
    errno = EEXIST;
    return false;
}

bool KORFileBeside::TakeMode(mode_t mode) {
    return fchmod(number_, mode & 07777) == 0;
}

bool KORFileBeside::TakePlace(bool replace) {
    if (fsync(number_) != 0) return false;
    const bool renamed = replace ? rename(path_.c_str(), place_.c_str()) == 0 : RenameToNew();
    if (!renamed) return false;
    close(number_);
    number_ = -1;
    return Flush(folder_);
}

bool KORFileBeside::RenameToNew() const {
    if (renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, place_.c_str(), RENAME_NOREPLACE) == 0) return true;
    // A file system that does not know that: a second name cannot replace anything either.
    return errno == EINVAL && link(path_.c_str(), place_.c_str()) == 0 && unlink(path_.c_str()) == 0;
}

void KORFileBeside::RemoveLeftovers() const {
    std::vector<fs::path> journals;
    std::error_code problem;
    for (fs::directory_iterator each(folder_, problem), end; !problem && each != end;
         each.increment(problem)) {
        if (HasSuchName(each->path())) RemoveIfLeft(each->path());
        if (each->path().string().ends_with(kJournal)) journals.push_back(each->path());
    }
    for (const fs::path& journal : journals) {
        fs::path of = journal;
        of.replace_filename(
            of.filename().string().substr(0, of.filename().string().size() - kJournal.size()));
        if (HasSuchName(of) && !fs::exists(fs::symlink_status(of, problem))) unlink(journal.c_str());
    }
}

bool KORFileBeside::HasSuchName(const fs::path& path) const {
    const std::string name = path.filename().string();
    const std::string beginning = Beginning(place_);
    if (!name.starts_with(beginning) || !name.ends_with(kEnd)) return false;
    if (name.size() <= beginning.size() + kEnd.size()) return false;
    const auto process = name.substr(beginning.size(), name.size() - beginning.size() - kEnd.size());
    return std::ranges::all_of(process, [](char c) { return c >= '0' && c <= '9'; });
}

void KORFileBeside::RemoveIfLeft(const fs::path& path) {
    const int number = open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (number < 0) return;
    struct stat status {};
    if (fstat(number, &status) == 0 && S_ISREG(status.st_mode) && Lock(number, false)) unlink(path.c_str());
    close(number);
}
