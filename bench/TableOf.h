#pragma once

#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"

namespace bench {

/// So many rows of Young's modulus [Pa], Poisson's ratio and temperature [K]; `scale` makes one table differ
/// from another in two columns.
ZELCftArrayZELCftArrayDouble TableOf(int rows, double scale);

}  // namespace bench
