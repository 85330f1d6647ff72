#pragma once

/// Comparison of numbers as the add-on's dialogs and behaviors mean it.
struct ZELGenComparator {
    /// 1 when the two differ, 0 when they are the same: within 1e-12 of each other, absolutely or relative to
    /// the larger one. A number that is not a number differs from everything, itself included.
    static unsigned char CompareDouble(double a, double b);
};
