#include "zelmat/files/OutputFile.h"

#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "zelmat/files/BesideFile.h"
#include "zelmat/files/ModeForbidsWriting.h"
#include "zelmat/files/OpenFile.h"
#include "zelmat/files/SignalHold.h"

namespace zelmat {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kModeBits = 07777;

/// The reason in errno, in words.
std::string Reason() {
    return std::error_code(errno, std::generic_category()).message();
}

std::optional<struct stat> StateOf(const std::string& path) {
    struct stat state {};
    return ::stat(path.c_str(), &state) == 0 ? std::optional(state) : std::nullopt;
}

/// Where a path leads in the end. A link that points nowhere leads to what is to be made.
std::string LinkTarget(const std::string& path) {
    constexpr int kMostLinks = 40;  // as the system's own limit
    fs::path target = path;
    std::error_code problem;
    for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(target, problem)); ++i) {
        const fs::path next = fs::read_symlink(target, problem);
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    return target.string();
}

std::string FolderOf(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// A new or replaced name is safe on disk only once its folder is. Not every file system can sync one.
void SyncFolderOf(const std::string& path) {
    const OpenFile folder(FolderOf(path), O_RDONLY | O_DIRECTORY);
    if (folder) static_cast<void>(folder.Sync());
}

/// Attributes beyond mode and owner, such as access lists, which a new file would not have. What a security
/// module hangs on every file comes with the folder.
bool HasFurtherAttributes(const std::string& path) {
    constexpr std::size_t kRoom = 4096;
    std::string names(kRoom, '\0');
    const ssize_t size = ::listxattr(path.c_str(), names.data(), names.size());
    if (size < 0) return errno == ERANGE;
    names.resize(static_cast<std::size_t>(size));
    for (std::size_t at = 0; at < names.size(); at += std::strlen(&names[at]) + 1) {
        if (std::strncmp(&names[at], "security.", std::strlen("security.")) != 0) return true;
    }
    return false;
}

/// Every document in a file begins so, and a file of another form in its place would take all of its history.
bool IsDatabase(const std::string& path) {
    constexpr std::string_view kBegin("SQLite format 3\0", 16);
    std::array<char, kBegin.size()> begin{};
    const OpenFile file(path, O_RDONLY);
    return file && ::read(file.Number(), begin.data(), begin.size()) == kBegin.size() &&
           std::string_view(begin.data(), begin.size()) == kBegin;
}

bool IsThere(const std::string& path) {
    struct stat state {};
    return ::lstat(path.c_str(), &state) == 0;
}

bool IsOneOf(const std::vector<std::string>& inputs, const struct stat& state) {
    return std::any_of(inputs.begin(), inputs.end(), [&](const std::string& input) {
        const auto other = StateOf(input);
        return other && other->st_dev == state.st_dev && other->st_ino == state.st_ino;
    });
}

/// One write. Each step answers what went wrong, empty when nothing did.
class Output {
public:
    Output(const std::string& path, std::string_view text) : path_(path), text_(text) {}

    std::string Write(const std::vector<std::string>& inputs) {
        if (path_ == "-") return WriteToStandardOutput();
        if (path_.find('\0') != std::string::npos) return "the path holds a NUL character";
        target_ = LinkTarget(path_);
        const auto state = StateOf(path_);
        if (!state) return errno == ENOENT ? WriteNew() : Reason();
        if (S_ISDIR(state->st_mode)) return "is a folder";
        if (!S_ISREG(state->st_mode)) return WriteThrough();

        const auto own = StateOf(target_);
        if (!own || own->st_ino != state->st_ino || own->st_dev != state->st_dev) return WriteThrough();
        if (ModeForbidsWriting(target_, *state)) return "its mode does not allow writing";
        if (IsDatabase(target_)) return "is a document, which a file of another form does not replace";
        const SignalHold hold;
        if (IsOneOf(inputs, *state)) {
            std::string problem = KeepInput(*state);
            if (!problem.empty()) return problem;
        }
        return Replace(*state);
    }

    const std::string& Backup() const { return backup_; }

private:
    /// Pipes and devices, which take what is written to them.
    std::string WriteThrough() {
        const PipeErrors errors;
        OpenFile file(path_, O_WRONLY | O_NOCTTY);
        return file && file.Write(text_) && file.Close() ? "" : Reason();
    }

    std::string WriteToStandardOutput() {
        std::cout.write(text_.data(), static_cast<std::streamsize>(text_.size()));
        errno = 0;
        if (std::cout.flush()) return "";
        return errno != 0 ? Reason() : "the stream has failed";
    }

    std::string WriteNew() {
        constexpr mode_t kReadableByAll = 0666;  // less what the user's mask takes away
        const SignalHold hold;
        BesideFile beside(target_, kReadableByAll);
        return beside && TakePlace(beside) ? "" : Reason();
    }

    /// What was read stays beside the result: a copy of its own, whatever names the file has.
    std::string KeepInput(const struct stat& state) {
        std::string name = target_ + ".bak";
        for (int i = 2; IsThere(name); ++i) {
            name = target_ + ".bak." + std::to_string(i);
        }
        std::string problem = Copy(target_, name, state.st_mode);
        if (problem.empty()) backup_ = name;
        return problem;
    }

    std::string Replace(const struct stat& state) {
        if (state.st_nlink > 1 || HasFurtherAttributes(target_)) return WriteInPlace(state);
        BesideFile beside(target_, S_IRUSR | S_IWUSR);
        if (!beside) return Reason();
        const bool owned = ::fchown(beside.File().Number(), state.st_uid, state.st_gid) == 0;
        if (!owned) return WriteInPlace(state);
        const bool written =
            ::fchmod(beside.File().Number(), state.st_mode & kModeBits) == 0 && TakePlace(beside);
        return written ? "" : Reason();
    }

    bool TakePlace(BesideFile& beside) {
        if (!beside.File().Write(text_) || !beside.File().Sync() || !beside.TakePlace()) return false;
        SyncFolderOf(target_);
        return true;
    }

    /// A copy that an earlier, killed write left is the whole one of the two, and stays until this write
    /// succeeded.
    std::string WriteInPlace(const struct stat& state) {
        const std::string copy = target_ + ".zelmat-backup";
        if (!IsThere(copy)) {
            const std::string problem = Copy(target_, copy, state.st_mode);
            if (!problem.empty()) return problem + ", when its backup " + copy + " was made";
        }
        const OpenFile file(target_, O_RDWR | O_NOFOLLOW);
        if (!file) return Reason();
        // Room is taken before the first byte is changed, so that a full disk changes none.
        const auto size = static_cast<off_t>(text_.size());
        if (size > state.st_size) {
            const int full = ::posix_fallocate(file.Number(), 0, size);
            if (full != 0) {
                static_cast<void>(::ftruncate(file.Number(), state.st_size));
                ::unlink(copy.c_str());
                errno = full;
                return Reason();
            }
        }
        if (!file.Write(text_) || ::ftruncate(file.Number(), size) != 0 || !file.Sync()) {
            return Reason() + ", the file as it was is kept as " + copy;
        }
        ::unlink(copy.c_str());
        SyncFolderOf(target_);
        return "";
    }

    static std::string Copy(const std::string& from, const std::string& to, mode_t mode) {
        const OpenFile source(from, O_RDONLY);
        const auto text = source ? source.ReadAll() : std::nullopt;
        if (!text) return Reason();
        const OpenFile copy(to, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (!copy) return Reason();
        if (copy.Write(*text) && ::fchmod(copy.Number(), mode & kModeBits) == 0 && copy.Sync()) {
            SyncFolderOf(to);
            return "";
        }
        std::string problem = Reason();
        ::unlink(to.c_str());
        return problem;
    }

    const std::string& path_;
    std::string_view text_;
    std::string target_;
    std::string backup_;
};

}  // namespace

std::optional<WrittenFile> WriteOutputFile(const std::string& path, std::string_view text,
                                           const std::vector<std::string>& inputs, Findings& findings) {
    Output output(path, text);
    const std::string problem = output.Write(inputs);
    if (problem.empty()) return WrittenFile{path, output.Backup()};
    findings.Add({FindingKind::UNREADABLE, {path, 0}, "not-written", "cannot be written: " + problem, {}});
    return std::nullopt;
}

}  // namespace zelmat
