#pragma once

#include <utility>
#include <vector>

#include "framework/KORName.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"

/// Keys that a gasket behavior takes when it is built, each with the late type of the feature that has it.
using ZELGasketKeyList = std::vector<std::pair<const char*, const char*>>;

/// The 24 of the thickness behavior, in the order in which it takes them.
inline const ZELGasketKeyList& ZELGasketThicknessKeys() {
    static const ZELGasketKeyList keys = {
        {"ZELMaterialLT", "ZELGasketFlag"},
        {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessBehaviorType"},
        {"ZELGasketThicknessBehaviorLT", "ZELGasketYieldOnsetMethodType"},
        {"ZELGasketThicknessBehaviorLT", "ZELGasketYieldOnsetMethodRelativeValue"},
        {"ZELGasketThicknessBehaviorLT", "ZELGasketYieldOnsetMethodClosureValue"},
        {"ZELGasketThicknessBehaviorLT", "ZELGasketTensileStiffnessFactor"},
        {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessUnLoadingFlag"},
        {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingDataFile"},
        {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingTemperatureDepFlag"},
        {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingPressureData"},
        {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingClosureData"},
        {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingTemperatureData"},
        {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPDataFile"},
        {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPTemperatureDepFlag"},
        {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPPressureData"},
        {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPClosureData"},
        {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPPlasticClosureData"},
        {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPTemperatureData"},
        {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageDataFile"},
        {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageTemperatureDepFlag"},
        {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamagePressureData"},
        {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageClosureData"},
        {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageMaxClosureData"},
        {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageTemperatureData"},
    };
    return keys;
}

/// References there are on the material, and on all of these keys together.
struct ZELGasketHoldings {
    ZELGasketHoldings(const ZELFullMaterialTree& tree, const ZELGasketKeyList& list)
        : material(References(tree.material)) {
        for (const auto& [lateType, attribute] : list) keys += KORName::Intern(attribute)->References();
    }
    long material;
    long keys = 0;
};

/// Takes the references that a copied behavior will release without having taken them.
inline void ZELTakeForCopy(const ZELFullMaterialTree& tree, const ZELGasketKeyList& keys) {
    tree.material->AddRef();
    for (const auto& [lateType, attribute] : keys) KORName::Intern(attribute)->AddRef();
}

/// References any object, feature or not, from a component attribute.
inline void ZELAttachObject(const KORISpecObject_var& parent, const char* name,
                            const KORBaseUnknown_var& object) {
    const auto access = Access(parent);
    KORISpecAttrKey* key = access->GetAttrKey(name);
    access->SetComponent(key, object.Get(), 0);
    key->Release();
}
