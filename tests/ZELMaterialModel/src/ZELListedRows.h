#pragma once

#include "tests/support/ZELFeatureValues.h"

/// The row features that a hyperelastic model's feature lists, in order; none where the list was never
/// valued.
inline std::vector<KORISpecObject_var> ZELListedRows(const KORISpecObject_var& model) {
    return Components(model, "HyperelasticMatModelData").value_or(std::vector<KORISpecObject_var>());
}
