#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Shown.h"

namespace zelmat {

/// A number that a calculation gave, or that it could not give.
using MaybeNumber = std::optional<double>;

/// A table that a command computed, column by column: numbers in the chosen units, or words. Text shows seven
/// digits of a number, JSON and CSV all of them.
class ResultTable {
public:
    /// `name`: for programs, "response"; `title`: for readers, may be empty.
    ResultTable(std::string name, std::string title) : name_(std::move(name)), title_(std::move(title)) {}

    /// All columns are equally long. `numbers` are in the stored unit of the quantity.
    void AddNumbers(std::string name, std::string title, const Shown& shown,
                    const std::vector<MaybeNumber>& numbers);
    /// Pure numbers.
    void AddNumbers(std::string name, std::string title, std::vector<MaybeNumber> numbers);
    /// Numbers of different quantities, whose units stand in another column.
    void AddMixed(std::string name, std::string title, std::vector<MaybeNumber> numbers);
    void AddWords(std::string name, std::string title, std::vector<std::string> words);

    const std::string& Name() const { return name_; }
    std::size_t Rows() const;

    void Print(std::ostream& out) const;
    void PrintCsv(std::ostream& out) const;
    nlohmann::ordered_json Json() const;

private:
    struct Column {
        std::string name, title;
        std::string unit;  ///< empty for words and for numbers without one
        enum class Kind { NUMBERS, MIXED, WORDS } kind = Kind::NUMBERS;
        std::vector<MaybeNumber> numbers;
        std::vector<std::string> texts;  ///< of words

        std::vector<std::string> Cells() const;
    };

    std::string name_, title_;
    std::vector<Column> columns_;
};

/// A number with seven digits, which are those that a reader looks at.
double Rounded(double number);

}  // namespace zelmat
