#pragma once

#include <string>

#include "platform/catalog/KORJsonFile.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// The finding for a file that could not be read: "unreadable" when it is not there or not to be opened, else
/// `brokenCode` with the place where it breaks.
Finding UnreadableFile(const std::string& path, const KORFileError& error, const char* brokenCode);

}  // namespace zelmat
