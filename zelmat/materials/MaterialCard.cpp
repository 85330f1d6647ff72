#include "zelmat/materials/MaterialCard.h"

#include <algorithm>
#include <utility>

namespace zelmat {

const CardTable* CardData::Table(const CardTableKind* kind) const {
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const CardTable& table) { return table.kind == kind; });
    return found == tables.end() ? nullptr : &*found;
}

const CardTable* CardData::Table(const std::string& name) const {
    return Table(block->FindTable(name));
}

void StoredBlock::AddTable(const CardTableKind& kind, bool temperatureDependent,
                           std::vector<std::vector<double>> rows) {
    const auto form = kind.form(values);
    tables.push_back({&kind, temperatureDependent,
                      form ? form->ColumnsOf(temperatureDependent) : std::vector<CardColumn>(),
                      std::move(rows)});
}

}  // namespace zelmat
