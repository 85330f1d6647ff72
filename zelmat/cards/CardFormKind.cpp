#include "zelmat/cards/CardFormKind.h"

#include <string>

#include "zelmat/cards/CsvLine.h"
#include "zelmat/cards/PropertyNames.h"
#include "zelmat/cards/TableByColumns.h"
#include "zelmat/cards/TextLines.h"
#include "zelmat/materials/BlockKind.h"
#include "zelmat/quantities/PlainUnitText.h"

namespace zelmat {

namespace {

bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}

bool IsLower(char c) {
    return c >= 'a' && c <= 'z';
}

/// Sections of an ini file: those of FCMat begin with a capital and are no blocks.
CardFormKind FormOfSection(std::string_view line) {
    const auto name = line.substr(1, line.find_first_of(".]") - 1);
    if (FindBlockKind(BlockName(WithoutBlanksAround(name)))) return CardFormKind::CSV;
    const char first = line.size() > 1 ? line[1] : ' ';
    return IsUpper(first) ? CardFormKind::FCMAT_INI : IsLower(first) ? CardFormKind::CSV : CardFormKind::JSON;
}

/// A key of a YAML map, which no line of the other forms looks like: "General:", "Models: {}", "'A b': 1".
bool IsYamlKey(std::string_view line) {
    const auto colon = line.find(':');
    std::string_view key = line.substr(0, colon);
    if (colon == std::string_view::npos || key.find_first_of(",;[]{}=\t") != std::string_view::npos)
        return false;
    const bool ends = colon + 1 == line.size() || line[colon + 1] == ' ' || line[colon + 1] == '\t';
    const bool quoted =
        key.size() > 2 && (key.front() == '"' || key.front() == '\'') && key.back() == key.front();
    if (quoted) key.remove_prefix(1);
    return ends && !key.empty() && (IsUpper(key.front()) || IsLower(key.front()));
}

bool IsCsvLine(std::string_view line) {
    if (line.find('=') != std::string_view::npos) return true;
    const auto cells = CsvCells(line, CsvSeparator(line));
    if (!cells) return true;  // an open quote, which its reader tells
    if (cells->size() > 1) return true;
    const ColumnHeader header = ReadColumnHeader(cells->front());
    return header.hasUnit || FindTableByColumns({header.name}).has_value();
}

}  // namespace

CardFormKind CardFormOf(std::string_view text) {
    for (TextLines lines(text); lines.Next();) {
        const std::string_view line = WithoutBlanksAround(lines.Line());
        if (line.empty() || line.front() == '#') continue;
        if (line.front() == ';') return CardFormKind::FCMAT_INI;
        if (line.front() == '{') return CardFormKind::JSON;
        if (line.front() == '[') return FormOfSection(line);
        if (line.starts_with("---") || line.starts_with("%YAML") || IsYamlKey(line))
            return CardFormKind::FCMAT_YAML;
        constexpr std::size_t kLongestHeader = 65536;  // so that no byte salad takes long
        if (line.size() > kLongestHeader) return CardFormKind::JSON;
        return IsCsvLine(line) ? CardFormKind::CSV : CardFormKind::JSON;
    }
    return CardFormKind::JSON;
}

}  // namespace zelmat
