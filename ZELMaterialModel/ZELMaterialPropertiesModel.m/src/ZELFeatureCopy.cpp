#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"

KORBaseUnknown_var ZELContainerOf(const KORISpecObject_var& feature) {
    return feature ? KORBaseUnknown_var::Adopt(feature->GetFeatContainer()) : KORBaseUnknown_var();
}

KORListValKORISpecObject_var ZELCopyInto(const KORICutAndPastable_var& source,
                                         const KORICutAndPastable_var& target,
                                         const KORListValKORISpecObject_var& features) {
    KORListValKORISpecObject_var extracted;
    KORListValKORISpecObject_var copies;
    if (!source || !target || FAILED(source->Extract(features, extracted)) ||
        FAILED(target->Paste(extracted, copies))) {
        return {};
    }
    while (copies.Size() > features.Size()) copies.RemovePosition(copies.Size());
    return copies;
}
