#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace zelmat {

/// A table as an analyst reads it: one header line that says each column's quantity and unit, below it the
/// rows. Numbers stand flush right, so do their headers; columns of words can be set flush left.
class TablePrinter {
public:
    explicit TablePrinter(std::vector<std::string> headers)
        : left_(headers.size(), false), headers_(std::move(headers)) {}

    void SetLeft(std::size_t column) { left_[column] = true; }

    /// As many cells as there are headers. They are shown as Printable shows them, wherever they come from.
    void AddRow(const std::vector<std::string>& cells);

    void Print(std::ostream& out) const;

private:
    void PrintCells(std::ostream& out, const std::vector<std::string>& cells,
                    const std::vector<std::size_t>& widths) const;

    std::vector<bool> left_;
    std::vector<std::string> headers_;
    std::vector<std::vector<std::string>> rows_;
};

/// How many columns of a terminal UTF-8 text takes, at one column a character.
std::size_t TextWidth(const std::string& text);

}  // namespace zelmat
