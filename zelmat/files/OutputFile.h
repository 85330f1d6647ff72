#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A file that was written.
struct WrittenFile {
    std::string path;    ///< as it was asked for
    std::string backup;  ///< where what stood there before is kept; empty when it is not
};

/// Puts a text into a file, all of it or nothing. Nothing, and a finding that names the file and the reason,
/// when that fails: what was there before is there still.
///
/// - The path `-` is standard output.
/// - A symbolic link is followed; the target of a dangling one is made.
/// - A regular file is replaced by a new one, written and synced beside it, with its mode and owner. Where
/// that would
///   lose its owner or one of its names (hard links), or an attribute of the file system, it is written in
///   place, and a copy lies beside it as NAME.zelmat-backup until that has succeeded.
/// - Pipes and devices are written to, never replaced. A folder is refused, and so is a file whose mode lets
/// nobody
///   write, whoever asks.
/// - When the file is one of `inputs`, what was read stays beside it as NAME.bak (NAME.bak.2, ...).
/// - Signals that end the program wait until the file is whole. After a kill the file is whole, and the next
/// write to
///   it removes what the killed one left.
[[nodiscard]] std::optional<WrittenFile> WriteOutputFile(const std::string& path, std::string_view text,
                                                         const std::vector<std::string>& inputs,
                                                         Findings& findings);

}  // namespace zelmat
