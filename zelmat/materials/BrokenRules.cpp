#include "zelmat/materials/BrokenRules.h"

#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

/// The kind of a finding about a table, and what became of the table.
struct Outcome {
    FindingKind finding;
    const char* stored;
};

Outcome OutcomeOf(const Table& table) {
    if (table.kind->whenBroken == BrokenRule::REFUSED) {
        return {FindingKind::ERROR, "nothing of the table was stored"};
    }
    return {FindingKind::WARNING, "the table was stored all the same"};
}

void AddBroken(const TableRule& rule, const std::string& tableName, const Table& table,
               const std::string& file, std::vector<Finding>& findings) {
    const Column* column = table.Find(rule.column);
    if (!column) return;  // a form without it, such as Johnson-Cook's
    const std::size_t looked = rule.everyRow ? table.Rows() : 1;
    const Outcome outcome = OutcomeOf(table);
    for (std::size_t row = 0; row < looked; ++row) {
        if (!rule.broken(column->values[row])) continue;
        findings.push_back({outcome.finding,
                            {file, table.origin.Line(row)},
                            rule.code,
                            RowText(tableName, *column, row),
                            {rule.bound, outcome.stored}});
    }
}

}  // namespace

std::string RowText(const std::string& tableName, const Column& column, std::size_t row) {
    return "row " + std::to_string(row + 1) + " of " + tableName + ": " + column.kind.title + " is " +
           WithUnit(column.values[row], column.kind.unit);
}

std::vector<Finding> BrokenRules(const BlockKind& block, const Table& table, const std::string& file) {
    std::vector<Finding> findings;
    const std::string name = block.TableName(*table.kind);
    for (const TableRule& rule : table.kind->rules) AddBroken(rule, name, table, file, findings);
    if (table.Rows() < static_cast<std::size_t>(table.kind->leastRows)) {
        const Outcome outcome = OutcomeOf(table);
        findings.push_back(
            {outcome.finding,
             {file, table.origin.Line()},
             "too-few-rows",
             name + " has " + CountText(table.Rows(), "row"),
             {"has to have " + std::to_string(table.kind->leastRows) + " or more", outcome.stored}});
    }
    return findings;
}

}  // namespace zelmat
