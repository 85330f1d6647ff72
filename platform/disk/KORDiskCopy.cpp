#include "platform/disk/KORDiskCopy.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "platform/disk/KORDiskFile.h"
#include "platform/disk/KORFileBeside.h"
#include "platform/disk/KORSqliteStatement.h"

namespace {

bool Fail(const std::string& path, const char* message, KORFileError& error) {
    error = {path, 0, 0, message, std::strerror(errno)};
    return false;
}

bool WriteAnew(KORSqlite& from, const KORFileBeside& to) {
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
    KORFileBeside compacted(place);
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
    KORFileBeside copy(place);
    if (!copy.Make()) return Fail(newPath, "cannot be written", error);
    if (!WriteAnew(original.Connection(), copy)) {
        error = original.Error("cannot be copied");
        return false;
    }
    return copy.TakePlace(false) || Fail(newPath, "cannot be written", error);
}
