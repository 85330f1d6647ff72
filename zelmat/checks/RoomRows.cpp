#include "zelmat/checks/RoomRows.h"

#include <cmath>

namespace zelmat {

std::vector<std::size_t> RoomRows(const Table& table) {
    constexpr double kFrom = 250.0, kTo = 350.0, kRoom = 293.15;  // K
    const Column* temperature = table.Find("temperature");
    std::vector<std::size_t> rows;
    std::size_t nearest = 0;
    const auto distance = [&](std::size_t row) { return std::abs(temperature->values[row] - kRoom); };
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        if (!temperature || (temperature->values[row] >= kFrom && temperature->values[row] <= kTo)) {
            rows.push_back(row);
        } else if (distance(row) < distance(nearest)) {
            nearest = row;
        }
    }
    if (rows.empty() && table.Rows() > 0) rows.push_back(nearest);
    return rows;
}

}  // namespace zelmat
