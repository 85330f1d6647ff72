#include "zelmat/materials/AnalysisData.h"

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "interfaces/KORIMaterialFeature.h"

namespace zelmat {

ZELIMaterial_var AnalysisDataOf(KORISpecObject* feature) {
    auto data = ZELIMaterial_var::Of(feature);
    if (data) return data;
    const auto material = KORIMaterialFeature_var::Of(feature);
    if (!material) return nullptr;
    const auto hung =
        KORISpecObject_var::Adopt(material->GetApplicativeFeature(ZELMaterial::GetApplicativeSpecName()));
    return hung ? ZELIMaterial_var::Of(hung.Get()) : ZELIMaterial_var();
}

}  // namespace zelmat
