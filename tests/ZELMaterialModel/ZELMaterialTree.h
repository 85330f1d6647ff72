#pragma once

#include "tests/support/ZELTestStore.h"

/// A material with a feature of its own for each of the behaviors that every release knew. Nothing is valued
/// but what the catalog gives.
struct ZELMaterialTree {
    explicit ZELMaterialTree(ZELTestStore& store)
        : material(store.Make("ZELMaterialLT")),
          elastic(Child(store, "ZELElastic", "ZELElasticLT")),
          plastic(Child(store, "ZELPlastic", "ZELPlasticLT")),
          density(Child(store, "ZELDensity", "ZELDensityLT")),
          thermalExpansion(Child(store, "ZELThermalExpansion", "ZELThermalExpansionLT")),
          conductivity(Child(store, "ZELConductivity", "ZELConductivityLT")),
          specificHeat(Child(store, "ZELSpecificHeat", "ZELSpecificHeatLT")) {}

    KORISpecObject_var material;
    KORISpecObject_var elastic;
    KORISpecObject_var plastic;
    KORISpecObject_var density;
    KORISpecObject_var thermalExpansion;
    KORISpecObject_var conductivity;
    KORISpecObject_var specificHeat;

private:
    KORISpecObject_var Child(ZELTestStore& store, const char* attribute, const char* lateType) {
        auto child = store.Make(lateType);
        Attach(material, attribute, child);
        return child;
    }
};
