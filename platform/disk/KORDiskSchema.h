#pragma once

#include "platform/disk/KORSqlite.h"

/// The form of a document's file: what its header says, and which tables it has. docs/document.md describes
/// both.
namespace KORDiskSchema {

inline constexpr std::uint32_t kApplicationId = 0x4B4F5244;  ///< "KORD", in the file's header
inline constexpr int kFormat = 1;  ///< the newest format this release knows, PRAGMA user_version

/// What is wrong with the header of a file, as the rest of a sentence ("is ..."); empty when it is a
/// document's. `size` is how many bytes of the header there are.
std::string ProblemOf(const KORSqlite::Header& header, std::size_t size);

int FormatOf(const KORSqlite::Header& header);

/// The size in bytes that a file with this header has when it is whole.
std::int64_t WholeSize(const KORSqlite::Header& header);

/// Makes the tables of an empty document, in the transaction that stands open.
bool Make(KORSqlite& file);

/// Whether a file has exactly the tables of this format, and nothing else. False also when it failed.
bool IsExact(KORSqlite& file);

}  // namespace KORDiskSchema
