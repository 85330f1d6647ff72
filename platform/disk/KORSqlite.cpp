#include "platform/disk/KORSqlite.h"

#include <sqlite3.h>

#include <cstring>

#include "platform/disk/KORSqliteStatement.h"

namespace {

/// Before anything is read. What depends on the file's content comes after its header was looked at.
constexpr const char* kSetUp =
    "PRAGMA trusted_schema=OFF;"
    "PRAGMA cell_size_check=ON;"
    "PRAGMA cache_spill=OFF;"  // a save writes to the file at its very end: readers wait no longer than that
    "PRAGMA synchronous=EXTRA;";

sqlite3_file* FileOf(sqlite3* connection) {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return file && file->pMethods ? file : nullptr;
}

}  // namespace

KORSqlite::~KORSqlite() {
    Close();
}

void KORSqlite::Close() noexcept {
    sqlite3_close_v2(connection_);
    connection_ = nullptr;
}

bool KORSqlite::Open(const std::string& path) {
    constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;  // one thread: nothing to keep apart
    const int opened = sqlite3_open_v2(path.c_str(), &connection_, kFlags, nullptr);
    if (opened != SQLITE_OK) {
        Fail(opened);
        return false;
    }
    sqlite3_extended_result_codes(connection_, 1);
    sqlite3_busy_timeout(connection_, kPatience);
    sqlite3_db_config(connection_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    for (const int danger : {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW,
                             SQLITE_DBCONFIG_DQS_DDL, SQLITE_DBCONFIG_DQS_DML}) {
        sqlite3_db_config(connection_, danger, 0, nullptr);
    }
    return Run(kSetUp);
}

bool KORSqlite::Run(const char* sql) {
    if (Failed()) return false;
    const int code = sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) Fail(code);
    return code == SQLITE_OK;
}

std::int64_t KORSqlite::Number(const char* sql) {
    KORSqliteStatement statement(*this, sql);
    return statement.Step() ? statement.Integer(0) : 0;
}

bool KORSqlite::IsReadOnly() const {
    return sqlite3_db_readonly(connection_, "main") != 0;
}

bool KORSqlite::HasMoved() const {
    int moved = 0;
    sqlite3_file_control(connection_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

std::int64_t KORSqlite::FileSize() const {
    sqlite3_int64 size = -1;
    sqlite3_file* file = FileOf(connection_);
    if (!file || file->pMethods->xFileSize(file, &size) != SQLITE_OK) return -1;
    return size;
}

std::optional<KORSqlite::Header> KORSqlite::ReadHeader() const {
    Header header{};
    sqlite3_file* file = FileOf(connection_);
    if (!file || file->pMethods->xRead(file, header.data(), kHeaderSize, 0) != SQLITE_OK) return std::nullopt;
    return header;
}

void KORSqlite::RollBack() noexcept {
    if (connection_ && sqlite3_get_autocommit(connection_) == 0) {
        sqlite3_exec(connection_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

bool KORSqlite::IsBusy() const {
    const int primary = code_ & 0xFF;
    return primary == SQLITE_BUSY || primary == SQLITE_LOCKED;
}

bool KORSqlite::IsDamaged() const {
    const int primary = code_ & 0xFF;
    return primary == SQLITE_NOTADB || primary == SQLITE_CORRUPT;
}

bool KORSqlite::CannotWrite() const {
    const int primary = code_ & 0xFF;
    return primary == SQLITE_READONLY || primary == SQLITE_CANTOPEN || primary == SQLITE_PERM ||
           code_ == SQLITE_IOERR_DELETE;
}

bool KORSqlite::NeedsRollBack() const {
    return code_ == SQLITE_READONLY_ROLLBACK || code_ == SQLITE_READONLY_RECOVERY;
}

KORFileError KORSqlite::Error(std::string message) const {
    return {name_, 0, 0, std::move(message), reason_};
}

void KORSqlite::Fail(int code) {
    if (Failed()) return;
    const int extended = connection_ ? sqlite3_extended_errcode(connection_) : code;
    code_ = (extended & 0xFF) == (code & 0xFF) ? extended : code;
    reason_ = connection_ ? sqlite3_errmsg(connection_) : sqlite3_errstr(code);
    reason_ += " (SQLite " + std::to_string(code_);
    const int system = connection_ ? sqlite3_system_errno(connection_) : 0;
    if (system != 0) reason_ += std::string(", ") + std::strerror(system);
    reason_ += ")";
}
