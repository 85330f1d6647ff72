#include "zelmat/files/UnreadableFile.h"

namespace zelmat {

Finding UnreadableFile(const std::string& path, const KORFileError& error, const char* brokenCode) {
    std::vector<std::string> details;
    if (error.column > 0) details.push_back("column " + std::to_string(error.column));
    const bool broken = error.line > 0;
    return {FindingKind::UNREADABLE,
            {path, error.line},
            broken ? brokenCode : "unreadable",
            error.Sentence(),
            std::move(details)};
}

}  // namespace zelmat
