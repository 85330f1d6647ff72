#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "zelmat/commands/frame/ResultTable.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What a calculation came to: sayings and values by name, tables, and notes on how they were found. It holds
/// its numbers in the chosen units.
class Result {
public:
    explicit Result(const UnitChoice& units) : units_(units) {}

    const UnitChoice& Units() const { return units_; }
    /// The numbers of a quantity, by its name: "stress".
    Shown Of(const char* quantity) const { return {*FindQuantity(quantity), units_}; }

    /// "model: OGDEN"; `name` is the key for programs.
    void Say(std::string name, std::string title, std::string text);
    /// "initial shear modulus mu0: 0.4225 MPa"; the number is in the stored unit. One that there is not, or
    /// that the unit cannot hold, is null for programs and not shown.
    void Add(std::string name, std::string title, const char* quantity, MaybeNumber stored);
    void Add(ResultTable table) { tables_.push_back(std::move(table)); }
    void Note(std::string text);
    void Note(const std::vector<std::string>& texts);

    void Print(std::ostream& out) const;
    void PrintCsv(std::ostream& out) const;  ///< a table of the values and sayings, then the others
    nlohmann::ordered_json Json() const;

private:
    struct Value {
        std::string name, title;
        std::string text;    ///< as it is said
        MaybeNumber number;  ///< in the unit
        std::string unit;
        bool said = false;  ///< a text, no number
    };

    std::string Text(const Value& value) const;
    ResultTable ValueTable() const;

    UnitChoice units_;
    std::vector<Value> values_;
    std::vector<ResultTable> tables_;
    std::vector<std::string> notes_;
};

}  // namespace zelmat
