#include "zelmat/text/NearestName.h"

#include <algorithm>

namespace zelmat {

namespace {

/// Optimal string alignment distance, by rows of its table.
std::size_t Distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> before;
    std::vector<std::size_t> above(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) above[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::vector<std::size_t> row(b.size() + 1, i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t exchange = a[i - 1] == b[j - 1] ? 0 : 1;
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + exchange});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before = std::move(above);
        above = std::move(row);
    }
    return above.back();
}

}  // namespace

std::string NearestName(const std::string& misspelt, const std::vector<std::string>& names) {
    constexpr std::size_t kLettersPerMistake = 3;
    constexpr std::size_t kLongest = 64;  // a longer text is no slip of the keyboard
    if (misspelt.size() > kLongest) return {};
    std::string nearest;
    std::size_t least = std::max<std::size_t>(1, misspelt.size() / kLettersPerMistake) + 1;
    for (const std::string& name : names) {
        const std::size_t distance = Distance(misspelt, name);
        if (distance >= least) continue;
        least = distance;
        nearest = name;
    }
    return nearest;
}

}  // namespace zelmat
