#pragma once

#include <string>

namespace zelmat {

/// Puts a text into a file, all of it or nothing: it is written to a new file beside it, which then takes its
/// place. False, and the reason, when that fails; what was there before is still there then.
[[nodiscard]] bool WriteWholeFile(const std::string& path, const std::string& text, std::string& reason);

}  // namespace zelmat
