#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace zelmat {

/// A table as an analyst reads it: one header line that says each column's quantity and unit, below it the
/// rows, every column flush right.
class TablePrinter {
public:
    explicit TablePrinter(std::vector<std::string> headers) : headers_(std::move(headers)) {}

    /// As many cells as there are headers.
    void AddRow(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

    void Print(std::ostream& out) const;

private:
    std::vector<std::string> headers_;
    std::vector<std::vector<std::string>> rows_;
};

/// How many columns of a terminal UTF-8 text takes, at one column a character.
std::size_t TextWidth(const std::string& text);

}  // namespace zelmat
