#include "zelmat/text/TablePrinter.h"

#include <algorithm>

#include "zelmat/text/Printable.h"

namespace zelmat {

std::size_t TextWidth(const std::string& text) {
    // Every byte of UTF-8 begins a character, but for those of the form 10xxxxxx.
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0u) != 0x80u;
    }));
}

void TablePrinter::AddRow(const std::vector<std::string>& cells) {
    auto& row = rows_.emplace_back();
    row.reserve(cells.size());
    for (const std::string& cell : cells) row.push_back(Printable(cell));
}

void TablePrinter::PrintCells(std::ostream& out, const std::vector<std::string>& cells,
                              const std::vector<std::size_t>& widths) const {
    std::string line;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const std::string& cell = cells[column];
        const std::string padding(widths[column] - TextWidth(cell), ' ');
        line += "  " + (left_[column] ? cell + padding : padding + cell);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

void TablePrinter::Print(std::ostream& out) const {
    std::vector<std::size_t> widths;
    for (const std::string& header : headers_) widths.push_back(TextWidth(header));
    for (const auto& row : rows_) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], TextWidth(row[column]));
        }
    }
    PrintCells(out, headers_, widths);
    for (const auto& row : rows_) PrintCells(out, row, widths);
}

}  // namespace zelmat
