#include "zelmat/exchange/calculix/MaterialCardReader.h"

#include <algorithm>
#include <array>
#include <map>

#include "zelmat/exchange/calculix/CalculixCards.h"
#include "zelmat/exchange/calculix/DeckPlies.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/BlockKind.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr double kMostCounted = 1e6;  // constants or state variables

bool IsIsotropic(const DeckKeyword& card) {
    const std::string* type = card.Find("TYPE");
    return !type || type->empty() || *type == "ISO" || *type == "ISOTROPIC";
}

bool IsCount(const std::optional<double>& number, double least) {
    return number && *number >= least && *number <= kMostCounted && *number == static_cast<int>(*number);
}

}  // namespace

const MaterialCardReader::Kind* MaterialCardReader::KindOf(const std::string& keyword) {
    using Self = MaterialCardReader;
    static const std::map<std::string, Kind> kinds = {
        {"*ELASTIC", {&Self::Elastic, {"TYPE"}}},
        {"*PLASTIC", {&Self::Plastic, {"HARDENING"}}},
        {"*DENSITY", {&Self::Density, {"TYPE"}}},
        {"*EXPANSION", {&Self::Expansion, {"TYPE", "ZERO"}}},
        {"*CONDUCTIVITY", {&Self::Conductivity, {"TYPE"}}},
        {"*SPECIFICHEAT", {&Self::SpecificHeat, {"TYPE"}}},
        {"*HYPERELASTIC", {&Self::Hyperelastic, {"N"}}},
        {"*USERMATERIAL", {&Self::UserMaterial, {"CONSTANTS", "TYPE", "UNSYMM"}}},
        {"*DEPVAR", {nullptr, {}}},
    };
    const auto found = kinds.find(keyword);
    return found == kinds.end() ? nullptr : &found->second;
}

bool MaterialCardReader::Reads(const std::string& keyword) {
    return KindOf(keyword) != nullptr;
}

bool MaterialCardReader::Read(const DeckKeyword& card, DeckCards& cards, Material& material) {
    material_ = &material;
    const Kind& kind = *KindOf(card.keyword);
    if (!HasPlaceFor(card, kind)) return true;
    if (!kind.reader) return StateVariables(card, cards);
    const auto rows = cards.Numbers();
    if (!rows) return false;
    if (rows->empty()) return Error(card.line, "no-data", card.keyword + " has no data line");
    return (this->*kind.reader)(card, *rows);
}

void MaterialCardReader::End() {
    if (waiting_) Lost(waiting_->card, "there is no *USER MATERIAL beside it");
    waiting_.reset();
}

/// Whether the card means what its numbers say without the parameters that are not heeded; those are told.
bool MaterialCardReader::HasPlaceFor(const DeckKeyword& card, const Kind& kind) {
    for (const auto& [name, value] : card.parameters) {
        const bool heeded =
            std::find(kind.parameters.begin(), kind.parameters.end(), name) != kind.parameters.end();
        const bool potential =
            card.keyword == "*HYPERELASTIC" && FindCalculixPotential(std::string_view(name)) != nullptr;
        if (heeded || potential) continue;
        if (card.keyword == "*HYPERELASTIC" && value.empty()) {
            Lost(card, QuotedText(name) + " is no potential that is read here, nor are tests in its place");
            return false;
        }
        if (name == "USER" || (name == "DEPENDENCIES" && value != "0")) {
            Lost(card,
                 name == "USER" ? "a routine of the user says it" : "it depends on field variables, too");
            return false;
        }
        Warn(card.line, "unknown-parameter",
             card.keyword + ": " + QuotedText(name) + " is not heeded, and the card read as without it");
    }
    return true;
}

/// A block of the material that is being read; a second card of its kind is told and replaces the first.
Block* MaterialCardReader::NewBlock(const DeckKeyword& card, const char* name) {
    const BlockKind* kind = FindBlockKind(name);
    auto& blocks = kind->alternatives ? material_->fits : material_->blocks;
    const auto before =
        std::find_if(blocks.begin(), blocks.end(), [&](const Block& block) { return block.kind == kind; });
    if (before != blocks.end()) {
        Warn(card.line, "card-twice", card.keyword + " stands twice in a material: the last one counts");
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

bool MaterialCardReader::Fill(Block& block, const DeckKeyword& card, const NumberRows& rows,
                              std::size_t width) {
    return FillTable(block, path_, card, rows, width, units_, findings_);
}

bool MaterialCardReader::OneTable(const DeckKeyword& card, const NumberRows& rows, const char* block) {
    if (!IsIsotropic(card)) return Lost(card, "TYPE=" + *card.Find("TYPE") + " has directions");
    return Fill(*NewBlock(card, block), card, rows, 1);
}

bool MaterialCardReader::Density(const DeckKeyword& card, const NumberRows& rows) {
    return OneTable(card, rows, "density");
}

bool MaterialCardReader::Conductivity(const DeckKeyword& card, const NumberRows& rows) {
    return OneTable(card, rows, "conductivity");
}

bool MaterialCardReader::SpecificHeat(const DeckKeyword& card, const NumberRows& rows) {
    return OneTable(card, rows, "specific_heat");
}

bool MaterialCardReader::Elastic(const DeckKeyword& card, const NumberRows& rows) {
    if (IsIsotropic(card)) return Fill(*NewBlock(card, "elastic"), card, rows, 2);
    const std::string& type = *card.Find("TYPE");
    const bool stiffness = type == "ORTHO" || type == "ORTHOTROPIC";
    if (!stiffness && type != "ENGINEERINGCONSTANTS") return Lost(card, "TYPE=" + type + " has no place");
    const auto row = OnlyRow(card, JoinedRows(rows, 10), 9);
    if (!row) return !findings_.HasErrors();
    const auto constants = stiffness ? EngineeringConstants(*row) : row;
    if (!constants) return Error(card.line, "no-stiffness", "these constants are no stiffness of a material");
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
std::optional<std::vector<double>> MaterialCardReader::OnlyRow(const DeckKeyword& card,
                                                               const NumberRows& rows, std::size_t width) {
    const auto& numbers = rows.front().numbers;
    const bool whole = numbers.size() >= width && numbers.size() <= width + 1 &&
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
void MaterialCardReader::KeepConstant(const DeckKeyword& card, const char* name, double number) {
    const std::string unit = units_.For(PlyConstantQuantity(name)).Spelling();
    if (!KeepPlyConstant(*material_, name, number, unit, card.line)) {
        Warn(card.line, "card-twice", card.keyword + " stands twice in a material: the last one counts");
    }
}

bool MaterialCardReader::Plastic(const DeckKeyword& card, const NumberRows& rows) {
    const std::string* hardening = card.Find("HARDENING");
    const bool kinematic = hardening && *hardening == "KINEMATIC";
    if (hardening && !kinematic && *hardening != "ISOTROPIC") {
        return Lost(card, "HARDENING=" + *hardening + " is neither isotropic nor kinematic");
    }
    Block& block = *NewBlock(card, "plastic");
    block.values.Set("hardening", std::string(kinematic ? "kinematic" : "isotropic"));
    return Fill(block, card, rows, 2);
}

bool MaterialCardReader::Expansion(const DeckKeyword& card, const NumberRows& rows) {
    if (!IsIsotropic(card)) return DirectedExpansion(card, rows);
    Block& block = *NewBlock(card, "thermal_expansion");
    if (const std::string* zero = card.Find("ZERO")) {
        const auto number = ReadNumber(*zero);
        const auto stored = number ? units_.ToStored(*number, "temperature") : std::nullopt;
        if (!stored) return Error(card.line, "no-number", "ZERO=" + QuotedText(*zero) + " is no temperature");
        block.values.Set("reference_temperature", *stored);
        const std::string& unit = units_.For("temperature").Spelling();
        if (unit != "K") block.written["reference_temperature"] = {*number, unit};
    } else {
        Warn(card.line, "no-reference",
             "*EXPANSION has no ZERO: the solver takes 0, the card leaves it open");
    }
    return Fill(block, card, rows, 1);
}

/// A ply expands along the fibre and across it; its coefficients have no reference temperature, which
/// constant ones do not need.
bool MaterialCardReader::DirectedExpansion(const DeckKeyword& card, const NumberRows& rows) {
    const std::string& type = *card.Find("TYPE");
    if (type != "ORTHO" && type != "ORTHOTROPIC") return Lost(card, "TYPE=" + type + " has no place");
    const auto row = OnlyRow(card, rows, 3);
    if (!row) return !findings_.HasErrors();
    KeepConstant(card, "alpha1", (*row)[0]);
    KeepConstant(card, "alpha2", (*row)[1]);
    if ((*row)[2] != (*row)[1]) Lost(card, "the third coefficient, which is not the second one");
    return true;
}

bool MaterialCardReader::Hyperelastic(const DeckKeyword& card, const NumberRows& rows) {
    const CalculixPotential* potential = nullptr;
    for (const auto& [word, value] : card.parameters) {
        if (const auto* found = FindCalculixPotential(std::string_view(word))) potential = found;
    }
    if (!potential) potential = FindCalculixPotential(mechanics::HyperelasticModel::POLYNOMIAL);
    int order = potential->model == mechanics::HyperelasticModel::YEOH ? 3 : 1;
    if (const std::string* n = card.Find("N"); n && mechanics::HasOrder(potential->model)) {
        const bool known = n->size() == 1 && (*n)[0] >= '1' && (*n)[0] <= '3';
        if (!known) return Error(card.line, "wrong-order", "N=" + QuotedText(*n) + " is none of 1, 2 and 3");
        order = (*n)[0] - '0';
    }
    Block& block = *NewBlock(card, "hyperelastic");
    block.values.Set("model", std::string(mechanics::Keyword(potential->model)));
    block.values.Set("order", order);
    const std::size_t width = EmptyTable(block.kind->tables.front(), block.values, false).columns.size();
    if (!Fill(block, card, JoinedRows(rows, width + 1), width)) return false;
    TellOwnCompressibility(card, block);
    return true;
}

void MaterialCardReader::TellOwnCompressibility(const DeckKeyword& card, const Block& block) {
    const Table& table = block.tables.front();
    const auto first = std::find_if(table.columns.begin(), table.columns.end(), [](const Column& column) {
        return column.kind.name == "D1" || column.kind.name == "D";
    });
    if (first == table.columns.end() || std::count(first->values.begin(), first->values.end(), 0.0) == 0)
        return;
    findings_.Add({FindingKind::NOTE,
                   {ShownPath(path_), card.line},
                   "no-compressibility",
                   "D1 is 0, which is incompressible on a card; CalculiX takes one of its own, 4 to 7 % off",
                   {}});
}

/// The constants of the first temperature; fewer than are wanted where there are no more.
std::vector<double> MaterialCardReader::ConstantsOf(const DeckKeyword& card, const NumberRows& lines,
                                                    std::size_t wanted) {
    const std::size_t linesOfARow = wanted / kCalculixNumbers + 1;
    const std::size_t ofTheRow = std::min(linesOfARow, lines.size());
    std::vector<double> constants;
    std::size_t given = 0;
    for (std::size_t line = 0; line < ofTheRow; ++line) {
        // A blank at the end of a line counts where more lines follow.
        const auto& numbers = lines[line].numbers;
        const std::size_t width =
            line + 1 == lines.size() ? numbers.size() : std::max(kCalculixNumbers, numbers.size());
        for (std::size_t at = 0; at < std::min(width, kCalculixNumbers) && constants.size() < wanted; ++at) {
            constants.push_back(at < numbers.size() && numbers[at] ? *numbers[at] : 0.0);
        }
        given += width;
    }
    const bool several = lines.size() > linesOfARow;
    if (several) Lost(card, "constants over temperature; those of the first one are kept");
    if (!several && given > wanted + 1) {
        Lost(card, "the numbers behind its " + CountText(wanted, "constant") + " and their temperature");
    }
    return constants;
}

bool MaterialCardReader::UserMaterial(const DeckKeyword& card, const NumberRows& lines) {
    const std::string* count = card.Find("CONSTANTS");
    const auto number = count ? ReadNumber(*count) : ReadNumber("");
    if (!IsCount(number ? std::optional(*number) : std::nullopt, 1.0)) {
        return Error(card.line, "wrong-count", "*USER MATERIAL has no count of CONSTANTS");
    }
    const std::string* type = card.Find("TYPE");
    if (type && *type != "THERMAL" && *type != "MECHANICAL") {
        return Lost(card, "TYPE=" + *type + " is neither mechanical nor thermal");
    }
    const auto wanted = static_cast<std::size_t>(*number);
    std::vector<double> constants = ConstantsOf(card, lines, wanted);
    if (constants.size() < wanted) {
        return Error(card.line, "wrong-count",
                     "*USER MATERIAL has " + CountText(constants.size(), "constant") + ", not " +
                         std::to_string(wanted));
    }
    Block& block = *NewBlock(card, "user_material");
    block.values.Set("type", type ? *type : std::string("MECHANICAL"));
    if (card.Find("UNSYMM")) block.values.Set("unsymmetric", true);
    if (waiting_) block.values.Set("state_variables", waiting_->variables);
    waiting_.reset();
    Table table = EmptyTable(block.kind->tables.front(), block.values, false);
    table.columns.front().values = std::move(constants);
    block.tables.push_back(std::move(table));
    return true;
}

/// Their count; names may follow on further lines.
bool MaterialCardReader::StateVariables(const DeckKeyword& card, DeckCards& cards) {
    const auto lines = cards.Lines();
    if (lines.empty()) return Error(card.line, "no-data", card.keyword + " has no data line");
    const auto read = ReadNumber(lines.front().words.front());
    if (!IsCount(read ? std::optional(*read) : std::nullopt, 0.0)) {
        return Error(lines.front().line, "wrong-count", "*DEPVAR takes the number of state variables");
    }
    if (lines.size() > 1) Lost(card, "the names of state variables");
    const int variables = static_cast<int>(*read);
    auto& blocks = material_->blocks;
    const auto user = std::find_if(blocks.begin(), blocks.end(),
                                   [](const Block& block) { return block.kind->name == "user_material"; });
    if (user == blocks.end()) {
        waiting_ = Waiting{card, variables};
    } else {
        user->values.Set("state_variables", variables);
    }
    return true;
}

bool MaterialCardReader::Error(int line, const char* code, const std::string& text) {
    findings_.Add({FindingKind::ERROR, {ShownPath(path_), line}, code, text, {}});
    return false;
}

void MaterialCardReader::Warn(int line, const char* code, const std::string& text) {
    findings_.Add({FindingKind::WARNING, {ShownPath(path_), line}, code, text, {}});
}

/// Always true: the deck is read on.
bool MaterialCardReader::Lost(const DeckKeyword& card, const std::string& why) {
    Warn(card.line, "not-imported", card.keyword + ": " + why);
    return true;
}

}  // namespace zelmat
