#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEHyperelasticMaterialModel.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModuleCatalog.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/TIEZELIHyperelasticMaterialModel.h"
#include "framework/KORDictionary.h"

KORImplementClass(ZELEHyperelasticMaterialModel, KORClassKind::DataExtension,
                  ZELLateType::ZELHyperelasticMaterialModelLT.c_str(), kZELModule)

KORBaseUnknown* ZELEHyperelasticMaterialModel::CreateItself() {
    return new ZELEHyperelasticMaterialModel;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEZELIHyperelasticMaterialModelZELEHyperelasticMaterialModel(
    KORBaseUnknown* implementation, KORBaseUnknown* outer) {
    return KORCreateTie<TIEZELIHyperelasticMaterialModel<ZELEHyperelasticMaterialModel>>(implementation,
                                                                                         outer);
}

namespace {

const KORFillDictionary entry(ZELEHyperelasticMaterialModel::MetaObject(),
                              ZELIHyperelasticMaterialModel::MetaObject(),
                              CreateTIEZELIHyperelasticMaterialModelZELEHyperelasticMaterialModel, nullptr,
                              1);

KORRawColldouble ListOf(const ZELCftArraydouble& row) {
    KORRawColldouble values;
    values.Reserve(row.size());
    for (int column = 0; column < row.size(); ++column) values.Append(row[column]);
    return values;
}

}  // namespace

// An extension owns its feature anyway; this handle is the interface under which the model works on it.
ZELEHyperelasticMaterialModel::ZELEHyperelasticMaterialModel() : feature_(KORISpecObject_var::Of(this)) {}

HRESULT ZELEHyperelasticMaterialModel::GetStrainEnergyPotentialOrder(int& order) {
    return ZELFailOnly(
        ZELGetValue(feature_.Get(), ZELKeyOnce(ZELKey::HyperelasticMatModelPotentialOrder), order));
}

HRESULT ZELEHyperelasticMaterialModel::SetStrainEnergyPotentialOrder(int order) {
    return ZELFailOnly(
        ZELSetValue(feature_.ForWriting(), ZELKeyOnce(ZELKey::HyperelasticMatModelPotentialOrder), order));
}

HRESULT ZELEHyperelasticMaterialModel::GetPropertyTemperatureDependent(unsigned char& dependent) {
    return ZELFailOnly(
        ZELGetValue(feature_.Get(), ZELKeyOnce(ZELKey::HyperelasticMatModelTempDependentFlag), dependent));
}

HRESULT ZELEHyperelasticMaterialModel::SetPropertyTemperatureDependent(unsigned char dependent) {
    return ZELFailOnly(ZELSetValue(feature_.ForWriting(),
                                   ZELKeyOnce(ZELKey::HyperelasticMatModelTempDependentFlag), dependent));
}

HRESULT ZELEHyperelasticMaterialModel::GetPropertyDataFile(KORUnicodeString& name) {
    return ZELFailOnly(ZELGetValue(feature_.Get(), ZELKeyOnce(ZELKey::HyperelasticMatModelDataFile), name));
}

HRESULT ZELEHyperelasticMaterialModel::SetPropertyDataFile(const KORUnicodeString& name) {
    return ZELFailOnly(
        ZELSetValue(feature_.ForWriting(), ZELKeyOnce(ZELKey::HyperelasticMatModelDataFile), name));
}

HRESULT ZELEHyperelasticMaterialModel::SetPropertyData(const ZELCftArrayZELCftArrayDouble& rows) {
    const auto access = KORISpecAttrAccess_var::Of(feature_.ForWriting());
    ZELKeyOnce listKey(ZELKey::HyperelasticMatModelData);
    KORISpecAttrKey* list = access ? listKey.Resolve(*access) : nullptr;
    if (!list) return E_FAIL;
    access->RemoveAllValues(list);
    ForgetLostRows();
    FitRows(rows.size());
    for (int position = 1; position <= rows_.Size(); ++position) {
        const KORISpecObject_var row = rows_[position];
        const HRESULT status =
            ZELSetValue(row.Get(), ZELKeyOnce(ZELKey::MaterialModelRowData), ListOf(rows[position - 1]));
        if (FAILED(status)) return E_FAIL;
        access->AppendComponent(list, KORBaseUnknown_var(row).Get());
    }
    return S_OK;
}

/// Forgets the rows that undo, or somebody else, took out of their container: what they were given would be
/// lost with them. An empty entry was never a row and stays.
void ZELEHyperelasticMaterialModel::ForgetLostRows() {
    for (int position = rows_.Size(); position >= 1; --position) {
        if (rows_[position] && !ZELContainerOf(rows_[position])) rows_.RemovePosition(position);
    }
}

/// Makes the remembered row features as many as there are rows. Shrinking keeps the first ones and the last
/// one, which moves up to the end: documents written before were built that way.
void ZELEHyperelasticMaterialModel::FitRows(int count) {
    if (count == 0) {
        rows_.RemoveAll();
        return;
    }
    for (int position = rows_.Size() - 1; position >= count; --position) rows_.RemovePosition(position);
    while (rows_.Size() < count) {
        KORISpecObject_var row;
        CreateHyperelasticRowDataFeature(row);
        rows_.Append(row);  // also when it is empty: the write that meets it fails
    }
}

HRESULT ZELEHyperelasticMaterialModel::GetPropertyData(ZELCftArrayZELCftArrayDouble& rows) {
    const auto access = KORISpecAttrAccess_var::Of(feature_.Get());
    ZELKeyOnce listKey(ZELKey::HyperelasticMatModelData);
    KORISpecAttrKey* list = access ? listKey.Resolve(*access) : nullptr;
    if (!list) return E_FAIL;
    const std::unique_ptr<KORListValKORISpecObject_var> features(access->GetListOfComponents(list));
    if (!features) return E_FAIL;
    for (int position = 1; position <= features->Size(); ++position) {
        std::unique_ptr<KORRawColldouble> values;
        const HRESULT status =
            ZELGetValue((*features)[position].Get(), ZELKeyOnce(ZELKey::MaterialModelRowData), values);
        if (FAILED(status)) return E_FAIL;
        if (values) rows.push_back(ZELCftArraydouble(values->Size(), values->Data()));
    }
    return S_OK;
}

HRESULT ZELEHyperelasticMaterialModel::CreateHyperelasticRowDataFeature(KORISpecObject_var& row) {
    if (!feature_) return E_FAIL;
    const KORIContainer_var container(ZELContainerOf(feature_.Get()));
    if (!container) return E_FAIL;
    return ZELInstantiateAlone(ZELLateType::ZELMaterialModelRowDataLT, ZELLateType::ZELMaterialModelRowDataLT,
                               container.Get(), row);
}
