#include "platform/catalog/KORFileError.h"

std::string KORFileError::Sentence() const {
    return reason.empty() ? message : message + ": " + reason;
}

std::string KORFileError::Text() const {
    if (file.empty()) return Sentence();
    std::string text = file + ":";
    if (line > 0) text += std::to_string(line) + ":";
    if (column > 0) text += std::to_string(column) + ":";
    return text + " " + Sentence();
}
