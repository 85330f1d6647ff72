#pragma once

#include <string_view>

#include "platform/disk/KORSqlite.h"

struct sqlite3_stmt;

/// Bytes for a BLOB column: what std::string_view is for a TEXT column.
struct KORBlob {
    std::string_view bytes;
};

/// One prepared statement. A failure is its connection's: Step answers false, and so it does behind the last
/// row.
class KORSqliteStatement {
public:
    KORSqliteStatement(KORSqlite& connection, const char* sql);
    ~KORSqliteStatement();
    KORSqliteStatement(const KORSqliteStatement&) = delete;
    KORSqliteStatement& operator=(const KORSqliteStatement&) = delete;

    /// Runs it to its end with these values for its parameters, and makes it ready for the next time.
    template <class... Values>
    bool Run(const Values&... values) {
        int at = 0;
        (Bind(++at, values), ...);
        while (Step()) {
        }
        Reset();
        return !connection_.Failed();
    }

    // Parameters are numbered from 1. Texts and blobs stay the caller's until the statement has run.
    void Bind(int parameter, std::int64_t value);
    void Bind(int parameter, std::uint64_t value) { Bind(parameter, static_cast<std::int64_t>(value)); }
    void Bind(int parameter, std::uint32_t value) { Bind(parameter, std::int64_t{value}); }
    void Bind(int parameter, std::string_view text);
    void Bind(int parameter, const std::string& text) { Bind(parameter, std::string_view(text)); }
    void Bind(int parameter, KORBlob blob);
    void Bind(int parameter, std::nullopt_t);
    template <class Value>
    void Bind(int parameter, const std::optional<Value>& value) {
        if (value) {
            Bind(parameter, *value);
        } else {
            Bind(parameter, std::nullopt);
        }
    }

    bool Step();  ///< to the next row; false behind the last one and when it failed
    void Reset();

    // The row's columns, numbered from 0. Texts and blobs are good until the next Step; both are bytes as
    // they were stored, also behind a NUL.
    std::int64_t Integer(int column) const;
    std::string_view Bytes(int column) const;
    bool IsNull(int column) const;

private:
    KORSqlite& connection_;
    sqlite3_stmt* statement_ = nullptr;
};
