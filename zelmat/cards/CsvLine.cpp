#include "zelmat/cards/CsvLine.h"

#include "zelmat/quantities/PlainUnitText.h"

namespace zelmat {

char CsvSeparator(std::string_view header) {
    bool quoted = false;
    int brackets = 0;
    for (const char c : header) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == '[') ++brackets;
        if (c == ']') --brackets;
        if (brackets == 0 && (c == '\t' || c == ';' || c == ',')) return c;
    }
    return ',';
}

std::optional<std::vector<std::string>> CsvCells(std::string_view line, char separator) {
    std::vector<std::string> cells;
    for (bool more = true; more;) {
        while (!line.empty() && (line.front() == ' ' || (line.front() == '\t' && separator != '\t'))) {
            line.remove_prefix(1);
        }
        std::string cell;
        if (line.starts_with('"')) {
            std::size_t at = 1;
            for (;; ++at) {
                if (at >= line.size()) return std::nullopt;
                if (line[at] != '"') {
                    cell += line[at];
                } else if (at + 1 < line.size() && line[at + 1] == '"') {
                    cell += line[at++];
                } else {
                    break;
                }
            }
            line.remove_prefix(at + 1);
        }
        const std::size_t end = line.find(separator);
        cell += WithoutBlanksAround(line.substr(0, end));
        cells.push_back(std::move(cell));
        more = end != std::string_view::npos;
        line.remove_prefix(more ? end + 1 : line.size());
    }
    return cells;
}

std::string CsvCell(const std::string& text, char separator) {
    if (text.find(separator) == std::string::npos && text.find_first_of("\"#") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + '"';
}

std::string_view WithoutComment(std::string_view line) {
    bool quoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '"') quoted = !quoted;
        if (line[at] == '#' && !quoted) return line.substr(0, at);
    }
    return line;
}

}  // namespace zelmat
