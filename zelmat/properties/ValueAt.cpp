#include "zelmat/properties/ValueAt.h"

namespace zelmat {

mechanics::Outcome<mechanics::TableValue> ValueAt(const mechanics::TemperatureTable& table,
                                                  std::optional<double> temperature,
                                                  mechanics::OutsidePolicy policy) {
    if (temperature) return table.At(*temperature, policy);
    if (table.Range()) return mechanics::Refusal{"the table depends on temperature, and none is given"};
    auto value = table.At(0.0, policy).Value();
    value.notes.clear();  // nobody asked for a temperature
    return value;
}

}  // namespace zelmat
