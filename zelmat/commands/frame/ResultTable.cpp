#include "zelmat/commands/frame/ResultTable.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "zelmat/cards/CsvLine.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"

namespace zelmat {

namespace {

/// Numbers as a reader can use them: none that is not finite, and no 0 with a sign.
std::vector<MaybeNumber> Readable(std::vector<MaybeNumber> numbers) {
    for (MaybeNumber& number : numbers) {
        if (number && !std::isfinite(*number)) number.reset();
        if (number && *number == 0.0) number = 0.0;
    }
    return numbers;
}

std::string Header(const std::string& title, const std::string& unit) {
    return unit.empty() ? title : title + " [" + unit + "]";
}

}  // namespace

double Rounded(double number) {
    return RoundedTo(number, 7);
}

void ResultTable::AddNumbers(std::string name, std::string title, const Shown& shown,
                             const std::vector<MaybeNumber>& numbers) {
    std::vector<MaybeNumber> inUnit;
    for (const MaybeNumber& number : numbers) {
        inUnit.push_back(number ? MaybeNumber(shown(*number)) : std::nullopt);
    }
    columns_.push_back({std::move(name),
                        std::move(title),
                        shown.Unit(),
                        Column::Kind::NUMBERS,
                        Readable(std::move(inUnit)),
                        {}});
}

void ResultTable::AddNumbers(std::string name, std::string title, std::vector<MaybeNumber> numbers) {
    columns_.push_back(
        {std::move(name), std::move(title), {}, Column::Kind::NUMBERS, Readable(std::move(numbers)), {}});
}

void ResultTable::AddMixed(std::string name, std::string title, std::vector<MaybeNumber> numbers) {
    columns_.push_back(
        {std::move(name), std::move(title), {}, Column::Kind::MIXED, Readable(std::move(numbers)), {}});
}

void ResultTable::AddWords(std::string name, std::string title, std::vector<std::string> words) {
    columns_.push_back({std::move(name), std::move(title), {}, Column::Kind::WORDS, {}, std::move(words)});
}

std::size_t ResultTable::Rows() const {
    if (columns_.empty()) return 0;
    return columns_.front().kind == Column::Kind::WORDS ? columns_.front().texts.size()
                                                        : columns_.front().numbers.size();
}

std::vector<std::string> ResultTable::Column::Cells() const {
    if (kind == Kind::WORDS) return texts;
    std::vector<double> known;
    for (const MaybeNumber& number : numbers) {
        if (number) known.push_back(Rounded(*number));
    }
    auto column = NumberColumn(known);
    if (kind == Kind::MIXED) std::transform(known.begin(), known.end(), column.begin(), NumberText);
    std::vector<std::string> cells;
    auto next = column.begin();
    for (const MaybeNumber& number : numbers) cells.push_back(number ? *next++ : "-");
    return cells;
}

void ResultTable::Print(std::ostream& out) const {
    if (!title_.empty()) out << title_ << '\n';
    std::vector<std::string> headers;
    std::vector<std::vector<std::string>> cells;
    for (const Column& column : columns_) {
        headers.push_back(Header(column.title, column.unit == "-" ? "" : column.unit));
        cells.push_back(column.Cells());
    }
    TablePrinter printer(headers);
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        if (columns_[at].kind == Column::Kind::WORDS) printer.SetLeft(at);
    }
    for (std::size_t row = 0; row < Rows(); ++row) {
        std::vector<std::string> line;
        for (const auto& column : cells) line.push_back(column[row]);
        printer.AddRow(line);
    }
    printer.Print(out);
}

void ResultTable::PrintCsv(std::ostream& out) const {
    out << "# " << name_ << '\n';
    const char* separator = "";
    for (const Column& column : columns_) {
        out << std::exchange(separator, ",") << Header(column.name, column.unit);
    }
    out << '\n';
    for (std::size_t row = 0; row < Rows(); ++row) {
        separator = "";
        for (const Column& column : columns_) {
            out << std::exchange(separator, ",");
            if (column.kind == Column::Kind::WORDS) {
                out << CsvCell(Printable(column.texts[row]), ',');
            } else if (column.numbers[row]) {
                out << NumberText(*column.numbers[row]);
            }
        }
        out << '\n';
    }
}

nlohmann::ordered_json ResultTable::Json() const {
    using Json = nlohmann::ordered_json;
    Json columns = Json::array();
    for (const Column& column : columns_) {
        Json told = {{"name", column.name}};
        if (!column.unit.empty()) told["unit"] = column.unit;
        columns.push_back(std::move(told));
    }
    Json rows = Json::array();
    for (std::size_t row = 0; row < Rows(); ++row) {
        Json cells = Json::array();
        for (const Column& column : columns_) {
            if (column.kind == Column::Kind::WORDS) {
                cells.push_back(column.texts[row]);
            } else {
                cells.push_back(column.numbers[row] ? Json(*column.numbers[row]) : Json());
            }
        }
        rows.push_back(std::move(cells));
    }
    return {{"table", name_}, {"columns", std::move(columns)}, {"rows", std::move(rows)}};
}

}  // namespace zelmat
