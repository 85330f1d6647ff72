#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFactInst.h"

#include <new>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "framework/KORDictionary.h"
#include "framework/TIEKORICreateInstance.h"

KORImplementClass(ZELMaterialPropertiesFactInst, KORClassKind::CodeExtension,
                  ZELComponent::ZELMaterialPropertiesFact.c_str(), kZELModule)

KORBaseUnknown* ZELMaterialPropertiesFactInst::CreateItself() {
    return new ZELMaterialPropertiesFactInst;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEKORICreateInstanceZELMaterialPropertiesFactInst(
    KORBaseUnknown* implementation, KORBaseUnknown* outer) {
    return KORCreateTie<TIEKORICreateInstance<ZELMaterialPropertiesFactInst>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELMaterialPropertiesFactInst::MetaObject(), KORICreateInstance::MetaObject(),
                              CreateTIEKORICreateInstanceZELMaterialPropertiesFactInst, nullptr, 1);

}  // namespace

HRESULT ZELMaterialPropertiesFactInst::CreateInstance(void** out) {
    KORBaseUnknown* factory = new (std::nothrow) ZELMaterialPropertiesFact;
    *out = factory;
    return factory ? S_OK : E_OUTOFMEMORY;
}
