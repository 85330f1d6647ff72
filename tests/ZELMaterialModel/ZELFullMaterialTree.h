#pragma once

#include "tests/ZELMaterialModel/ZELMaterialTree.h"

/// A material with a feature for every behavior, as the current release keeps it: it needs no upgrade.
struct ZELFullMaterialTree : ZELMaterialTree {
    explicit ZELFullMaterialTree(ZELTestStore& store)
        : ZELMaterialTree(store),
          userMaterial(Child(store, material, "ZELUserMaterial", "MRVUserMaterialLT")),
          hyperelasticity(Child(store, material, "ZELHyperelasticity", "MRVHyperelasticityLT")),
          model(Child(store, hyperelasticity, "HyperelasticModel_v2", "ZELHyperelasticMaterialModelLT")),
          thickness(Child(store, material, "ZELGasketThicknessBehavior", "ZELGasketThicknessBehaviorLT")),
          loading(Child(store, thickness, "ZELGasketThicknessBehaviorLoading",
                        "ZELGasketThicknessBehaviorLoadingLT")),
          unloadingEP(Child(store, thickness, "ZELGasketThicknessBehaviorUnLoadingElasticPlastic",
                            "ZELGasketThicknessBehaviorUnLoadingEPLT")),
          unloadingDamage(Child(store, thickness, "ZELGasketThicknessBehaviorUnLoadingDamage",
                                "ZELGasketThicknessBehaviorUnLoadingDamageLT")),
          transverseShear(
              Child(store, material, "ZELGasketTransverseShearElastic", "ZELGasketTransverseShearElasticLT")),
          membrane(Child(store, material, "ZELGasketMembraneElastic", "ZELGasketMembraneElasticLT")) {
        SetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired", true);
    }

    KORISpecObject_var userMaterial;
    KORISpecObject_var hyperelasticity;
    KORISpecObject_var model;
    KORISpecObject_var thickness;
    KORISpecObject_var loading;
    KORISpecObject_var unloadingEP;
    KORISpecObject_var unloadingDamage;
    KORISpecObject_var transverseShear;
    KORISpecObject_var membrane;

private:
    static KORISpecObject_var Child(ZELTestStore& store, const KORISpecObject_var& parent,
                                    const char* attribute, const char* lateType) {
        auto child = store.Make(lateType);
        Attach(parent, attribute, child);
        return child;
    }
};
