#include "ZELMaterialModel/include/ZELRememberedFeature.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"

bool ZELRememberedFeature::LiesNowhere() const {
    if (!feature_) return false;
    if (!ZELContainerOf(feature_)) return true;
    undone_ = KORUndoCount();
    return false;
}
