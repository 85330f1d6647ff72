#include "zelmat/checks/CheckRule.h"

#include <utility>

#include "zelmat/materials/BrokenRules.h"

namespace zelmat {

void CheckReport::Add(int line, std::string text, std::vector<std::string> details) {
    if (!rule_.bound.empty()) details.insert(details.begin(), rule_.bound);
    findings_.Add({rule_.kind, {file_, line}, rule_.code, std::move(text), std::move(details)});
}

void CheckReport::AddValue(const Block& block, const Table& table, const Column& column, std::size_t row,
                           std::vector<std::string> details) {
    Add(table.origin.Line(row), RowText(block.kind->TableName(*table.kind), column, row), std::move(details));
}

}  // namespace zelmat
