#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupValidity.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "framework/KORDictionary.h"
#include "framework/KORExport.h"
#include "interfaces/TIEKORISamValidity.h"

KORImplementClass(ZELELayupValidity, KORClassKind::DataExtension, ZELLateType::ZELLayupLT.c_str(), kZELModule)

KORBaseUnknown* ZELELayupValidity::CreateItself() {
    return new ZELELayupValidity;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEKORISamValidityZELELayupValidity(KORBaseUnknown* implementation,
                                                                             KORBaseUnknown* outer) {
    return KORCreateTie<TIEKORISamValidity<ZELELayupValidity>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELELayupValidity::MetaObject(), KORISamValidity::MetaObject(),
                              CreateTIEKORISamValidityZELELayupValidity, nullptr, 1);

bool HasMaterial(const KORISpecObject_var& feature) {
    const ZELILayupLayer_var layer(feature);
    KORISpecObject_var material;  // a fresh handle: a layer without a material leaves it alone
    return layer && SUCCEEDED(layer->GetMaterial(material)) && material;
}

}  // namespace

HRESULT ZELELayupValidity::IsValid(const KORISpecObject_var& layup, const void*, std::uint32_t& status) {
    status = 1;
    const ZELILayup_var layers(layup);
    if (!layers) return E_FAIL;
    KORListValKORISpecObject_var list;
    const HRESULT read = layers->GetLayers(list);
    if (FAILED(read)) return read;
    if (list.Size() == 0) return E_FAIL;
    for (int position = 1; position <= list.Size(); ++position) {
        if (!HasMaterial(list[position])) return E_FAIL;
    }
    status = 0;
    return S_OK;
}
