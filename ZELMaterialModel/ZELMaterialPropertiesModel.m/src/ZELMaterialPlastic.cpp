#include "ZELMaterialModel/include/ZELMaterialPlastic.h"

#include <utility>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModuleCatalog.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTableDescription.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "framework/KORDiagnostic.h"
#include "framework/KORFatalError.h"

namespace {

ZELKeySlot columns[] = {ZELKeySlot(ZELKey::StressData), ZELKeySlot(ZELKey::StrainData),
                        ZELKeySlot(ZELKey::TemperatureData)};

ZELTableDescription description{
    .component = ZELKey::ZELPlastic,
    .enabled = ZELKeySlot(ZELKey::ZELPlasticFlag),
    .temperatureDependent = ZELKeySlot(ZELKey::PlasticTemperatureDependent),
    .dataFile = ZELKeySlot(ZELKey::DataFile),
    .columns = columns,
    .noFeature = "No ZELPlastic object found !",
    .inconsistent = "The Plastic data is inconsistent !",
    .inconsistentStatus = E_FAIL,
};

ZELKeySlot hardeningType(ZELKey::PlasticHardeningType);
ZELKeySlot johnsonCookData(ZELKey::JohnsonCookData_v2);

void Fatal(const char* text, int line) {
    KORFatalError(text, "ZELMaterialPlastic", line);
}

bool IsCurve(const KORUnicodeString& type) {
    return type == ZELKeyword::KinematicHardening || type == ZELKeyword::IsotropicHardening;
}

}  // namespace

ZELMaterialPlastic::ZELMaterialPlastic(KORISpecObject* material) : ZELTableBehavior(material, description) {
    if (IsBound()) Report(InitPlasticProperties(), "Initialization of ZELPlastic failed !");
}

HRESULT ZELMaterialPlastic::InitPlasticProperties() {
    Report(GetPropertyPlasticEnabled(), "Can't get property plastic enabled");
    Report(GetPropertyTemperatureDependent(), "Can't get property temperature dependent");
    Report(GetPropertyPlasticityData(), "Can't get plasticity data");
    Report(GetPropertyDataFile(), "Can't get property plastic data file");
    return S_OK;
}

HRESULT ZELMaterialPlastic::GetHardeningType(KORUnicodeString& type) {
    return ZELGetValue(Feature(), hardeningType, type);
}

HRESULT ZELMaterialPlastic::SetHardeningType(const KORUnicodeString& type) {
    const HRESULT status = ZELSetValue(FeatureForWriting(), hardeningType, type);
    return SUCCEEDED(status) ? E_FAIL : status;
}

KORUnicodeString ZELMaterialPlastic::HardeningType() {
    KORUnicodeString type;
    GetHardeningType(type);
    return type;
}

ZELCftArrayZELCftArrayDouble ZELMaterialPlastic::GetPlasticDataArray() {
    Report(GetPropertyPlasticityData(), "GetPlasticDataArray : Can't get plasticity data");
    return Table();
}

HRESULT ZELMaterialPlastic::SetPlasticDataArray(const ZELCftArrayZELCftArrayDouble& rows) {
    Table() = rows;
    return SetPropertyPlasticityData();
}

HRESULT ZELMaterialPlastic::SetPropertyPlasticityData() {
    const auto access = KORISpecAttrAccess_var::Of(FeatureForWriting());
    if (!access) return E_NOINTERFACE;
    const KORUnicodeString type = HardeningType();
    if (type == ZELKeyword::JohnsonCookHardening) return WriteJohnsonCook(*access);
    if (IsCurve(type)) return WriteCurve();
    Fatal("AssertionFailed:0", __LINE__);  // the reader accepts the empty type, the writer does not
    return S_OK;
}

HRESULT ZELMaterialPlastic::GetPropertyPlasticityData() {
    const auto access = KORISpecAttrAccess_var::Of(Feature());
    if (!access) return E_NOINTERFACE;
    const KORUnicodeString type = HardeningType();
    Table().Initialize(0, nullptr);
    if (type == ZELKeyword::JohnsonCookHardening) return ReadJohnsonCook(*access);
    if (IsCurve(type)) return ReadCurve();
    if (!type.empty()) Fatal("AssertionFailed:0", __LINE__);
    return S_OK;
}

// The curve is not the table of the other behaviors: it has three columns whatever the temperature flag says,
// the writer fills all of them, and the reader has emptied memory before it resolves the first key.

HRESULT ZELMaterialPlastic::WriteCurve() {
    const HRESULT status = ZELWriteColumns(FeatureForWriting(), columns, Table(), true);
    if (FAILED(status)) return status;
    const ZELCftArrayZELCftArrayDouble& table = Table();
    const bool startsPlastic = table.size() > 0 && table[0][1] != 0.0;
    return startsPlastic ? E_FAIL : S_OK;  // reported, not enforced: the lists are stored
}

HRESULT ZELMaterialPlastic::ReadCurve() {
    ZELColumnsRead outcome;
    const HRESULT status = ZELReadColumns(Feature(), columns, true, Table(), outcome);
    if (outcome == ZELColumnsRead::Consistent) return status;
    KORDiagnosticLine(description.inconsistent);
    return description.inconsistentStatus;
}

KORVar<ZELIJohnsonCookData> ZELMaterialPlastic::JohnsonCookData(KORISpecAttrAccess& access) {
    KORISpecAttrKey* key = johnsonCookData.Resolve(access);
    if (!key) {
        Fatal("AssertionFailed:NULL != s_pJohnsonCookDataKey", __LINE__);
        return nullptr;
    }
    auto stored = KORBaseUnknown_var::Adopt(access.GetComponent(key, 0));
    if (!stored) {
        stored = KORISpecObject_var::Adopt(CreateJohnsonCookDataObject(Feature()));
        if (stored) access.SetComponent(key, stored.Get(), 0);
    }
    return ZELIJohnsonCookData_var::Of(stored.Get());
}

HRESULT ZELMaterialPlastic::WriteJohnsonCook(KORISpecAttrAccess& access) {
    if (Table().size() == 0) return E_FAIL;
    const ZELIJohnsonCookData_var data = JohnsonCookData(access);
    if (!data) return E_FAIL;
    const ZELCftArraydouble& row = std::as_const(Table())[0];
    data->SetCoeffA(row[0]);
    data->SetCoeffB(row[1]);
    data->SetCoeffN(row[2]);
    data->SetCoeffM(row[3]);
    data->SetMeltingTemperature(row[4]);
    data->SetTransitionTemperature(row[5]);
    return S_OK;
}

HRESULT ZELMaterialPlastic::ReadJohnsonCook(KORISpecAttrAccess& access) {
    const ZELIJohnsonCookData_var data = JohnsonCookData(access);
    if (!data) return E_FAIL;
    ZELCftArraydouble row(6);
    data->GetCoeffA(row[0]);
    data->GetCoeffB(row[1]);
    data->GetCoeffN(row[2]);
    data->GetCoeffM(row[3]);
    data->GetMeltingTemperature(row[4]);
    data->GetTransitionTemperature(row[5]);
    Table().push_back(std::move(row));
    return S_OK;
}

KORISpecObject* ZELMaterialPlastic::CreateJohnsonCookDataObject(KORISpecObject* plastic) {
    if (!plastic) {
        Fatal("AssertionFailed:NULL_var != piSpecPlastic", __LINE__);
        return nullptr;
    }
    const auto holder = KORBaseUnknown_var::Adopt(plastic->GetFeatContainer());
    if (!holder) {
        Fatal("AssertionFailed:NULL_var != spContainer", __LINE__);
        return nullptr;
    }
    const KORIContainer_var container(holder);
    if (!container) {
        Fatal("AssertionFailed:NULL != pContainer", __LINE__);
        return nullptr;
    }
    KORISpecObject_var created;
    if (FAILED(ZELInstantiateAlone(ZELLateType::ZELPlasticJohnsonCookLT, "", container.Get(), created))) {
        return nullptr;
    }
    const ZELIJohnsonCookData_var data(created);
    if (!data) return nullptr;
    data->SetCoeffA(0.0);
    data->SetCoeffB(0.0);
    data->SetCoeffN(0.0);
    data->SetCoeffM(0.0);
    data->SetMeltingTemperature(273.15);
    data->SetTransitionTemperature(273.15);
    return created.Detach();
}
