#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

/// A new file beside the place of another, `.NAME.PID.tmp`, which goes with this object unless it gets that
/// place. It is locked while it lives, so that what a killed program left behind is known from what another
/// is writing just now.
class KORFileBeside {
public:
    explicit KORFileBeside(const std::filesystem::path& place);
    ~KORFileBeside();
    KORFileBeside(const KORFileBeside&) = delete;
    KORFileBeside& operator=(const KORFileBeside&) = delete;

    std::string Path() const { return path_.string(); }

    // All answer false, and errno, when the system refuses.
    /// An empty file, nobody else's. What killed programs left beside that place goes, with SQLite's journals
    /// of it.
    [[nodiscard]] bool Make();
    [[nodiscard]] bool TakeMode(mode_t mode);

    /// Makes it durable and puts it in the place of the file that lies there, or only where none does.
    [[nodiscard]] bool TakePlace(bool replace);

private:
    void RemoveLeftovers() const;
    bool HasSuchName(const std::filesystem::path& path) const;
    static void RemoveIfLeft(const std::filesystem::path& path);
    bool RenameToNew() const;

    const std::filesystem::path place_;
    const std::filesystem::path folder_;
    const std::filesystem::path path_;
    int number_ = -1;  ///< of the descriptor that holds the lock; below 0: no file was made
};
