#pragma once

#include <sys/types.h>

#include "platform/disk/KORSqlite.h"

/// A document's file as the system sees it, and the connection to it. Before SQLite is let near a file its
/// header is looked at with plain reads, so that a foreign one is left alone.
///
/// Locks belong to the process, and closing any descriptor of a file loses all that it has on it. So a file
/// that is open here already is not looked at a second time.
class KORDiskFile {
public:
    enum class Use { Read, Change };

    explicit KORDiskFile(std::string path);
    ~KORDiskFile();
    KORDiskFile(const KORDiskFile&) = delete;
    KORDiskFile& operator=(const KORDiskFile&) = delete;

    const std::string& Path() const { return path_; }
    KORSqlite& Connection() { return connection_; }

    /// Opens an existing document and begins a transaction on it, to change it or to read it, when its
    /// header, size and tables are those of one. `newer` is set when its format is newer than this release;
    /// then its tables may be others, and it is not opened to change.
    [[nodiscard]] bool Open(Use use, bool& newer, KORFileError& error);

    /// Makes an empty file, or takes one that is empty, and begins the transaction in which it becomes a
    /// document.
    [[nodiscard]] bool Make(KORFileError& error);

    /// Begins another transaction to change what was opened or made. The file must not have been changed
    /// since NoteVersion.
    [[nodiscard]] bool Lock(KORFileError& error);
    void NoteVersion();

    /// Takes an empty file away that Make made and that did not become a document.
    void Unmake() noexcept;

    /// A failure of the connection as users are to read it; `tried` says what was tried.
    KORFileError Error(const std::string& tried) const;

private:
    bool Look(Use use, KORFileError& error);
    bool LookAtHeader(KORFileError& error) const;
    bool Begin(Use use, KORFileError& error);
    bool CheckWhole(bool& newer, KORFileError& error);
    bool HasItsSize(KORFileError& error) const;
    bool MayChange(KORFileError& error) const;
    bool FailAt(const char* tried, KORFileError& error) const;  ///< the connection has failed
    bool Refuse(std::string message, KORFileError& error) const;
    bool Connect(KORFileError& error);
    bool HasJournal() const;
    void Enter();

    const std::string path_;
    const std::string absolute_;  ///< what SQLite gets: no name of it means something else
    KORSqlite connection_;
    bool entered_ = false;  ///< among those that are open here
    dev_t device_ = 0;
    ino_t inode_ = 0;
    bool made_ = false;
    std::int64_t version_ = 0;
};
