#include "platform/disk/KORDiskSchema.h"

#include <cstring>
#include <vector>

#include "platform/disk/KORSqliteStatement.h"

namespace {

struct Table {
    const char* name;
    const char* sql;  ///< as SQLite keeps it, letter for letter
};

constexpr Table kTables[] = {
    {"document",
     "CREATE TABLE document (id INTEGER PRIMARY KEY, last_feature INTEGER NOT NULL, last_step INTEGER NOT "
     "NULL, "
     "done INTEGER NOT NULL, most_steps INTEGER NOT NULL, most_bytes INTEGER NOT NULL, pressure_unit TEXT "
     "NOT NULL) "
     "STRICT"},
    {"names", "CREATE TABLE names (id INTEGER PRIMARY KEY, text TEXT NOT NULL) STRICT"},
    {"catalogs", "CREATE TABLE catalogs (id INTEGER PRIMARY KEY, name TEXT NOT NULL) STRICT"},
    {"containers", "CREATE TABLE containers (id INTEGER PRIMARY KEY, name TEXT NOT NULL) STRICT"},
    {"features",
     "CREATE TABLE features (number INTEGER PRIMARY KEY, type INTEGER NOT NULL, container INTEGER, name "
     "TEXT, "
     "alias TEXT, attributes BLOB NOT NULL) STRICT"},
    {"steps",
     "CREATE TABLE steps (number INTEGER PRIMARY KEY, name TEXT NOT NULL, time TEXT NOT NULL, user TEXT NOT "
     "NULL, "
     "command TEXT NOT NULL, bytes INTEGER NOT NULL, entries BLOB NOT NULL) STRICT"},
};

constexpr unsigned char kMagic[] = "SQLite format 3";  // with the NUL behind it

std::uint32_t BigEndian(const KORSqlite::Header& header, std::size_t at) {
    return static_cast<std::uint32_t>(header[at]) << 24 | static_cast<std::uint32_t>(header[at + 1]) << 16 |
           static_cast<std::uint32_t>(header[at + 2]) << 8 | header[at + 3];
}

std::int64_t PageSizeOf(const KORSqlite::Header& header) {
    const int size = header[16] << 8 | header[17];
    return size == 1 ? 65536 : size;
}

}  // namespace

std::string KORDiskSchema::ProblemOf(const KORSqlite::Header& header, std::size_t size) {
    if (size == 0) return "is empty";
    const bool begins = std::memcmp(header.data(), kMagic, std::min(size, sizeof kMagic)) == 0;
    if (begins && size < header.size()) return "is cut short: not even its header is whole";
    if (!begins) return "is no document";
    if (BigEndian(header, 68) != kApplicationId) return "is another program's SQLite file, no document";
    const std::int64_t page = PageSizeOf(header);
    const bool plain = header[18] == 1 && header[19] == 1 && header[20] == 0 && BigEndian(header, 56) == 1 &&
                       BigEndian(header, 52) == 0 && page >= 512 && (page & (page - 1)) == 0;
    if (!plain) return "is damaged: its header is not a document's";
    if (FormatOf(header) < 1) return "is damaged: its header tells no format";
    return {};
}

int KORDiskSchema::FormatOf(const KORSqlite::Header& header) {
    return static_cast<int>(BigEndian(header, 60));
}

std::int64_t KORDiskSchema::WholeSize(const KORSqlite::Header& header) {
    return PageSizeOf(header) * BigEndian(header, 28);
}

bool KORDiskSchema::Make(KORSqlite& file) {
    for (const Table& table : kTables) file.Run(table.sql);
    file.Run(("PRAGMA application_id=" + std::to_string(kApplicationId)).c_str());
    return file.Run(("PRAGMA user_version=" + std::to_string(kFormat)).c_str());
}

bool KORDiskSchema::IsExact(KORSqlite& file) {
    KORSqliteStatement rows(file, "SELECT type, name, tbl_name, sql FROM sqlite_schema ORDER BY rowid");
    std::size_t found = 0;
    while (rows.Step()) {
        if (found == std::size(kTables)) return false;
        const Table& table = kTables[found++];
        if (rows.Bytes(0) != "table" || rows.Bytes(1) != table.name || rows.Bytes(2) != table.name ||
            rows.Bytes(3) != table.sql) {
            return false;
        }
    }
    return !file.Failed() && found == std::size(kTables);
}
