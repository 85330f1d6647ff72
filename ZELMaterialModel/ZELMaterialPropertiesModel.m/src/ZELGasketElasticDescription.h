#pragma once

#include <span>

#include "framework/KORUnicodeString.h"

/// All that tells one elastic gasket behavior from the other, but for the check of its table.
struct ZELGasketElasticDescription {
    const KORUnicodeString& component;  ///< on the material: the behavior's own feature
    const KORUnicodeString& enabled;    ///< on the behavior's feature: boolean
    const KORUnicodeString& dataFile;
    const KORUnicodeString& temperatureDependent;
    std::span<const KORUnicodeString* const> columns;  ///< lists of doubles, in column order
    const char* noFeature;                             ///< diagnostic: what is stored is no feature
};
