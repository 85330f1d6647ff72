#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelmat {

/// The sign that sets the columns of a table apart: the first tab, ";" or "," of its header that stands
/// outside quotes and brackets. A table of one column has none, and "," stands in.
char CsvSeparator(std::string_view header);

/// The cells of a line, without blanks around them; a cell in double quotes may hold the separator, and a
/// quote as two. Nothing when a quote is not closed.
std::optional<std::vector<std::string>> CsvCells(std::string_view line, char separator);

/// A cell as it may stand in a line.
std::string CsvCell(const std::string& text, char separator);

/// Without the comment that a "#" outside quotes begins.
std::string_view WithoutComment(std::string_view line);

}  // namespace zelmat
