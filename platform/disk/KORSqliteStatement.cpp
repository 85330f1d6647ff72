#include "platform/disk/KORSqliteStatement.h"

#include <sqlite3.h>

KORSqliteStatement::KORSqliteStatement(KORSqlite& connection, const char* sql) : connection_(connection) {
    if (connection_.Failed()) return;
    const int code = sqlite3_prepare_v2(connection_.connection_, sql, -1, &statement_, nullptr);
    if (code != SQLITE_OK) connection_.Fail(code);
}

KORSqliteStatement::~KORSqliteStatement() {
    sqlite3_finalize(statement_);
}

void KORSqliteStatement::Bind(int parameter, std::int64_t value) {
    if (statement_) sqlite3_bind_int64(statement_, parameter, value);
}

void KORSqliteStatement::Bind(int parameter, std::string_view text) {
    if (!statement_) return;
    const char* const bytes = text.data() ? text.data() : "";  // null would be NULL
    const int code =
        sqlite3_bind_text64(statement_, parameter, bytes, text.size(), SQLITE_STATIC, SQLITE_UTF8);
    if (code != SQLITE_OK) connection_.Fail(code);
}

void KORSqliteStatement::Bind(int parameter, KORBlob blob) {
    if (!statement_) return;
    const char* const bytes = blob.bytes.data() ? blob.bytes.data() : "";
    const int code = sqlite3_bind_blob64(statement_, parameter, bytes, blob.bytes.size(), SQLITE_STATIC);
    if (code != SQLITE_OK) connection_.Fail(code);
}

void KORSqliteStatement::Bind(int parameter, std::nullopt_t) {
    if (statement_) sqlite3_bind_null(statement_, parameter);
}

bool KORSqliteStatement::Step() {
    if (connection_.Failed()) return false;
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) connection_.Fail(code);
    return false;
}

void KORSqliteStatement::Reset() {
    sqlite3_reset(statement_);
}

std::int64_t KORSqliteStatement::Integer(int column) const {
    return sqlite3_column_int64(statement_, column);
}

std::string_view KORSqliteStatement::Bytes(int column) const {
    const void* bytes = sqlite3_column_blob(statement_, column);
    return {static_cast<const char*>(bytes),
            static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

bool KORSqliteStatement::IsNull(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}
