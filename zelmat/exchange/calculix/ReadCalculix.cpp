#include "zelmat/exchange/calculix/ReadCalculix.h"

#include <algorithm>
#include <array>
#include <set>

#include "zelmat/exchange/DeckText.h"
#include "zelmat/exchange/calculix/CalculixCards.h"
#include "zelmat/exchange/calculix/DeckCards.h"
#include "zelmat/exchange/calculix/DeckPlies.h"
#include "zelmat/exchange/calculix/MaterialKeywords.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

using NumberRows = std::vector<DeckNumbers>;

/// Where hardening is for every temperature, and its table has the column all the same.
constexpr double kRoomTemperature = 293.15;

/// Decks have some dozens of different keywords; a file of other bytes may have any number.
constexpr std::size_t kMostSkipped = 200;

/// Words behind a material card that change what its columns are.
bool IsIsotropic(const DeckKeyword& card) {
    const std::string* type = card.Find("TYPE");
    return !type || type->empty() || *type == "ISO" || *type == "ISOTROPIC";
}

class CalculixReader {
public:
    CalculixReader(const std::string& path, const DeckUnits& units, Findings& findings)
        : path_(path), units_(units), findings_(findings), cards_(path, findings) {}

    std::vector<Material> Read() {
        while (const auto card = cards_.NextKeyword()) {
            if (!Take(*card)) return {};
        }
        TellSkipped();
        if (findings_.HasErrors()) return {};
        if (materials_.empty()) Error({}, "no-materials", "there is no *MATERIAL card in it");
        return std::move(materials_);
    }

private:
    using Reader = bool (CalculixReader::*)(const DeckKeyword& card, const NumberRows& rows);

    static Reader ReaderOf(const std::string& keyword) {
        static const std::map<std::string, Reader> readers = {
            {"*ELASTIC", &CalculixReader::Elastic},
            {"*PLASTIC", &CalculixReader::Plastic},
            {"*DENSITY", &CalculixReader::Density},
            {"*EXPANSION", &CalculixReader::Expansion},
            {"*CONDUCTIVITY", &CalculixReader::Conductivity},
            {"*SPECIFICHEAT", &CalculixReader::SpecificHeat},
            {"*HYPERELASTIC", &CalculixReader::Hyperelastic},
            {"*USERMATERIAL", &CalculixReader::UserMaterial},
            {"*DEPVAR", &CalculixReader::StateVariables},
        };
        const auto found = readers.find(keyword);
        return found == readers.end() ? nullptr : found->second;
    }

    bool Take(const DeckKeyword& card) {
        if (card.keyword == "*MATERIAL") return Begin(card);
        const Reader reader = ReaderOf(card.keyword);
        if (!reader) {
            Skip(card);
            return true;
        }
        if (materials_.empty()) {
            return Error(card, "no-material", card.keyword + " stands before any *MATERIAL card");
        }
        const auto rows = cards_.Numbers();
        if (!rows) return false;
        if (rows->empty()) return Error(card, "no-data", card.keyword + " has no data line");
        return (this->*reader)(card, *rows);
    }

    bool Begin(const DeckKeyword& card) {
        if (card.name.empty()) return Error(card, "no-name", "*MATERIAL has no NAME");
        if (!names_.insert(InCapitals(card.name)).second) {
            Warn(card, "name-twice", QuotedText(card.name) + " is the name of two materials");
        }
        materials_.push_back({.file = ShownPath(path_), .name = card.name});
        materials_.back().notes.emplace_back(
            "from a CalculiX deck, which names no units; they were given when it was read");
        return true;
    }

    void Skip(const DeckKeyword& card) {
        if (IsMaterialKeyword(card.keyword) && !materials_.empty()) {
            Lost(card, "a material has no place for it");
        } else if (card.keyword == "*SHELLSECTION" && card.Find("COMPOSITE") && !card.set.empty()) {
            findings_.Add({FindingKind::NOTE,
                           {ShownPath(path_), card.line},
                           "composite-section",
                           "a composite shell section of " + QuotedText(card.set),
                           {"import --layup " + card.set + " makes a layup card of it"}});
        } else if (card.keyword == "*INCLUDE") {
            Warn(card, "not-included", "*INCLUDE is not followed: import that file by itself");
        } else if (skipped_.size() < kMostSkipped || skipped_.count(card.keyword) > 0) {
            auto& [line, count] = skipped_[card.keyword];
            if (count++ == 0) line = card.line;
        }
    }

    void TellSkipped() {
        for (const auto& [keyword, where] : skipped_) {
            findings_.Add({FindingKind::NOTE,
                           {ShownPath(path_), where.first},
                           "skipped-keyword",
                           QuotedText(keyword) + " describes no material and is skipped",
                           {CountText(where.second, "time")}});
        }
    }

    bool Error(const DeckKeyword& card, const char* code, const std::string& text) {
        return Error(card.line, code, text);
    }
    bool Error(int line, const char* code, const std::string& text) {
        findings_.Add({FindingKind::ERROR, {ShownPath(path_), line}, code, text, {}});
        return false;
    }
    void Warn(const DeckKeyword& card, const char* code, const std::string& text) {
        findings_.Add({FindingKind::WARNING, {ShownPath(path_), card.line}, code, text, {}});
    }
    bool Lost(const DeckKeyword& card, const std::string& why) {
        Warn(card, "not-imported", card.keyword + ": " + why);
        return true;
    }

    /// A block of the material that is being read; a second card of its kind is told and replaces the first.
    Block* NewBlock(const DeckKeyword& card, const char* name) {
        Material& material = materials_.back();
        const BlockKind* kind = FindBlockKind(name);
        auto& blocks = kind->alternatives ? material.fits : material.blocks;
        const auto before = std::find_if(blocks.begin(), blocks.end(),
                                         [&](const Block& block) { return block.kind == kind; });
        if (before != blocks.end()) {
            Warn(card, "card-twice", card.keyword + " stands twice in a material: the last one counts");
            blocks.erase(before);
        }
        // In the order of the kinds, as in any material.
        const auto place =
            std::find_if(blocks.begin(), blocks.end(), [&](const Block& block) { return block.kind > kind; });
        Block block{.kind = kind};
        const int line = card.line;
        block.origin = Origin([line](std::size_t) { return line; });
        return &*blocks.insert(place, std::move(block));
    }

    /// Fills the block's only table: `width` numbers a row and then, perhaps, a temperature.
    bool Fill(Block& block, const DeckKeyword& card, const NumberRows& rows, std::size_t width) {
        const bool over = std::any_of(rows.begin(), rows.end(),
                                      [&](const DeckNumbers& row) { return row.numbers.size() > width; });
        Table table = EmptyTable(block.kind->tables.front(), block.values, over);
        std::vector<std::vector<double>> columns(table.columns.size());
        std::vector<int> lines;
        for (const DeckNumbers& row : rows) {
            if (row.numbers.empty() || row.numbers.size() > width + 1) {
                return Error(row.line, "wrong-row",
                             card.keyword + " takes " + CountText(width, "number") +
                                 " and a temperature on a line, not " + std::to_string(row.numbers.size()));
            }
            if (over && row.numbers.size() <= width) {
                return Error(row.line, "no-temperature",
                             "this row has no temperature, others of " + card.keyword + " have");
            }
            lines.push_back(row.line);
            TellMissing(block, card, row, width);
            for (std::size_t at = 0; at < columns.size(); ++at) {
                const bool given = at < row.numbers.size() && row.numbers[at];
                columns[at].push_back(given ? *row.numbers[at] : 0.0);
            }
        }
        for (std::size_t at = 0; at < columns.size(); ++at) {
            const bool invented = at == width && !over;
            if (invented) {
                table.columns[at].values.assign(rows.size(), kRoomTemperature);
            } else if (!SetNumbers(table.columns[at], std::move(columns[at]))) {
                return Error(card, "too-large", "a number of " + card.keyword + " is too large for the unit");
            }
        }
        table.origin = Origin([lines = std::move(lines), whole = card.line](std::size_t row) {
            return row < lines.size() ? lines[row] : whole;
        });
        block.tables.push_back(std::move(table));
        return true;
    }

    /// Compressibilities may be left out.
    void TellMissing(const Block& block, const DeckKeyword& card, const DeckNumbers& row, std::size_t width) {
        const bool whole =
            row.numbers.size() >= width &&
            std::all_of(row.numbers.begin(), row.numbers.end(),
                        [](const std::optional<double>& number) { return number.has_value(); });
        if (whole || block.kind->name == "hyperelastic") return;
        findings_.Add({FindingKind::WARNING,
                       {ShownPath(path_), row.line},
                       "missing-number",
                       "a number of " + card.keyword + " is missing: it is 0, as in the solver",
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

    bool Table1(const DeckKeyword& card, const NumberRows& rows, const char* block) {
        if (!IsIsotropic(card)) return Lost(card, "TYPE=" + *card.Find("TYPE") + " has directions");
        return Fill(*NewBlock(card, block), card, rows, 1);
    }

    bool Density(const DeckKeyword& card, const NumberRows& rows) { return Table1(card, rows, "density"); }
    bool Conductivity(const DeckKeyword& card, const NumberRows& rows) {
        return Table1(card, rows, "conductivity");
    }
    bool SpecificHeat(const DeckKeyword& card, const NumberRows& rows) {
        return Table1(card, rows, "specific_heat");
    }

    bool Elastic(const DeckKeyword& card, const NumberRows& rows) {
        if (IsIsotropic(card)) return Fill(*NewBlock(card, "elastic"), card, rows, 2);
        const std::string& type = *card.Find("TYPE");
        const bool stiffness = type == "ORTHO" || type == "ORTHOTROPIC";
        if (!stiffness && type != "ENGINEERINGCONSTANTS") return Lost(card, "TYPE=" + type + " has no place");
        const auto row = OnlyRow(card, Joined(rows, 10), 9);
        if (!row) return !findings_.HasErrors();
        const auto constants = stiffness ? EngineeringConstants(*row) : row;
        if (!constants) return Error(card, "no-stiffness", "these constants are no stiffness of a material");
        if (stiffness) {
            findings_.Add({FindingKind::NOTE,
                           {ShownPath(path_), card.line},
                           "changed-on-card",
                           "TYPE=" + type + " becomes engineering constants",
                           {}});
        }
        constexpr std::array<const char*, 9> kNames = {"E1",   "E2",  "E3",  "nu12", "nu13",
                                                       "nu23", "G12", "G13", "G23"};
        for (std::size_t at = 0; at < kNames.size(); ++at) KeepConstant(card, kNames[at], (*constants)[at]);
        return true;
    }

    /// The numbers of a card that knows one row; nothing, and a finding, for another one.
    std::optional<std::vector<double>> OnlyRow(const DeckKeyword& card, const NumberRows& rows,
                                               std::size_t width) {
        const auto& numbers = rows.front().numbers;
        const bool whole =
            numbers.size() >= width && numbers.size() <= width + 1 &&
            std::all_of(numbers.begin(), numbers.end(),
                        [](const std::optional<double>& number) { return number.has_value(); });
        if (!whole) {
            Error(rows.front().line, "wrong-row",
                  card.keyword + ", TYPE=" + *card.Find("TYPE") + " takes " + CountText(width, "number"));
            return std::nullopt;
        }
        if (rows.size() > 1) {
            Lost(card, "constants with directions over temperature");
            return std::nullopt;
        }
        std::vector<double> row;
        for (std::size_t at = 0; at < width; ++at) row.push_back(*numbers[at]);
        return row;
    }

    /// Among the card's other properties.
    void KeepConstant(const DeckKeyword& card, const char* name, double number) {
        const std::string unit = units_.For(PlyConstantQuantity(name)).Spelling();
        if (!KeepPlyConstant(materials_.back(), name, number, unit, card.line)) {
            Warn(card, "card-twice", card.keyword + " stands twice in a material: the last one counts");
        }
    }

    bool Plastic(const DeckKeyword& card, const NumberRows& rows) {
        const std::string* hardening = card.Find("HARDENING");
        const bool kinematic = hardening && *hardening == "KINEMATIC";
        if (hardening && !kinematic && *hardening != "ISOTROPIC") {
            return Lost(card, "HARDENING=" + *hardening + " is neither isotropic nor kinematic");
        }
        Block& block = *NewBlock(card, "plastic");
        block.values.Set("hardening", std::string(kinematic ? "kinematic" : "isotropic"));
        return Fill(block, card, rows, 2);
    }

    bool Expansion(const DeckKeyword& card, const NumberRows& rows) {
        if (!IsIsotropic(card)) return DirectedExpansion(card, rows);
        Block& block = *NewBlock(card, "thermal_expansion");
        if (const std::string* zero = card.Find("ZERO")) {
            const auto number = ReadNumber(*zero);
            const auto stored = number ? units_.ToStored(*number, "temperature") : std::nullopt;
            if (!stored) return Error(card, "no-number", "ZERO=" + QuotedText(*zero) + " is no temperature");
            block.values.Set("reference_temperature", *stored);
            const std::string& unit = units_.For("temperature").Spelling();
            if (unit != "K") block.written["reference_temperature"] = {*number, unit};
        } else {
            Warn(card, "no-reference", "*EXPANSION has no ZERO: the solver takes 0, the card leaves it open");
        }
        return Fill(block, card, rows, 1);
    }

    /// A ply expands along the fibre and across it; its coefficients have no reference temperature, which
    /// constant ones do not need.
    bool DirectedExpansion(const DeckKeyword& card, const NumberRows& rows) {
        const std::string& type = *card.Find("TYPE");
        if (type != "ORTHO" && type != "ORTHOTROPIC") return Lost(card, "TYPE=" + type + " has no place");
        const auto row = OnlyRow(card, rows, 3);
        if (!row) return !findings_.HasErrors();
        KeepConstant(card, "alpha1", (*row)[0]);
        KeepConstant(card, "alpha2", (*row)[1]);
        if ((*row)[2] != (*row)[1]) Lost(card, "the third coefficient, which is not the second one");
        return true;
    }

    bool Hyperelastic(const DeckKeyword& card, const NumberRows& rows) {
        const CalculixPotential* potential = nullptr;
        for (const auto& [word, value] : card.parameters) {
            if (const auto* found = FindCalculixPotential(std::string_view(word))) potential = found;
        }
        if (!potential) potential = FindCalculixPotential(mechanics::HyperelasticModel::POLYNOMIAL);
        int order = potential->model == mechanics::HyperelasticModel::YEOH ? 3 : 1;
        if (const std::string* n = card.Find("N"); n && mechanics::HasOrder(potential->model)) {
            const bool known = n->size() == 1 && (*n)[0] >= '1' && (*n)[0] <= '3';
            if (!known) return Error(card, "wrong-order", "N=" + QuotedText(*n) + " is none of 1, 2 and 3");
            order = (*n)[0] - '0';
        }
        Block& block = *NewBlock(card, "hyperelastic");
        block.values.Set("model", std::string(mechanics::Keyword(potential->model)));
        block.values.Set("order", order);
        const std::size_t width = EmptyTable(block.kind->tables.front(), block.values, false).columns.size();
        if (!Fill(block, card, Joined(rows, width + 1), width)) return false;
        TellOwnCompressibility(card, block);
        return true;
    }

    void TellOwnCompressibility(const DeckKeyword& card, const Block& block) {
        const Table& table = block.tables.front();
        const auto first = std::find_if(table.columns.begin(), table.columns.end(), [](const Column& column) {
            return column.kind.name == "D1" || column.kind.name == "D";
        });
        if (first == table.columns.end() || std::count(first->values.begin(), first->values.end(), 0.0) == 0)
            return;
        findings_.Add(
            {FindingKind::NOTE,
             {ShownPath(path_), card.line},
             "no-compressibility",
             "D1 is 0, which is incompressible on a card; CalculiX takes one of its own, 4 to 7 % off",
             {}});
    }

    /// Rows that take more than a line, of which every one but the last is full.
    static NumberRows Joined(const NumberRows& lines, std::size_t width) {
        if (width <= kCalculixNumbers) return lines;
        NumberRows rows;
        bool open = false;
        for (const DeckNumbers& line : lines) {
            if (open) {
                rows.back().numbers.resize(kCalculixNumbers);  // blanks at a line's end count
                rows.back().numbers.insert(rows.back().numbers.end(), line.numbers.begin(),
                                           line.numbers.end());
            } else {
                rows.push_back(line);
            }
            open = !open;
        }
        return rows;
    }

    bool UserMaterial(const DeckKeyword& card, const NumberRows& lines) {
        const std::string* count = card.Find("CONSTANTS");
        const auto number = count ? ReadNumber(*count) : ReadNumber("");
        if (!number || *number < 1.0 || *number > 1e6 || *number != static_cast<int>(*number)) {
            return Error(card, "wrong-count", "*USER MATERIAL has no count of CONSTANTS");
        }
        const auto wanted = static_cast<std::size_t>(*number);
        const std::size_t linesOfARow = wanted / kCalculixNumbers + 1;
        std::vector<double> constants;
        for (const DeckNumbers& line : lines) {
            // A blank at the end of a line counts where more lines follow.
            const bool last = &line == &lines.back();
            const std::size_t width = last ? line.numbers.size() : kCalculixNumbers;
            for (std::size_t at = 0; at < width && constants.size() < wanted; ++at) {
                const bool given = at < line.numbers.size() && line.numbers[at];
                constants.push_back(given ? *line.numbers[at] : 0.0);
            }
        }
        if (constants.size() < wanted) {
            return Error(card, "wrong-count",
                         "*USER MATERIAL has " + CountText(constants.size(), "constant") + ", not " +
                             std::to_string(wanted));
        }
        if (lines.size() > linesOfARow)
            Lost(card, "constants over temperature; those of the first one are kept");
        const std::string* type = card.Find("TYPE");
        Block& block = *NewBlock(card, "user_material");
        block.values.Set("type", std::string(type && *type == "THERMAL" ? "THERMAL" : "MECHANICAL"));
        Table table = EmptyTable(block.kind->tables.front(), block.values, false);
        table.columns.front().values = std::move(constants);
        block.tables.push_back(std::move(table));
        return true;
    }

    bool StateVariables(const DeckKeyword& card, const NumberRows& rows) {
        auto& blocks = materials_.back().blocks;
        const auto user = std::find_if(blocks.begin(), blocks.end(), [](const Block& block) {
            return block.kind->name == "user_material";
        });
        if (user == blocks.end()) return Lost(card, "there is no *USER MATERIAL before it");
        const auto number = rows.front().numbers.empty() ? std::nullopt : rows.front().numbers.front();
        if (!number || *number < 0.0 || *number > 1e6 || *number != static_cast<int>(*number)) {
            return Error(rows.front().line, "wrong-count", "*DEPVAR takes the number of state variables");
        }
        user->values.Set("state_variables", static_cast<int>(*number));
        return true;
    }

    const std::string path_;
    const DeckUnits& units_;
    Findings& findings_;
    DeckCards cards_;
    std::vector<Material> materials_;
    std::set<std::string> names_;  // in capital letters, as the solver compares them
    std::map<std::string, std::pair<int, std::size_t>> skipped_;  // keyword to its first line and how often
};

}  // namespace

std::vector<Material> ReadCalculix(const std::string& path, const DeckUnits& units, Findings& findings) {
    return CalculixReader(path, units, findings).Read();
}

}  // namespace zelmat
