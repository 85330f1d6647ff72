#include "zelmat/materials/TableKind.h"

#include "zelmat/materials/AttributeFacts.h"

namespace zelmat {

ColumnKind StoredColumn(const char* name, const char* lateType, const char* attribute) {
    const AttributeFacts facts = FactsOf(lateType, attribute);
    return {name, facts.title, facts.unit};
}

std::vector<ColumnKind> TableForm::ColumnsOf(bool temperatureDependent) const {
    std::vector<ColumnKind> all = columns;
    if (temperature == TemperatureRule::ALWAYS ||
        (temperature == TemperatureRule::AS_FLAGGED && temperatureDependent)) {
        all.push_back(TemperatureColumn());
    }
    return all;
}

const ColumnKind& TemperatureColumn() {
    static const ColumnKind column = StoredColumn("temperature", "ZELElasticLT", "TemperatureData");
    return column;
}

}  // namespace zelmat
