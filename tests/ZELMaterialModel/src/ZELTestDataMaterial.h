#pragma once

#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELPlatformCalls.h"
#include "tests/support/ZELTestStore.h"

/// A current material with density and hyperelasticity in some container, without test data yet.
struct ZELTestDataMaterial {
    ZELTestDataMaterial(ZELTestStore& store, const KORIContainer_var& container)
        : material(store.MakeIn(container, "ZELMaterialLT")),
          density(Child(store, container, material, "ZELDensity", "ZELDensityLT")),
          hyperelasticity(Child(store, container, material, "ZELHyperelasticity", "MRVHyperelasticityLT")),
          model(Child(store, container, hyperelasticity, "HyperelasticModel_v2",
                      "ZELHyperelasticMaterialModelLT")) {
        Child(store, container, material, "ZELUserMaterial", "MRVUserMaterialLT");
        SetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired", true);
    }

    void SwitchOn(bool on) { SetFlag(material, "ZELHyperelasticFlag", on); }

    /// One more test-data feature on the model's list, in some container.
    KORISpecObject_var AddTestData(ZELTestStore& store, const KORIContainer_var& container,
                                   const std::vector<double>& values) {
        auto data = store.MakeIn(container, "ZELMaterialModelRowDataLT");
        SetList(data, "MaterialModelRowData", values);
        AppendComponent(model, "HyperelasticMatModelData", data);
        return data;
    }

    KORISpecObject_var material;
    KORISpecObject_var density;
    KORISpecObject_var hyperelasticity;
    KORISpecObject_var model;

private:
    static KORISpecObject_var Child(ZELTestStore& store, const KORIContainer_var& container,
                                    const KORISpecObject_var& parent, const char* attribute,
                                    const char* lateType) {
        auto child = store.MakeIn(container, lateType);
        Attach(parent, attribute, child);
        return child;
    }
};

/// The container of a feature; null when it lies in none.
inline KORBaseUnknown_var ZELContainerOf(const KORISpecObject_var& feature) {
    const ZELUnrecorded unrecorded;
    return KORBaseUnknown_var::Adopt(feature->GetFeatContainer());
}

inline KORISpecObject_var ZELModelOf(const KORISpecObject_var& material) {
    return Component(Component(material, "ZELHyperelasticity"), "HyperelasticModel_v2");
}

/// What a model lists, by its values; none when the list was never valued.
inline ZELRows ZELTestDataOf(const KORISpecObject_var& model) {
    ZELRows rows;
    for (const auto& data :
         Components(model, "HyperelasticMatModelData").value_or(std::vector<KORISpecObject_var>())) {
        rows.push_back(List(data, "MaterialModelRowData").value_or(std::vector<double>()));
    }
    return rows;
}

inline std::vector<KORBaseUnknown_var> ZELTestDataContainers(const KORISpecObject_var& model) {
    std::vector<KORBaseUnknown_var> containers;
    for (const auto& data :
         Components(model, "HyperelasticMatModelData").value_or(std::vector<KORISpecObject_var>())) {
        containers.push_back(ZELContainerOf(data));
    }
    return containers;
}
