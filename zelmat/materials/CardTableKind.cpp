#include "zelmat/materials/CardTableKind.h"

namespace zelmat {

std::vector<CardColumn> CardTableForm::ColumnsOf(bool temperatureDependent) const {
    std::vector<CardColumn> all = columns;
    if (temperature == TemperatureRule::ALWAYS ||
        (temperature == TemperatureRule::AS_FLAGGED && temperatureDependent)) {
        all.push_back(TemperatureColumn());
    }
    return all;
}

const CardColumn& TemperatureColumn() {
    static const CardColumn column{"temperature", "temperature", "K"};
    return column;
}

}  // namespace zelmat
