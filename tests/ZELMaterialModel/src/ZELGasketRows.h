#pragma once

#include "tests/ZELMaterialModel/ZELRows.h"

// Tables that a gasket takes: pressure, closure and temperature, and for unloading the plastic closure before
// that.
inline const ZELRows kZELLoadingRows = {{0.0, 0.0, 293.0}, {1e6, 0.001, 293.0}, {5e6, 0.002, 293.0}};
inline const ZELRows kZELUnloadingRows = {{5e6, 0.002, 0.001, 293.0}, {0.0, 0.001, 0.001, 293.0}};
