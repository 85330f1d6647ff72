#include "zelmat/files/OutputFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "zelmat/files/LockedFolder.h"
#include "zelmat/files/ModeForbidsWriting.h"
#include "zelmat/files/OpenFile.h"
#include "zelmat/files/SignalHold.h"

namespace zelmat {

namespace {

namespace fs = std::filesystem;

/// The folders of a path that are not there are made, and go again unless they are kept.
class MadeFolders {
public:
    /// False, and errno, when one cannot be made.
    bool Make(const fs::path& folder) {
        std::error_code none;
        if (folder.empty() || folder == folder.root_path() || fs::is_directory(folder, none)) return true;
        if (!Make(folder.parent_path())) return false;
        constexpr mode_t kMode = 0777;  // and what the user's mask leaves of it
        if (::mkdir(folder.c_str(), kMode) != 0) return false;
        made_.push_back(folder);
        return true;
    }
    MadeFolders() = default;
    ~MadeFolders() {
        for (auto folder = made_.rbegin(); folder != made_.rend(); ++folder) ::rmdir(folder->c_str());
    }
    MadeFolders(const MadeFolders&) = delete;
    MadeFolders& operator=(const MadeFolders&) = delete;

    void Keep() { made_.clear(); }

private:
    std::vector<fs::path> made_;
};

/// A folder within the one that is written to, from which files go to their places by their names alone.
class Stage {
public:
    explicit Stage(const fs::path& folder) : folder_(folder, ".zelmat-output-") {}

    bool IsThere() const { return folder_.Exists(); }
    fs::path New(std::size_t at) const { return folder_.Path() / fs::path("new" + std::to_string(at)); }
    fs::path Old(std::size_t at) const { return folder_.Path() / fs::path("old" + std::to_string(at)); }

private:
    LockedFolder folder_;
};

class FolderWriter {
public:
    FolderWriter(fs::path folder, const std::vector<NamedText>& files, Findings& findings)
        : folder_(std::move(folder)), files_(files), findings_(findings) {}

    bool Write() {
        const SignalHold untilAllIsDone;
        MadeFolders made;
        if (!made.Make(folder_)) return Failed(folder_, "the folder cannot be made");
        const Stage stage(folder_);
        if (!stage.IsThere()) return Failed(folder_, "cannot be written to");
        for (std::size_t at = 0; at < files_.size(); ++at) {
            if (!Prepare(stage, at)) return false;
        }
        for (std::size_t at = 0; at < files_.size(); ++at) {
            if (TakePlace(stage, at)) continue;
            const int why = errno;
            TakeBack(stage, at);
            errno = why;
            return Failed(folder_ / files_[at].name, "cannot be written");
        }
        made.Keep();
        return true;
    }

private:
    bool Failed(const fs::path& path, const char* text) {
        findings_.Add({FindingKind::UNREADABLE,
                       {path.string(), 0},
                       "not-written",
                       text,
                       {std::generic_category().message(errno)}});
        return false;
    }

    /// Writes the new file beside its place, which must be free or hold a file that can be replaced.
    bool Prepare(const Stage& stage, std::size_t at) {
        const fs::path named = folder_ / files_[at].name;
        std::error_code none;
        const fs::path followed = fs::is_symlink(named, none) ? fs::weakly_canonical(named, none) : named;
        const fs::path& target = targets_.emplace_back(none ? named : followed);
        struct stat old {};
        const bool replaces = ::stat(target.c_str(), &old) == 0;
        if (replaces && !S_ISREG(old.st_mode)) {
            errno = S_ISDIR(old.st_mode) ? EISDIR : EEXIST;
            return Failed(named, "cannot be replaced");
        }
        if (replaces && ModeForbidsWriting(target, old)) return Failed(named, "cannot be replaced");
        constexpr mode_t kMode = 0666, kBits = 07777;
        const OpenFile file(stage.New(at).string(), O_WRONLY | O_CREAT | O_EXCL, kMode);
        const bool written = file && file.Write(files_[at].text) && file.Sync() &&
                             (!replaces || ::fchmod(file.Number(), old.st_mode & kBits) == 0);
        return written || Failed(named, "cannot be written");
    }

    /// The old file stays in its place until the new one takes it, so that there is always one.
    bool TakePlace(const Stage& stage, std::size_t at) const {
        return KeepOld(targets_[at], stage.Old(at)) &&
               ::rename(stage.New(at).c_str(), targets_[at].c_str()) == 0;
    }

    /// A second name for the file, or a copy where the file system has none.
    static bool KeepOld(const fs::path& target, const fs::path& old) {
        if (::link(target.c_str(), old.c_str()) == 0 || errno == ENOENT) return true;
        std::error_code problem;
        fs::copy_file(target, old, problem);
        errno = problem.value();
        return !problem;
    }

    /// Files before `failed` have their new text.
    void TakeBack(const Stage& stage, std::size_t failed) const {
        for (std::size_t at = 0; at < failed; ++at) {
            if (::rename(stage.Old(at).c_str(), targets_[at].c_str()) != 0) ::unlink(targets_[at].c_str());
        }
    }

    fs::path folder_;
    const std::vector<NamedText>& files_;
    Findings& findings_;
    std::vector<fs::path> targets_;
};

}  // namespace

std::optional<std::vector<WrittenFile>> WriteOutputFolder(const std::string& folder,
                                                          const std::vector<NamedText>& files,
                                                          Findings& findings) {
    fs::path plain = fs::path(folder).lexically_normal();
    if (plain.filename().empty()) plain = plain.parent_path();  // "folder/"
    if (!FolderWriter(plain, files, findings).Write()) return std::nullopt;
    std::vector<WrittenFile> written;
    for (const NamedText& file : files) written.push_back({(fs::path(folder) / file.name).string(), ""});
    return written;
}

}  // namespace zelmat
