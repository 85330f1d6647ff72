#include "zelmat/exchange/calculix/CardRows.h"

#include <algorithm>

#include "zelmat/exchange/calculix/CalculixCards.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

/// Where hardening is for every temperature, and its table has the column all the same.
constexpr double kRoomTemperature = 293.15;

bool IsWhole(const DeckNumbers& row) {
    return std::all_of(row.numbers.begin(), row.numbers.end(),
                       [](const std::optional<double>& number) { return number.has_value(); });
}

class TableOfRows {
public:
    TableOfRows(const std::string& path, const DeckKeyword& card, std::size_t width, const DeckUnits& units,
                Findings& findings)
        : path_(path), card_(card), width_(width), units_(units), findings_(findings) {}

    bool Fill(Block& block, const NumberRows& rows) {
        const bool over = std::any_of(rows.begin(), rows.end(),
                                      [&](const DeckNumbers& row) { return row.numbers.size() > width_; });
        Table table = EmptyTable(block.kind->tables.front(), block.values, over);
        std::vector<std::vector<double>> columns(table.columns.size());
        std::vector<int> lines;
        for (const DeckNumbers& row : rows) {
            if (!IsRow(row, over)) return false;
            if (block.kind->name != "hyperelastic") TellMissing(row);
            lines.push_back(row.line);
            for (std::size_t at = 0; at < columns.size(); ++at) {
                const bool given = at < row.numbers.size() && row.numbers[at];
                columns[at].push_back(given ? *row.numbers[at] : 0.0);
            }
        }
        for (std::size_t at = 0; at < columns.size(); ++at) {
            const bool invented = at == width_ && !over;
            if (invented) {
                table.columns[at].values.assign(rows.size(), kRoomTemperature);
            } else if (!SetNumbers(table.columns[at], std::move(columns[at]))) {
                return Error(card_.line, "too-large",
                             "a number of " + card_.keyword + " is too large for the unit");
            }
        }
        table.origin = Origin([lines = std::move(lines), whole = card_.line](std::size_t row) {
            return row < lines.size() ? lines[row] : whole;
        });
        block.tables.push_back(std::move(table));
        return true;
    }

private:
    bool IsRow(const DeckNumbers& row, bool over) {
        if (row.numbers.empty() || row.numbers.size() > width_ + 1) {
            return Error(row.line, "wrong-row",
                         card_.keyword + " takes " + CountText(width_, "number") +
                             " and a temperature on a line, not " + std::to_string(row.numbers.size()));
        }
        if (over && row.numbers.size() <= width_) {
            return Error(row.line, "no-temperature",
                         "this row has no temperature, others of " + card_.keyword + " have");
        }
        return true;
    }

    void TellMissing(const DeckNumbers& row) {
        if (row.numbers.size() >= width_ && IsWhole(row)) return;
        findings_.Add({FindingKind::WARNING,
                       {ShownPath(path_), row.line},
                       "missing-number",
                       "a number of " + card_.keyword + " is missing: it is 0, as in the solver",
                       {}});
    }

    /// The deck's numbers and, where that is another one than is stored, their unit.
    bool SetNumbers(Column& column, std::vector<double> numbers) const {
        column.values = numbers;
        const Quantity* quantity = QuantityOf(column.kind.name, column.kind.unit);
        if (!quantity) return true;
        const Unit& unit = units_.For(*quantity);
        if (UnitConversion::ToStored(unit, *quantity).Convert(column.values)) return false;
        if (unit.Spelling() != column.kind.unit) {
            column.written = WrittenNumbers{unit.Spelling(), std::move(numbers)};
        }
        return true;
    }

    bool Error(int line, const char* code, const std::string& text) {
        findings_.Add({FindingKind::ERROR, {ShownPath(path_), line}, code, text, {}});
        return false;
    }

    const std::string& path_;
    const DeckKeyword& card_;
    std::size_t width_;
    const DeckUnits& units_;
    Findings& findings_;
};

}  // namespace

NumberRows JoinedRows(const NumberRows& lines, std::size_t width) {
    if (width <= kCalculixNumbers) return lines;
    NumberRows rows;
    bool open = false;
    for (const DeckNumbers& line : lines) {
        if (open) {
            rows.back().numbers.resize(kCalculixNumbers);  // blanks at a line's end count
            rows.back().numbers.insert(rows.back().numbers.end(), line.numbers.begin(), line.numbers.end());
        } else {
            rows.push_back(line);
        }
        open = !open;
    }
    return rows;
}

bool FillTable(Block& block, const std::string& path, const DeckKeyword& card, const NumberRows& rows,
               std::size_t width, const DeckUnits& units, Findings& findings) {
    return TableOfRows(path, card, width, units, findings).Fill(block, rows);
}

}  // namespace zelmat
