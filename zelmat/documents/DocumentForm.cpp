#include "zelmat/documents/DocumentForm.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string_view>

#include "zelmat/files/ReadText.h"

namespace zelmat {

namespace {

constexpr std::string_view kBeginning("SQLite format 3\0", 16);

}  // namespace

bool IsDocumentFile(const std::string& path) {
    std::error_code none;
    // A pipe would lose what is read here.
    if (path == "-" || !std::filesystem::is_regular_file(path, none)) return false;
    std::array<char, kBeginning.size()> bytes{};
    std::ifstream file(path, std::ios::binary);
    file.read(bytes.data(), bytes.size());
    return file && std::string_view(bytes.data(), bytes.size()) == kBeginning;
}

bool IsDocumentName(const std::string& path) {
    return path.ends_with(".zeldoc");
}

bool IsTextDocument(const std::string& text) {
    // Most texts are told without reading them as JSON.
    if (text.find("\"features\"") == std::string::npos) return false;
    const auto json = nlohmann::json::parse(text, nullptr, false);
    return json.is_object() && json.contains("format") && json.contains("features");
}

bool IsTextDocumentFile(const std::string& path) {
    std::error_code none;
    if (path == "-" || IsDocumentFile(path) || !std::filesystem::is_regular_file(path, none)) return false;
    Findings unread;
    const auto text = ReadText(path, unread);
    return text && IsTextDocument(*text);
}

}  // namespace zelmat
