#include "ZELMaterialModel/include/ZELUserMaterial.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELColumns.h"

namespace {

ZELKeySlot enabledFlag(ZELKey::ZELUserMaterialFlag);
ZELKeySlot materialType(ZELKey::UserMaterialType);
ZELKeySlot unsymmetricMatrix(ZELKey::UnsymmStiffnessMatrix);
ZELKeySlot dependentVariables(ZELKey::UserMaterialDepVar);
ZELKeySlot constants(ZELKey::UserMaterialData);
ZELKeySlot dataFile(ZELKey::UserMaterialDataFile);

template <class Value>
HRESULT Get(KORISpecObject* feature, ZELKeySlot& key, Value& value) {
    return feature ? ZELGetValue(feature, key, value) : E_FAIL;
}

template <class Value>
HRESULT Set(KORISpecObject* feature, ZELKeySlot& key, const Value& value) {
    return feature ? ZELSetValue(feature, key, value) : E_FAIL;
}

}  // namespace

ZELUserMaterial::ZELUserMaterial(KORISpecObject* material) : material_(material) {
    const auto access = KORISpecAttrAccess_var::Of(material);
    if (!access) return;
    feature_ = ZELRememberedFeature(
        KORISpecObject_var::Adopt(access->GetSpecObject(ZELKey::ZELUserMaterial.c_str(), 0)));
}

ZELUserMaterial::~ZELUserMaterial() = default;

HRESULT ZELUserMaterial::GetUserMaterialEnabled(unsigned char& enabled) {
    return Get(material_.Get(), enabledFlag, enabled);
}

HRESULT ZELUserMaterial::SetUserMaterialEnabled(unsigned char enabled) {
    return Set(material_.Get(), enabledFlag, enabled);
}

HRESULT ZELUserMaterial::GetUserMaterialType(KORUnicodeString& type) {
    return Get(feature_.Get(), materialType, type);
}

HRESULT ZELUserMaterial::SetUserMaterialType(const KORUnicodeString& type) {
    return Set(feature_.ForWriting(), materialType, type);
}

HRESULT ZELUserMaterial::GetUnSymmMatrixFlag(unsigned char& unsymmetric) {
    return Get(feature_.Get(), unsymmetricMatrix, unsymmetric);
}

HRESULT ZELUserMaterial::SetUnSymmMatrixFlag(unsigned char unsymmetric) {
    return Set(feature_.ForWriting(), unsymmetricMatrix, unsymmetric);
}

HRESULT ZELUserMaterial::GetUserMaterialDependentVar(int& count) {
    return Get(feature_.Get(), dependentVariables, count);
}

HRESULT ZELUserMaterial::SetUserMaterialDependentVar(int count) {
    return Set(feature_.ForWriting(), dependentVariables, count);
}

HRESULT ZELUserMaterial::GetPropertyDataFile(KORUnicodeString& name) {
    return Get(feature_.Get(), dataFile, name);
}

HRESULT ZELUserMaterial::SetPropertyDataFile(const KORUnicodeString& name) {
    return Set(feature_.ForWriting(), dataFile, name);
}

HRESULT ZELUserMaterial::GetUserMaterialDataArray(ZELCftArrayZELCftArrayDouble& rows) {
    std::unique_ptr<KORRawColldouble> values;
    const HRESULT status = Get(feature_.Get(), constants, values);
    if (FAILED(status) || !values) return status;
    rows.Initialize(0, nullptr);
    rows.Prepare(values->Size());
    for (int position = 1; position <= values->Size(); ++position) {
        const double value = (*values)[position];
        rows.push_back(ZELCftArraydouble(1, &value));
    }
    return S_OK;
}

HRESULT ZELUserMaterial::SetUserMaterialDataArray(const ZELCftArrayZELCftArrayDouble& rows) {
    return Set(feature_.ForWriting(), constants, ZELColumnOf(rows, 0));
}
