#include "zelmat/mechanics/fit/FitDeviation.h"

#include <cmath>
#include <numeric>

namespace zelmat::mechanics {

FitDeviation DeviationOf(const std::vector<double>& computed, const std::vector<double>& measured) {
    const auto count = static_cast<double>(measured.size());
    const double mean = std::accumulate(measured.begin(), measured.end(), 0.0) / count;
    double absolute = 0.0, relative = 0.0, spread = 0.0, stressed = 0.0;
    for (std::size_t i = 0; i < measured.size(); ++i) {
        const double deviation = computed[i] - measured[i];
        absolute += deviation * deviation;
        spread += (measured[i] - mean) * (measured[i] - mean);
        if (measured[i] == 0.0) continue;
        relative += deviation * deviation / (measured[i] * measured[i]);
        stressed += 1.0;
    }
    FitDeviation result{.points = measured.size(),
                        .rmsRelative = {},
                        .rmsAbsolute = std::sqrt(absolute / count),
                        .rSquared = {}};
    if (stressed > 0.0) result.rmsRelative = std::sqrt(relative / stressed);
    if (spread > 0.0) result.rSquared = 1.0 - absolute / spread;
    return result;
}

}  // namespace zelmat::mechanics
