#pragma once

#include <vector>

#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "framework/KORUnicodeString.h"

/// What each column of a hyperelastic model's table is multiplied with when its unit of pressure changes: F
/// for a coefficient measured in pressure, 1/F for a compressibility, 1 for a number without dimension.
/// `order` is the order of the strain-energy potential; `width` columns at most are wanted. Models that are
/// not known have no factors.
///
/// The numbers of coefficients are those of the potentials themselves; a full polynomial of order N in the
/// two strain invariants has N(N+3)/2 of them: 2, 5, 9, 14, 20, 27.
std::vector<double> ZELHyperelasticUnitFactors(const KORUnicodeString& model, int order,
                                               double pressureFactor, int width);

/// The table with each number multiplied by its column's factor; columns beyond the factors (a temperature)
/// are copied unchanged.
ZELCftArrayZELCftArrayDouble ZELScaleColumns(const ZELCftArrayZELCftArrayDouble& table,
                                             const std::vector<double>& factors);

/// The platform's current unit of pressure in stored units (1e6 for MPa over Pa). False when the platform has
/// no units service, or its pressure has no current unit.
[[nodiscard]] bool ZELCurrentPressureFactor(double& factor);
