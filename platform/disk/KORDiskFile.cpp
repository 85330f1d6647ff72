#include "platform/disk/KORDiskFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>

#include "platform/disk/KORDiskSchema.h"

namespace {

/// How often each file is open in this process.
std::map<std::pair<dev_t, ino_t>, int>& OpenHere() {
    static auto& open = *new std::map<std::pair<dev_t, ino_t>, int>;
    return open;
}

std::string Absolute(const std::string& path) {
    std::error_code problem;
    const auto absolute = std::filesystem::absolute(path, problem);
    return problem ? path : absolute.string();
}

/// A descriptor that closes itself.
class Descriptor {
public:
    Descriptor(const std::string& path, int flags) : number_(open(path.c_str(), flags | O_CLOEXEC, 0666)) {}
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    explicit operator bool() const { return number_ >= 0; }

    /// As many bytes as there are from the file's beginning; -1 when it cannot be read.
    ssize_t ReadHeader(KORSqlite::Header& header) const {
        std::size_t had = 0;
        while (had < header.size()) {
            const ssize_t got =
                pread(number_, header.data() + had, header.size() - had, static_cast<off_t>(had));
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) return -1;
            if (got == 0) break;
            had += static_cast<std::size_t>(got);
        }
        return static_cast<ssize_t>(had);
    }

private:
    int number_;
};

}  // namespace

KORDiskFile::KORDiskFile(std::string path)
    : path_(std::move(path)), absolute_(Absolute(path_)), connection_(path_) {}

KORDiskFile::~KORDiskFile() {
    connection_.RollBack();
    connection_.Close();
    if (!entered_) return;
    const auto open = OpenHere().find({device_, inode_});
    if (--open->second == 0) OpenHere().erase(open);
}

bool KORDiskFile::Open(Use use, bool& newer, KORFileError& error) {
    // Another program may put a new file in its place between the look at it and the lock.
    for (int attempt = 0; attempt < 10; ++attempt) {
        if (!Look(use, error) || !Connect(error) || !Begin(use, error)) return false;
        if (!connection_.HasMoved())
            return CheckWhole(newer, error) && (use == Use::Read || MayChange(error));
        connection_.RollBack();
        connection_.Close();
    }
    return Refuse("is being replaced again and again", error);
}

bool KORDiskFile::Make(KORFileError& error) {
    {
        const Descriptor fresh(absolute_, O_RDWR | O_CREAT | O_EXCL);
        made_ = static_cast<bool>(fresh);
    }
    if (!made_) {
        struct stat status {};
        if (errno != EEXIST || stat(absolute_.c_str(), &status) != 0) {
            error = {path_, 0, 0, "cannot be made", std::strerror(errno)};
            return false;
        }
        // What an interrupted making left behind is empty, or will be once SQLite has rolled it back.
        const bool left =
            S_ISREG(status.st_mode) && status.st_nlink == 1 && (status.st_size == 0 || HasJournal());
        KORFileError foreign;
        if (!left || (status.st_size > 0 && !LookAtHeader(foreign))) return Refuse("exists already", error);
    }
    Enter();
    if (!Connect(error) || !Begin(Use::Change, error)) return false;
    if (connection_.FileSize() != 0) return Refuse("exists already", error);
    if (connection_.HasMoved()) return Refuse("was taken away by another program that was making it", error);
    return true;
}

bool KORDiskFile::Lock(KORFileError& error) {
    connection_.ClearFailure();
    if (!Begin(Use::Change, error)) return false;
    const bool same = connection_.Number("PRAGMA data_version") == version_ && !connection_.HasMoved();
    if (same && !connection_.Failed()) return true;
    connection_.RollBack();
    return Refuse("was changed by another program since it was read", error);
}

void KORDiskFile::NoteVersion() {
    version_ = connection_.Number("PRAGMA data_version");
}

void KORDiskFile::Unmake() noexcept {
    if (made_) unlink(absolute_.c_str());
    made_ = false;
}

KORFileError KORDiskFile::Error(const std::string& tried) const {
    if (connection_.IsBusy()) {
        return connection_.Error("is in use: another program has held its lock for " +
                                 std::to_string(KORSqlite::kPatience / 1000) + " s");
    }
    if (connection_.NeedsRollBack() || (connection_.CannotWrite() && HasJournal())) {
        return connection_.Error(
            "an interrupted save has to be rolled back first, and that needs leave to write the file and its "
            "folder");
    }
    return connection_.Error(connection_.IsDamaged() ? "is damaged" : tried);
}

bool KORDiskFile::Look(Use use, KORFileError& error) {
    struct stat status {};
    if (stat(absolute_.c_str(), &status) != 0) {
        error = {path_, 0, 0, "cannot be read", std::strerror(errno)};
        return false;
    }
    if (!S_ISREG(status.st_mode)) return Refuse("is no file", error);
    if (use == Use::Change && status.st_nlink > 1) {
        return Refuse("has " + std::to_string(status.st_nlink) +
                          " names (hard links): it can be read, and a copy of it can be changed",
                      error);
    }
    if (!OpenHere().contains({status.st_dev, status.st_ino}) && !LookAtHeader(error)) return false;
    Enter();
    return true;
}

bool KORDiskFile::LookAtHeader(KORFileError& error) const {
    const Descriptor file(absolute_, O_RDONLY | O_NONBLOCK);
    KORSqlite::Header header{};
    const ssize_t size = file ? file.ReadHeader(header) : -1;
    if (size < 0) {
        error = {path_, 0, 0, "cannot be read", std::strerror(errno)};
        return false;
    }
    // An interrupted making can leave pages without the first one; its journal takes them away again.
    if (header == KORSqlite::Header{} && size > 0 && HasJournal()) return true;
    const std::string problem = KORDiskSchema::ProblemOf(header, static_cast<std::size_t>(size));
    return problem.empty() || (size == 0 && HasJournal()) || Refuse(problem, error);
}

bool KORDiskFile::Connect(KORFileError& error) {
    return connection_.Open(absolute_) || FailAt("cannot be opened", error);
}

bool KORDiskFile::Begin(Use use, KORFileError& error) {
    const bool begun =
        use == Use::Change
            ? connection_.Run("PRAGMA journal_mode=DELETE") && connection_.Run("BEGIN IMMEDIATE")
            : connection_.Run("BEGIN") && connection_.Run("SELECT count(*) FROM sqlite_schema");
    return begun || FailAt(use == Use::Change ? "cannot be opened to change it" : "cannot be read", error);
}

bool KORDiskFile::FailAt(const char* tried, KORFileError& error) const {
    error = Error(tried);
    // What is cut short is told as that, and not as what SQLite makes of it.
    if (connection_.IsDamaged()) static_cast<void>(HasItsSize(error));
    return false;
}

bool KORDiskFile::HasItsSize(KORFileError& error) const {
    const auto header = connection_.ReadHeader();
    const std::int64_t size = connection_.FileSize();
    if (size == 0) return Refuse(KORDiskSchema::ProblemOf({}, 0), error);
    if (!header) return Refuse("cannot be read", error);
    const std::int64_t whole = KORDiskSchema::WholeSize(*header);
    if (size == whole) return true;
    return Refuse("is damaged: it has " + std::to_string(size) + " bytes, and its header tells of " +
                      std::to_string(whole),
                  error);
}

bool KORDiskFile::CheckWhole(bool& newer, KORFileError& error) {
    if (!HasItsSize(error)) return false;
    const KORSqlite::Header header = *connection_.ReadHeader();
    const std::string problem = KORDiskSchema::ProblemOf(header, header.size());
    if (!problem.empty()) return Refuse(problem, error);
    newer = KORDiskSchema::FormatOf(header) > KORDiskSchema::kFormat;
    if (newer || KORDiskSchema::IsExact(connection_)) return true;
    if (!connection_.Failed()) return Refuse("is damaged: its tables are not a document's", error);
    return FailAt("cannot be read", error);
}

bool KORDiskFile::MayChange(KORFileError& error) const {
    if (connection_.IsReadOnly()) return Refuse("is read-only", error);
    const std::string folder = std::filesystem::path(absolute_).parent_path().string();
    if (access(folder.c_str(), W_OK) == 0) return true;
    error = {path_, 0, 0, "cannot be changed: nothing can be written beside it", std::strerror(errno)};
    return false;
}

bool KORDiskFile::Refuse(std::string message, KORFileError& error) const {
    error = {path_, 0, 0, std::move(message)};
    return false;
}

bool KORDiskFile::HasJournal() const {
    struct stat status {};
    return stat((absolute_ + "-journal").c_str(), &status) == 0 && status.st_size > 0;
}

void KORDiskFile::Enter() {
    struct stat status {};
    if (entered_ || stat(absolute_.c_str(), &status) != 0) return;
    device_ = status.st_dev;
    inode_ = status.st_ino;
    ++OpenHere()[{device_, inode_}];
    entered_ = true;
}
