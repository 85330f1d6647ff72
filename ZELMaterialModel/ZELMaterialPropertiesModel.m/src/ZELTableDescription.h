#pragma once

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELColumns.h"

/// All that tells one table behavior from the next. Each behavior's source file holds one, with its key
/// slots.
struct ZELTableDescription {
    const KORUnicodeString& component;  ///< on the material: the behavior's own feature
    ZELKeySlot enabled;                 ///< on the material: boolean
    ZELKeySlot temperatureDependent;    ///< on the behavior's feature: boolean
    ZELKeySlot dataFile;                ///< on the behavior's feature: string
    ZELColumnSlots columns;             ///< on the behavior's feature: lists of doubles, the temperature last

    const char* noFeature;       ///< diagnostic: the material has no feature for this behavior
    const char* inconsistent;    ///< diagnostic: the columns differ in length
    HRESULT inconsistentStatus;  ///< what reading such columns answers
};
