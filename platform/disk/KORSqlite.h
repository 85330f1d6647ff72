#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/catalog/KORFileError.h"

struct sqlite3;

/// One connection to an SQLite file, set up so that a file which somebody else made can do no harm: no
/// triggers, no views, no functions from its schema. The first failure stays until ClearFailure; until then
/// nothing more is done, so whoever makes several calls asks once. It knows no table.
class KORSqlite {
public:
    /// How long a call waits, in milliseconds, while another program holds the file's lock.
    static constexpr int kPatience = 5000;

    explicit KORSqlite(std::string name) : name_(std::move(name)) {}  ///< what errors call the file
    ~KORSqlite();
    KORSqlite(const KORSqlite&) = delete;
    KORSqlite& operator=(const KORSqlite&) = delete;

    /// Opens an existing file, to write if the system lets us. No look at the file is taken yet.
    [[nodiscard]] bool Open(const std::string& path);
    void Close() noexcept;

    /// Statements without parameters, whatever rows they give.
    bool Run(const char* sql);

    /// The first column of the first row; 0 without a row.
    std::int64_t Number(const char* sql);

    bool IsReadOnly() const;  ///< the system did not let us open it to write

    /// Whether the path has come to name another file since this one was opened.
    bool HasMoved() const;

    /// The file as it is, by SQLite's own handle: opening it a second time would lose the locks of this
    /// process.
    std::int64_t FileSize() const;
    static constexpr std::size_t kHeaderSize = 100;
    using Header = std::array<unsigned char, kHeaderSize>;
    std::optional<Header> ReadHeader() const;

    void RollBack() noexcept;  ///< whatever is open; a failure stays

    bool Failed() const { return code_ != 0; }
    void ClearFailure() { code_ = 0; }
    int Code() const { return code_; }  ///< SQLite's extended result code of the failure; 0: none
    bool IsBusy() const;                ///< it failed since another program holds the lock
    bool IsDamaged() const;             ///< it failed since the file is none, or a broken one
    bool CannotWrite() const;    ///< it failed since the file, or something beside it, cannot be written
    bool NeedsRollBack() const;  ///< it failed since an interrupted save cannot be rolled back

    /// The failure as an error: `message` says what was tried.
    KORFileError Error(std::string message) const;

private:
    friend class KORSqliteStatement;

    void Fail(int code);

    std::string name_;
    sqlite3* connection_ = nullptr;
    int code_ = 0;
    std::string reason_;
};
