#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/ZELMaterialModel/ZELFactory.h"
#include "tests/support/ZELMapMaterial.h"
#include "tests/support/ZELTestStore.h"

/// A feature of the tree: what it is and where it hangs.
struct ZELBranch {
    const char* lateType;
    const char* attribute;
    bool onThickness;  ///< under the gasket thickness feature; else under the root
};

/// In the order in which they are made.
inline const std::vector<ZELBranch> kZELBranches = {
    {"ZELElasticLT", "ZELElastic", false},
    {"ZELPlasticLT", "ZELPlastic", false},
    {"ZELDensityLT", "ZELDensity", false},
    {"ZELThermalExpansionLT", "ZELThermalExpansion", false},
    {"ZELConductivityLT", "ZELConductivity", false},
    {"ZELSpecificHeatLT", "ZELSpecificHeat", false},
    {"MRVUserMaterialLT", "ZELUserMaterial", false},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessBehavior", false},
    {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketThicknessBehaviorLoading", true},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketThicknessBehaviorUnLoadingElasticPlastic", true},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketThicknessBehaviorUnLoadingDamage", true},
    {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElastic", false},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElastic", false},
};

/// The root, its branches, and what the first query adds: hyperelasticity, its model and a superseded one.
inline const long kZELFeaturesOfATree = 1 + static_cast<long>(kZELBranches.size()) + 3;

/// What of the tree a root has, in the order of the branches.
inline std::vector<std::string> ZELHung(const KORISpecObject_var& root) {
    std::vector<std::string> found;
    const auto thickness = Component(root, "ZELGasketThicknessBehavior");
    for (const ZELBranch& branch : kZELBranches) {
        const KORISpecObject_var& parent = branch.onThickness ? thickness : root;
        const auto child = parent ? Component(parent, branch.attribute) : KORISpecObject_var();
        if (child) found.emplace_back(child->GetType().View());
    }
    return found;
}

/// The late types of the first branches.
inline std::vector<std::string> ZELFirstTypes(std::size_t count) {
    std::vector<std::string> types;
    for (std::size_t i = 0; i < count; ++i) types.emplace_back(kZELBranches[i].lateType);
    return types;
}

inline std::vector<std::string> ZELAllTypes() {
    return ZELFirstTypes(kZELBranches.size());
}

/// One call of the factory for a platform material in the store's container.
struct ZELCreation {
    explicit ZELCreation(ZELTestStore& store)
        : material(KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(store.Container()))) {
        KORIMaterialFeature* feature = material.Get();
        KORISpecObject* created = nullptr;
        status = ZELFactory()->CreateZELMaterialProperty(feature, created);
        root = KORISpecObject_var::Adopt(created);
        EXPECT_EQ(feature, static_cast<KORIMaterialFeature*>(material.Get()));
    }

    KORVar<ZELMapMaterial> material;
    HRESULT status;
    KORISpecObject_var root;
};
