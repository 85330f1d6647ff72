#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"

#include <array>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELBoundAccess.h"
#include "ZELShared/ZELGenComparator.h"
#include "framework/KORDiagnostic.h"

namespace {

/// The keys in the order in which they are resolved. The first belongs to the material, the next six to the
/// gasket thickness feature, then five, six and six to the three table features.
enum KeyIndex : std::size_t {
    kEnabled,
    kThicknessType,
    kYieldOnsetMethod,
    kYieldOnsetRelative,
    kYieldOnsetClosure,
    kTensileStiffness,
    kUnloadingGiven,
    kLoadingFile,
    kLoadingTemperatureDependent,
    kLoadingColumns,
    kUnloadingEPFile = kLoadingColumns + 3,
    kUnloadingEPTemperatureDependent,
    kUnloadingEPColumns,
    kUnloadingDamageFile = kUnloadingEPColumns + 4,
    kUnloadingDamageTemperatureDependent,
    kUnloadingDamageColumns,
    kKeys = kUnloadingDamageColumns + 4,
};

constexpr const KORUnicodeString* kThicknessKeys[] = {
    &ZELKey::ZELGasketThicknessBehaviorType,         &ZELKey::ZELGasketYieldOnsetMethodType,
    &ZELKey::ZELGasketYieldOnsetMethodRelativeValue, &ZELKey::ZELGasketYieldOnsetMethodClosureValue,
    &ZELKey::ZELGasketTensileStiffnessFactor,        &ZELKey::ZELGasketThicknessUnLoadingFlag,
};
constexpr const KORUnicodeString* kLoadingKeys[] = {
    &ZELKey::ZELGasketLoadingDataFile,        &ZELKey::ZELGasketLoadingTemperatureDepFlag,
    &ZELKey::ZELGasketLoadingPressureData,    &ZELKey::ZELGasketLoadingClosureData,
    &ZELKey::ZELGasketLoadingTemperatureData,
};
constexpr const KORUnicodeString* kUnloadingEPKeys[] = {
    &ZELKey::ZELGasketUnLoadingEPDataFile,           &ZELKey::ZELGasketUnLoadingEPTemperatureDepFlag,
    &ZELKey::ZELGasketUnLoadingEPPressureData,       &ZELKey::ZELGasketUnLoadingEPClosureData,
    &ZELKey::ZELGasketUnLoadingEPPlasticClosureData, &ZELKey::ZELGasketUnLoadingEPTemperatureData,
};
constexpr const KORUnicodeString* kUnloadingDamageKeys[] = {
    &ZELKey::ZELGasketUnLoadingDamageDataFile,       &ZELKey::ZELGasketUnLoadingDamageTemperatureDepFlag,
    &ZELKey::ZELGasketUnLoadingDamagePressureData,   &ZELKey::ZELGasketUnLoadingDamageClosureData,
    &ZELKey::ZELGasketUnLoadingDamageMaxClosureData, &ZELKey::ZELGasketUnLoadingDamageTemperatureData,
};

/// Is this number of the curve's first row anything but 0?
bool IsOff(double number) {
    return ZELGenComparator::CompareDouble(number, 0.0) == 1;
}

}  // namespace

ZELGasketThicknessBehavior::ZELGasketThicknessBehavior(KORISpecObject* material)
    : ZELGasketBehavior(material) {
    static_assert(kKeys <= kMostKeys);
    materialAccess_ = OpenMaterial();
    if (materialAccess_ && BindFeatures(*materialAccess_)) TakeKeys();
}

bool ZELGasketThicknessBehavior::BindFeatures(KORISpecAttrAccess& material) {
    const KORBaseUnknown_var held = Held(material, ZELKey::ZELGasketThicknessBehavior);
    if (!held) return false;
    thickness_ = ZELRememberedFeature(KORISpecObject_var(held));
    // The membrane's name: the constructors of the gasket behaviors share this text.
    if (!thickness_) KORDiagnosticLine("No ZELGasketMembraneBehavior object found !");
    thicknessAccess_ = KORISpecAttrAccess_var(held);
    if (!thicknessAccess_) return false;

    const struct {
        const KORUnicodeString& name;
        ZELRememberedFeature& feature;
        KORISpecAttrAccess_var& access;
    } tables[] = {
        {ZELKey::ZELGasketThicknessBehaviorLoading, loading_, loadingAccess_},
        {ZELKey::ZELGasketThicknessBehaviorUnLoadingElasticPlastic, unloadingEP_, unloadingEPAccess_},
        {ZELKey::ZELGasketThicknessBehaviorUnLoadingDamage, unloadingDamage_, unloadingDamageAccess_},
    };
    for (const auto& table : tables) {
        const KORISpecObject_var feature(Held(*thicknessAccess_, table.name));
        table.feature = ZELRememberedFeature(feature);
        table.access = KORISpecAttrAccess_var(feature);
        if (!table.access) return false;
    }
    return true;
}

void ZELGasketThicknessBehavior::TakeKeys() {
    const auto takeAll = [this](const KORISpecAttrAccess_var& feature, auto& names) {
        for (const KORUnicodeString* name : names) {
            if (!TakeKey(feature, *name)) return false;
        }
        return true;
    };
    if (!TakeKey(materialAccess_, ZELKey::ZELGasketFlag) || !takeAll(thicknessAccess_, kThicknessKeys) ||
        !takeAll(loadingAccess_, kLoadingKeys) || !takeAll(unloadingEPAccess_, kUnloadingEPKeys)) {
        return;
    }
    takeAll(unloadingDamageAccess_, kUnloadingDamageKeys);
}

HRESULT ZELGasketThicknessBehavior::GetGasketEnabled(unsigned char& enabled) {
    return ZELGetBound(materialAccess_, Key(kEnabled), enabled);
}

HRESULT ZELGasketThicknessBehavior::SetGasketEnabled(const unsigned char& enabled) {
    return ZELSetBound(materialAccess_, Key(kEnabled), enabled);
}

HRESULT ZELGasketThicknessBehavior::GetGasketThicknessBehaviorType(GasketThicknessType& type) {
    int value = 0;
    const HRESULT status = ZELGetBound(thicknessAccess_, Key(kThicknessType), value);
    if (SUCCEEDED(status)) type = static_cast<GasketThicknessType>(value);
    return status;
}

HRESULT ZELGasketThicknessBehavior::SetGasketThicknessBehaviorType(const GasketThicknessType& type) {
    return ZELSetBound(ForWriting(thickness_, thicknessAccess_), Key(kThicknessType), static_cast<int>(type));
}

HRESULT ZELGasketThicknessBehavior::GetGasketYieldOnsetMethodType(GasketYieldOnsetMethodType& method) {
    int value = 0;
    const HRESULT status = ZELGetBound(thicknessAccess_, Key(kYieldOnsetMethod), value);
    if (SUCCEEDED(status)) method = static_cast<GasketYieldOnsetMethodType>(value);
    return status;
}

HRESULT ZELGasketThicknessBehavior::SetGasketYieldOnsetMethodType(const GasketYieldOnsetMethodType& method) {
    return ZELSetBound(ForWriting(thickness_, thicknessAccess_), Key(kYieldOnsetMethod),
                       static_cast<int>(method));
}

HRESULT ZELGasketThicknessBehavior::GetGasketYieldOnsetMethodRelativeValue(double& value) {
    return ZELGetBound(thicknessAccess_, Key(kYieldOnsetRelative), value);
}

HRESULT ZELGasketThicknessBehavior::SetGasketYieldOnsetMethodRelativeValue(const double& value) {
    return ZELSetBound(ForWriting(thickness_, thicknessAccess_), Key(kYieldOnsetRelative), value);
}

HRESULT ZELGasketThicknessBehavior::GetGasketYieldOnsetMethodClosureValue(double& value) {
    return ZELGetBound(thicknessAccess_, Key(kYieldOnsetClosure), value);
}

HRESULT ZELGasketThicknessBehavior::SetGasketYieldOnsetMethodClosureValue(const double& value) {
    return ZELSetBound(ForWriting(thickness_, thicknessAccess_), Key(kYieldOnsetClosure), value);
}

HRESULT ZELGasketThicknessBehavior::GetGasketTensileStiffnessFactor(double& value) {
    return ZELGetBound(thicknessAccess_, Key(kTensileStiffness), value);
}

HRESULT ZELGasketThicknessBehavior::SetGasketTensileStiffnessFactor(const double& value) {
    return ZELSetBound(ForWriting(thickness_, thicknessAccess_), Key(kTensileStiffness), value);
}

HRESULT ZELGasketThicknessBehavior::GetGasketThicknessUnLoadingFlag(unsigned char& given) {
    return ZELGetBound(thicknessAccess_, Key(kUnloadingGiven), given);
}

HRESULT ZELGasketThicknessBehavior::SetGasketThicknessUnLoadingFlag(const unsigned char& given) {
    return ZELSetBound(ForWriting(thickness_, thicknessAccess_), Key(kUnloadingGiven), given);
}

HRESULT ZELGasketThicknessBehavior::GetGasketLoadingDataFile(KORUnicodeString& name) {
    return ZELGetBound(loadingAccess_, Key(kLoadingFile), name);
}

HRESULT ZELGasketThicknessBehavior::SetGasketLoadingDataFile(const KORUnicodeString& name) {
    return ZELSetBound(ForWriting(loading_, loadingAccess_), Key(kLoadingFile), name);
}

HRESULT ZELGasketThicknessBehavior::GetGasketLoadingTemperatureDependentFlag(unsigned char& dependent) {
    return ZELGetBound(loadingAccess_, Key(kLoadingTemperatureDependent), dependent);
}

HRESULT ZELGasketThicknessBehavior::SetGasketLoadingTemperatureDependentFlag(const unsigned char& dependent) {
    return ZELSetBound(ForWriting(loading_, loadingAccess_), Key(kLoadingTemperatureDependent), dependent);
}

HRESULT ZELGasketThicknessBehavior::GetGasketLoadingDataArray(ZELCftArrayZELCftArrayDouble& rows) {
    return ZELGetBoundColumns(
        loadingAccess_, std::array{Key(kLoadingColumns), Key(kLoadingColumns + 1), Key(kLoadingColumns + 2)},
        rows);
}

HRESULT ZELGasketThicknessBehavior::SetGasketLoadingDataArray(const ZELCftArrayZELCftArrayDouble& rows) {
    const HRESULT status = ZELSetBoundColumns(
        ForWriting(loading_, loadingAccess_),
        std::array{Key(kLoadingColumns), Key(kLoadingColumns + 1), Key(kLoadingColumns + 2)}, rows);
    if (FAILED(status)) return status;
    if (rows.size() > 0 && (IsOff(rows[0][0]) || IsOff(rows[0][1]))) return E_FAIL;
    return rows.size() < 3 ? E_FAIL : S_OK;
}

HRESULT ZELGasketThicknessBehavior::GetGasketUnLoadingEPDataFile(KORUnicodeString& name) {
    return ZELGetBound(unloadingEPAccess_, Key(kUnloadingEPFile), name);
}

HRESULT ZELGasketThicknessBehavior::SetGasketUnLoadingEPDataFile(const KORUnicodeString& name) {
    return ZELSetBound(ForWriting(unloadingEP_, unloadingEPAccess_), Key(kUnloadingEPFile), name);
}

HRESULT ZELGasketThicknessBehavior::GetGasketUnLoadingEPTemperatureDependentFlag(unsigned char& dependent) {
    return ZELGetBound(unloadingEPAccess_, Key(kUnloadingEPTemperatureDependent), dependent);
}

HRESULT ZELGasketThicknessBehavior::SetGasketUnLoadingEPTemperatureDependentFlag(
    const unsigned char& dependent) {
    return ZELSetBound(ForWriting(unloadingEP_, unloadingEPAccess_), Key(kUnloadingEPTemperatureDependent),
                       dependent);
}

HRESULT ZELGasketThicknessBehavior::GetGasketUnLoadingEPDataArray(ZELCftArrayZELCftArrayDouble& rows) {
    return ZELGetBoundColumns(unloadingEPAccess_,
                              std::array{Key(kUnloadingEPColumns), Key(kUnloadingEPColumns + 1),
                                         Key(kUnloadingEPColumns + 2), Key(kUnloadingEPColumns + 3)},
                              rows);
}

HRESULT ZELGasketThicknessBehavior::SetGasketUnLoadingEPDataArray(const ZELCftArrayZELCftArrayDouble& rows) {
    return ZELSetBoundColumns(ForWriting(unloadingEP_, unloadingEPAccess_),
                              std::array{Key(kUnloadingEPColumns), Key(kUnloadingEPColumns + 1),
                                         Key(kUnloadingEPColumns + 2), Key(kUnloadingEPColumns + 3)},
                              rows);
}

HRESULT ZELGasketThicknessBehavior::GetGasketUnLoadingDamageDataFile(KORUnicodeString& name) {
    return ZELGetBound(unloadingDamageAccess_, Key(kUnloadingDamageFile), name);
}

HRESULT ZELGasketThicknessBehavior::SetGasketUnLoadingDamageDataFile(const KORUnicodeString& name) {
    return ZELSetBound(ForWriting(unloadingDamage_, unloadingDamageAccess_), Key(kUnloadingDamageFile), name);
}

HRESULT ZELGasketThicknessBehavior::GetGasketUnLoadingDamageTemperatureDependentFlag(
    unsigned char& dependent) {
    return ZELGetBound(unloadingDamageAccess_, Key(kUnloadingDamageTemperatureDependent), dependent);
}

HRESULT ZELGasketThicknessBehavior::SetGasketUnLoadingDamageTemperatureDependentFlag(
    const unsigned char& dependent) {
    return ZELSetBound(ForWriting(unloadingDamage_, unloadingDamageAccess_),
                       Key(kUnloadingDamageTemperatureDependent), dependent);
}

HRESULT ZELGasketThicknessBehavior::GetGasketUnLoadingDamageDataArray(ZELCftArrayZELCftArrayDouble& rows) {
    return ZELGetBoundColumns(unloadingDamageAccess_,
                              std::array{Key(kUnloadingDamageColumns), Key(kUnloadingDamageColumns + 1),
                                         Key(kUnloadingDamageColumns + 2), Key(kUnloadingDamageColumns + 3)},
                              rows);
}

HRESULT ZELGasketThicknessBehavior::SetGasketUnLoadingDamageDataArray(
    const ZELCftArrayZELCftArrayDouble& rows) {
    return ZELSetBoundColumns(ForWriting(unloadingDamage_, unloadingDamageAccess_),
                              std::array{Key(kUnloadingDamageColumns), Key(kUnloadingDamageColumns + 1),
                                         Key(kUnloadingDamageColumns + 2), Key(kUnloadingDamageColumns + 3)},
                              rows);
}
