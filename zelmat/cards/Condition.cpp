#include "zelmat/cards/Condition.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <utility>

#include "zelmat/cards/CardKey.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/Measured.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\n");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

/// The columns that a table can have, whatever selects its form.
std::vector<ColumnKind> PossibleColumns(const BlockKind& block, const TableKind& table) {
    constexpr int kHighestOrder = 6;
    std::vector<Values> selections = {Values()};
    for (const Setting& setting : block.settings) {
        if (!setting.required || setting.choices.empty()) continue;
        selections.clear();
        for (const std::string& choice : setting.choices) {
            for (int order = 1; order <= kHighestOrder; ++order) {
                selections.emplace_back().Set(setting.name, choice);
                selections.back().Set("order", order);
            }
        }
    }
    std::vector<ColumnKind> columns;
    for (const Values& values : selections) {
        const auto form = table.form(values);
        if (!form) continue;
        for (const ColumnKind& column : form->ColumnsOf(true)) {
            const bool known = std::any_of(columns.begin(), columns.end(),
                                           [&](const ColumnKind& each) { return each.name == column.name; });
            if (!known) columns.push_back(column);
        }
    }
    return columns;
}

/// A value that conditions can name.
struct Target {
    std::string key;
    const BlockKind* block = nullptr;
    const TableKind* table = nullptr;
    std::string name;
    std::string unit;
};

const std::vector<Target>& Targets() {
    static const auto targets = [] {
        std::vector<Target> all;
        for (const BlockKind& block : BlockKinds()) {
            for (const TableKind& table : block.tables) {
                const auto columns = PossibleColumns(block, table);
                const std::string of = block.TableName(table);
                const bool single = columns.size() == 2 && table.name.empty();  // with the temperature
                if (single) all.push_back({block.name, &block, &table, columns[0].name, columns[0].unit});
                for (const ColumnKind& column : columns) {
                    all.push_back({of + "." + column.name, &block, &table, column.name, column.unit});
                }
            }
            for (const Setting& setting : block.settings) {
                const bool number = setting.kind == SettingKind::NUMBER || setting.kind == SettingKind::COUNT;
                if (!number) continue;
                all.push_back({block.name + "." + setting.name, &block, nullptr, setting.name, setting.unit});
            }
        }
        return all;
    }();
    return targets;
}

QuantityResult<Target> FindTarget(std::string_view key) {
    const std::string wanted = CardKey(key);
    std::vector<std::string> keys;
    for (const Target& target : Targets()) {
        if (target.key == wanted) return target;
        keys.push_back(target.key);
    }
    const std::string nearest = NearestName(std::string(key), keys);
    return QuantityError{"there is no value " + QuotedText(key) +
                         (nearest.empty() ? " as in elastic.youngs_modulus" : "; is " + nearest + " meant?")};
}

QuantityResult<double> ReadBound(const Target& target, std::string_view text) {
    const Quantity* quantity = QuantityOf(target.name, target.unit);
    if (!quantity) return ReadNumber(text);
    const auto measured = ReadMeasured(text, *quantity);
    return measured ? measured->Stored(*quantity) : QuantityResult<double>(measured.Error());
}

/// What somebody may have meant who wrote more than a number with its unit.
std::string MoreThanANumber(std::string_view text) {
    const bool another = text.find_first_of("<>&|,;") != std::string_view::npos;
    return another ? "; between conditions stands and: there is no or, and none has two bounds" : "";
}

/// Where the next "and" is that stands by itself; the end when there is none.
std::size_t FindAnd(std::string_view text) {
    constexpr std::string_view kAnd = " and ";
    const auto same = [](char one, char other) {
        const auto letter = static_cast<unsigned char>(one);
        return (std::isspace(letter) != 0 ? ' ' : static_cast<char>(std::tolower(letter))) == other;
    };
    return static_cast<std::size_t>(std::search(text.begin(), text.end(), kAnd.begin(), kAnd.end(), same) -
                                    text.begin());
}

}  // namespace

QuantityResult<Condition> Condition::Read(std::string_view text) {
    const auto sign = text.find_first_of("<>");
    if (sign == std::string_view::npos) {
        return QuantityError{QuotedText(Trimmed(text)) +
                             " is no condition; expected KEY < NUMBER, as in density<3000kg/m3, with one of "
                             "< <= > >="};
    }
    const bool orEqual = sign + 1 < text.size() && text[sign + 1] == '=';
    Condition condition;
    condition.operator_ = text.substr(sign, orEqual ? 2 : 1);
    std::string_view key = text.substr(0, sign);
    if (const auto at = key.find('@'); at != std::string_view::npos) {
        const Quantity& quantity = *FindQuantity("temperature");
        const auto measured = ReadMeasured(Trimmed(key.substr(at + 1)), quantity);
        const auto stored = measured ? measured->Stored(quantity) : QuantityResult<double>(measured.Error());
        if (!stored) return stored.Error();
        if (*stored < 0.0) return QuantityError{QuotedText(Trimmed(key)) + " is below absolute zero"};
        condition.temperature_ = *stored;
        key = key.substr(0, at);
    }
    const auto target = FindTarget(Trimmed(key));
    if (!target) return target.Error();
    const std::string_view rest = Trimmed(text.substr(sign + condition.operator_.size()));
    const auto bound = ReadBound(*target, rest);
    if (!bound) return QuantityError{target->key + ": " + bound.Error().text + MoreThanANumber(rest)};
    condition.block_ = target->block;
    condition.table_ = target->table;
    condition.name_ = target->name;
    condition.bound_ = *bound;
    return condition;
}

bool Condition::Keeps(double value) const {
    if (operator_ == "<") return value < bound_;
    if (operator_ == "<=") return value <= bound_;
    if (operator_ == ">") return value > bound_;
    return value >= bound_;
}

bool Condition::IsMet(const Material& material) const {
    const Block* block = material.Find(block_->name);
    if (block_->alternatives && !material.fits.empty()) block = &material.fits.front();
    for (const Block& other : material.information) {
        if (other.kind == block_) block = &other;
    }
    if (!block) return false;
    if (table_) {
        const Table* table = block->Find(table_);
        return table && TableKeeps(*table);
    }
    const Value* value = block->values.Find(name_);
    if (!value) return false;
    if (const int* count = std::get_if<int>(value)) return Keeps(*count);
    const double* number = std::get_if<double>(value);
    return number && Keeps(*number);
}

bool Condition::TableKeeps(const Table& table) const {
    const Column* column = table.Find(name_);
    if (!column || column->values.empty()) return false;
    const Column* temperatures = table.Find(TemperatureColumn().name);
    if (temperature_ && temperatures && table.temperatureDependent) return KeepsAt(*column, *temperatures);
    return std::all_of(column->values.begin(), column->values.end(),
                       [&](double value) { return Keeps(value); });
}

bool Condition::KeepsAt(const Column& column, const Column& temperatures) const {
    std::map<double, std::vector<double>> rows;  // by temperature
    for (std::size_t row = 0; row < column.values.size(); ++row) {
        rows[temperatures.values[row]].push_back(column.values[row]);
    }
    const auto all = [&](const std::vector<double>& values) {
        return std::all_of(values.begin(), values.end(), [&](double value) { return Keeps(value); });
    };
    const auto above = rows.lower_bound(*temperature_);
    if (above == rows.end()) return false;
    if (above->first == *temperature_) return all(above->second);
    if (above == rows.begin()) return false;
    const auto below = std::prev(above);
    if (below->second.size() != above->second.size()) return false;
    const double part = (*temperature_ - below->first) / (above->first - below->first);
    std::vector<double> between;
    for (std::size_t at = 0; at < below->second.size(); ++at) {
        between.push_back(std::lerp(below->second[at], above->second[at], part));
    }
    return all(between);
}

QuantityResult<std::vector<Condition>> ReadConditions(std::string_view text) {
    constexpr std::size_t kAnd = 5;  // with the blanks around it
    std::vector<Condition> conditions;
    for (;;) {
        const auto end = FindAnd(text);
        const auto condition = Condition::Read(text.substr(0, end));
        if (!condition) return condition.Error();
        conditions.push_back(*condition);
        if (end == text.size()) return conditions;
        text.remove_prefix(end + kAnd);
    }
}

}  // namespace zelmat
