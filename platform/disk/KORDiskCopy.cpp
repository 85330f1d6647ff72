#include "platform/disk/KORDiskCopy.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "platform/disk/KORDiskFile.h"
#include "platform/disk/KORSqliteStatement.h"

namespace {

/// Makes a file or a folder durable.
bool Flush(const std::string& path) {
    const int number = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = number >= 0 && fsync(number) == 0;
    if (number >= 0) close(number);
    return flushed;
}

/// A file beside the place of another, which goes with this object unless it gets that place.
class Beside {
public:
    explicit Beside(const std::filesystem::path& place) : place_(place), folder_(place.parent_path()) {
        const std::string name = "." + place.filename().string() + "." + std::to_string(getpid()) + ".tmp";
        path_ = folder_ / name;
    }
    ~Beside() {
        if (made_) unlink(path_.c_str());
    }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    const std::string Path() const { return path_.string(); }

    /// An empty file, nobody else's.
    bool Make() {
        const int number = open(path_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
        made_ = number >= 0;
        if (made_) close(number);
        return made_;
    }
    bool TakeMode(mode_t mode) { return chmod(path_.c_str(), mode & 07777) == 0; }

    /// In the place of the file that lies there, or only where none does.
    bool TakePlace(bool replace) {
        if (!Flush(path_.string())) return false;
        const int renamed = replace ? rename(path_.c_str(), place_.c_str()) : RenameToNew();
        if (renamed != 0) return false;
        made_ = false;
        return Flush(folder_.string());
    }

private:
    int RenameToNew() const {
        const int renamed = renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, place_.c_str(), RENAME_NOREPLACE);
        if (renamed == 0 || errno != EINVAL) return renamed;
        // A file system that does not know that: a second name cannot replace anything either.
        const int linked = link(path_.c_str(), place_.c_str());
        return linked == 0 ? unlink(path_.c_str()) : linked;
    }

    const std::filesystem::path place_;
    const std::filesystem::path folder_;
    std::filesystem::path path_;
    bool made_ = false;
};

bool Fail(const std::string& path, const char* message, KORFileError& error) {
    error = {path, 0, 0, message, std::strerror(errno)};
    return false;
}

bool WriteAnew(KORSqlite& from, const Beside& to) {
    KORSqliteStatement vacuum(from, "VACUUM INTO ?");
    return vacuum.Run(to.Path());
}

/// The file itself where the path is a link.
std::filesystem::path Real(const std::string& path) {
    std::error_code problem;
    const auto real = std::filesystem::canonical(path, problem);
    return problem ? std::filesystem::absolute(path) : real;
}

}  // namespace

bool KORDiskCopy::Compact(const std::string& path, KORFileError& error) {
    KORDiskFile locked(path);
    bool newer = false;
    if (!locked.Open(KORDiskFile::Use::Change, newer, error)) return false;
    if (newer) {
        error = {path, 0, 0, "its format is newer than this program: it can be read, not changed"};
        return false;
    }
    const std::filesystem::path place = Real(path);
    struct stat status {};
    Beside compacted(place);
    if (stat(place.c_str(), &status) != 0 || !compacted.Make())
        return Fail(path, "cannot be compacted", error);
    KORSqlite reader(path);  // no transaction may stand open on the one that copies
    if (!reader.Open(place.string()) || !WriteAnew(reader, compacted)) {
        error = reader.Error("cannot be compacted");
        return false;
    }
    if (compacted.TakeMode(status.st_mode) && compacted.TakePlace(true)) return true;
    return Fail(path, "cannot be compacted", error);
}

bool KORDiskCopy::To(const std::string& path, const std::string& newPath, KORFileError& error) {
    KORDiskFile original(path);
    bool newer = false;
    if (!original.Open(KORDiskFile::Use::Read, newer, error)) return false;
    original.Connection().RollBack();
    const auto place = std::filesystem::absolute(newPath);
    std::error_code none;
    if (std::filesystem::exists(std::filesystem::symlink_status(place, none))) {
        error = {newPath, 0, 0, "exists already"};
        return false;
    }
    Beside copy(place);
    if (!copy.Make()) return Fail(newPath, "cannot be written", error);
    if (!WriteAnew(original.Connection(), copy)) {
        error = original.Error("cannot be copied");
        return false;
    }
    return copy.TakePlace(false) || Fail(newPath, "cannot be written", error);
}
