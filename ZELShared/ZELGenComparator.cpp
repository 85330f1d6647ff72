#include "ZELShared/ZELGenComparator.h"

#include <algorithm>
#include <cmath>

unsigned char ZELGenComparator::CompareDouble(double a, double b) {
    constexpr double kTolerance = 1e-12;
    if (a == b) return 0;  // infinities, too
    const double scale = std::max({1.0, std::fabs(a), std::fabs(b)});
    const bool same = std::fabs(a - b) <= kTolerance * scale && std::isfinite(scale);
    return same ? 0 : 1;
}
