#include "zelmat/materials/BrokenRules.h"

#include <algorithm>

#include "zelmat/text/NumberText.h"

namespace zelmat {

namespace {

/// The kind of a finding about a table, and what became of the table.
struct Outcome {
    FindingKind finding;
    const char* stored;
};

Outcome OutcomeOf(const CardTable& table) {
    if (table.kind->whenBroken == BrokenRule::REFUSED) {
        return {FindingKind::ERROR, "nothing of the table was stored"};
    }
    return {FindingKind::WARNING, "the table was stored all the same"};
}

void AddBroken(const CardRule& rule, const std::string& tableName, const CardTable& table,
               const std::string& file, std::vector<Finding>& findings) {
    const auto columns = table.form.ColumnsOf(table.temperatureDependent);
    const auto column = std::find_if(columns.begin(), columns.end(),
                                     [&](const CardColumn& each) { return each.name == rule.column; });
    if (column == columns.end()) return;  // a form without it, such as Johnson-Cook's
    const auto place = static_cast<std::size_t>(column - columns.begin());
    const std::size_t looked = rule.everyRow ? table.rows.size() : 1;
    const Outcome outcome = OutcomeOf(table);
    for (std::size_t row = 0; row < looked; ++row) {
        const double value = table.rows[row][place];
        if (!rule.broken(value)) continue;
        findings.push_back({outcome.finding,
                            {file, table.lines[row]},
                            rule.code,
                            "row " + std::to_string(row + 1) + " of " + tableName + ": " + column->title +
                                " is " + WithUnit(value, column->unit),
                            {rule.bound, outcome.stored}});
    }
}

}  // namespace

std::vector<Finding> BrokenRules(const CardBlock& block, const CardTable& table, const std::string& file) {
    std::vector<Finding> findings;
    const std::string name = block.TableName(*table.kind);
    for (const CardRule& rule : table.kind->rules) AddBroken(rule, name, table, file, findings);
    if (table.rows.size() < static_cast<std::size_t>(table.kind->leastRows)) {
        const Outcome outcome = OutcomeOf(table);
        findings.push_back(
            {outcome.finding,
             {file, table.line},
             "too-few-rows",
             name + " has " + CountText(table.rows.size(), "row"),
             {"has to have " + std::to_string(table.kind->leastRows) + " or more", outcome.stored}});
    }
    return findings;
}

}  // namespace zelmat
