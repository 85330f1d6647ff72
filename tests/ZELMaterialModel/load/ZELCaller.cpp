#include "tests/ZELMaterialModel/load/ZELCaller.h"

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterialDensity.h"
#include "ZELMaterialModel/include/ZELMaterialElastic.h"
#include "framework/KORExport.h"

namespace {

ZELGenHeapObjectProxy<ZELMaterialDensity> held;

}  // namespace

extern "C" KOR_EXPORT double StoreDensity(KORISpecObject* feature, double density) {
    ZELGenHeapObjectProxy<ZELMaterialDensity> behavior;
    const double row[] = {density};
    const ZELCftArraydouble rows[] = {ZELCftArraydouble(1, row)};
    if (const auto material = ZELIMaterial_var::Of(feature)) material->GetDensityProperties(behavior);
    if (!behavior.IsObject()) return -1.0;
    if (FAILED(behavior->SetDensityDataArray(ZELCftArrayZELCftArrayDouble(1, rows)))) return -1.0;

    behavior.killObject();
    if (const auto material = ZELIMaterial_var::Of(feature)) material->GetDensityProperties(behavior);
    return behavior->GetDensityDataArray()[0][0];
}

extern "C" KOR_EXPORT int HoldDensity(KORISpecObject* feature) {
    if (const auto material = ZELIMaterial_var::Of(feature)) material->GetDensityProperties(held);
    return held.GetNumberOfReferences();
}

extern "C" KOR_EXPORT void DropDensity() {
    held.killObject();
}

extern "C" KOR_EXPORT HRESULT CutElasticTable(KORISpecObject* feature) {
    ZELGenHeapObjectProxy<ZELMaterialElastic> behavior;
    if (const auto material = ZELIMaterial_var::Of(feature)) material->GetElasticProperties(behavior);
    if (!behavior.IsObject() || FAILED(behavior->SetElasticEnabled(1))) return E_FAIL;
    const double row[] = {210e9, 0.3};
    const ZELCftArraydouble rows[] = {ZELCftArraydouble(2, row), ZELCftArraydouble(2, row)};
    return behavior->SetElasticDataArray(ZELCftArrayZELCftArrayDouble(2, rows));
}

extern "C" KOR_EXPORT ZELCftArrayZELCftArrayDouble* TakeElasticTable(KORISpecObject* feature) {
    ZELGenHeapObjectProxy<ZELMaterialElastic> behavior;
    if (const auto material = ZELIMaterial_var::Of(feature)) material->GetElasticProperties(behavior);
    return behavior.IsObject() ? new ZELCftArrayZELCftArrayDouble(behavior->GetElasticDataArray()) : nullptr;
}
