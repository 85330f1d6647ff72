#include "bench/Ground.h"

#include <stdexcept>
#include <string>

namespace bench {

namespace {

constexpr const char* kCatalog = "ZELMaterialPropertiesCatalog.KORfct";
constexpr const char* kClient = "ZELMAR";

struct Branch {
    const char* attribute;  ///< on the parent
    const char* lateType;
};

constexpr Branch kBehaviors[] = {
    {"ZELElastic", "ZELElasticLT"},
    {"ZELPlastic", "ZELPlasticLT"},
    {"ZELDensity", "ZELDensityLT"},
    {"ZELThermalExpansion", "ZELThermalExpansionLT"},
    {"ZELConductivity", "ZELConductivityLT"},
    {"ZELSpecificHeat", "ZELSpecificHeatLT"},
    {"ZELUserMaterial", "MRVUserMaterialLT"},
    {"ZELGasketTransverseShearElastic", "ZELGasketTransverseShearElasticLT"},
    {"ZELGasketMembraneElastic", "ZELGasketMembraneElasticLT"},
};

constexpr Branch kGasketTables[] = {
    {"ZELGasketThicknessBehaviorLoading", "ZELGasketThicknessBehaviorLoadingLT"},
    {"ZELGasketThicknessBehaviorUnLoadingElasticPlastic", "ZELGasketThicknessBehaviorUnLoadingEPLT"},
    {"ZELGasketThicknessBehaviorUnLoadingDamage", "ZELGasketThicknessBehaviorUnLoadingDamageLT"},
};

}  // namespace

Ground::Ground() : platform_(ZEL_CATALOG_FOLDER) {
    if (FAILED(AccessCatalog(kCatalog, kClient, place_.Get(), catalog_))) {
        throw std::runtime_error("the module's catalog cannot be opened");
    }
}

KORISpecObject_var Ground::New(const char* lateType) {
    void* found = nullptr;
    if (FAILED(catalog_->RetrieveStartUp(lateType, "KORISpecObject", &found))) {
        throw std::runtime_error(std::string("the catalog lacks ") + lateType);
    }
    const auto startUp = KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
    return KORISpecObject_var::Adopt(startUp->Instantiate(lateType, place_.Get()));
}

KORISpecObject_var Ground::NewUnder(KORISpecObject* parent, const char* attribute, const char* lateType) {
    auto feature = New(lateType);
    const auto access = KORISpecAttrAccess_var::Of(parent);
    KORISpecAttrKey* key = access->GetAttrKey(attribute);
    if (!key) throw std::runtime_error(std::string("no attribute ") + attribute);
    access->SetComponent(key, KORBaseUnknown_var(feature).Get(), 0);
    key->Release();
    return feature;
}

KORISpecObject_var Ground::NewFactoryTree() {
    auto material = New("ZELMaterialLT");
    for (const Branch& branch : kBehaviors) NewUnder(material.Get(), branch.attribute, branch.lateType);
    const auto thickness =
        NewUnder(material.Get(), "ZELGasketThicknessBehavior", "ZELGasketThicknessBehaviorLT");
    for (const Branch& table : kGasketTables) NewUnder(thickness.Get(), table.attribute, table.lateType);
    return material;
}

KORISpecObject_var Ground::NewCurrentMaterial() {
    auto material = NewFactoryTree();
    const auto hyperelasticity = NewUnder(material.Get(), "ZELHyperelasticity", "MRVHyperelasticityLT");
    NewUnder(hyperelasticity.Get(), "HyperelasticModel_v2", "ZELHyperelasticMaterialModelLT");
    const KORISpecAttrAccess_var access(hyperelasticity);
    KORISpecAttrKey* converted = access->GetAttrKey("HyperelasticUnitUpgradeRequired");
    access->SetBoolean(converted, true, 0);
    converted->Release();
    return material;
}

}  // namespace bench
