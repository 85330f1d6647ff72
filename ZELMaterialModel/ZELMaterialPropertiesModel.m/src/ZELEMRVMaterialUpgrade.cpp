#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEMRVMaterialUpgrade.h"

#include <algorithm>
#include <utility>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELHyperelasticUnits.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModule.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELModuleCatalog.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTestData.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "ZELMaterialModel/include/ZELHyperelastic.h"
#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORDictionary.h"
#include "framework/KORUndoCount.h"
#include "interfaces/KORIApplicativeContainers.h"
#include "interfaces/KORILinkableObject.h"
#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/TIEKORISamUpgrade.h"

KORImplementClass(ZELEMRVMaterialUpgrade, KORClassKind::DataExtension, ZELLateType::ZELMaterialLT.c_str(),
                  kZELModule)

KORBaseUnknown* ZELEMRVMaterialUpgrade::CreateItself() {
    return new ZELEMRVMaterialUpgrade;
}

extern "C" KOR_EXPORT KORIUnknown* CreateTIEKORISamUpgradeZELEMRVMaterialUpgrade(
    KORBaseUnknown* implementation, KORBaseUnknown* outer) {
    return KORCreateTie<TIEKORISamUpgrade<ZELEMRVMaterialUpgrade>>(implementation, outer);
}

namespace {

const KORFillDictionary entry(ZELEMRVMaterialUpgrade::MetaObject(), KORISamUpgrade::MetaObject(),
                              CreateTIEKORISamUpgradeZELEMRVMaterialUpgrade, nullptr, 1);

std::uint64_t upgradesRun = 0;  ///< of all materials

/// Counts up with everything that can put what a query found out of date.
std::uint64_t ChangesSoFar() {
    return KORUndoCount() + upgradesRun;
}

KORISpecObject_var ComponentOf(KORISpecObject* feature, const KORUnicodeString& name) {
    const auto access = KORISpecAttrAccess_var::Of(feature);
    return access ? KORISpecObject_var::Adopt(access->GetSpecObject(name.c_str(), 0)) : KORISpecObject_var();
}

/// The document's old container; empty when it has none.
KORBaseUnknown_var OldContainerOf(KORDocument* document) {
    void* found = nullptr;
    const HRESULT status = KORGetApplicativeContainer(document, IID_KORIContainer,
                                                      ZELCatalog::OldApplicativeContainer.c_str(), &found);
    if (FAILED(status)) return nullptr;
    return KORBaseUnknown_var(KORIContainer_var::Adopt(static_cast<KORIContainer*>(found)));
}

/// Does this component attribute, where the feature has it, hold anything?
bool Holds(KORISpecObject* feature, const KORUnicodeString& name) {
    KORBaseUnknown_var component;
    return SUCCEEDED(ZELGetValue(feature, ZELKeyOnce(name), component)) && component;
}

HRESULT RemoveValue(KORISpecObject* feature, const KORUnicodeString& name) {
    return ZELUseAttribute(feature, ZELKeyOnce(name),
                           [](KORISpecAttrAccess& access, KORISpecAttrKey* key) { access.RemoveValue(key); });
}

/// Makes a feature beside the material, named after its late type, and stores it under a component attribute.
HRESULT AddComponent(KORICatalog& catalog, KORIContainer* container, const KORUnicodeString& lateType,
                     KORISpecObject* parent, const KORUnicodeString& name, KORISpecObject_var& created) {
    if (FAILED(ZELInstantiate(catalog, lateType, lateType, container, created))) return E_FAIL;
    return ZELFailOnly(ZELSetValue(parent, ZELKeyOnce(name), KORBaseUnknown_var(created)));
}

}  // namespace

bool ZELEMRVMaterialUpgrade::IsUpgradeNeeded() {
    needs_ = {};
    asked_ = ChangesSoFar();
    const auto material = KORISpecObject_var::Of(this);
    const KORISpecAttrAccess_var access(material);
    if (!access) return false;
    LookForBehaviors(*access);

    const KORILinkableObject_var linkable(material);
    KORDocument* document = linkable ? linkable->GetDocument() : nullptr;
    if (!document) return false;
    const KORBaseUnknown_var own = ZELContainerOf(material);
    const KORBaseUnknown_var old = OldContainerOf(document);
    needs_.inOldApplicativeContainer = old && own == old;
    KORBaseUnknown_var testData;
    if (!needs_.inOldApplicativeContainer && SUCCEEDED(ZELFindTestDataContainer(material.Get(), testData))) {
        needs_.testDataInForeignContainer = !(testData == own);
    }
    return needs_.Any();
}

void ZELEMRVMaterialUpgrade::LookForBehaviors(KORISpecAttrAccess& material) {
    const auto find = [&material](const KORUnicodeString& name) {
        return KORISpecObject_var::Adopt(material.GetSpecObject(name.c_str(), 0));
    };
    if (!find(ZELKey::ZELUserMaterial)) needs_.userMaterial = 1;
    const KORISpecObject_var hyperelasticity = find(ZELKey::ZELHyperelasticity);
    if (!hyperelasticity) {
        needs_.hyperelasticity = needs_.hyperelasticModelV2 = needs_.hyperelasticUnits = 1;
    }
    const KORISpecObject_var plastic = find(ZELKey::ZELPlastic);
    needs_.johnsonCookV2 = Holds(plastic.Get(), ZELKey::JohnsonCookData);
    if (!hyperelasticity) return;
    needs_.hyperelasticModelV2 = Holds(hyperelasticity.Get(), ZELKey::HyperelasticModel);
    unsigned char converted = 0;
    const HRESULT status =
        ZELGetValue(hyperelasticity.Get(), ZELKeyOnce(ZELKey::HyperelasticUnitUpgradeRequired), converted);
    needs_.hyperelasticUnits = SUCCEEDED(status) && !converted;
}

HRESULT ZELEMRVMaterialUpgrade::Upgrade() {
    // One query is good for one upgrade, and for what it looked at: what is done by now, by a redo or with
    // another material that has features in common, is never done twice.
    if (needs_.Any() && asked_ != ChangesSoFar()) IsUpgradeNeeded();
    const Needs needs = std::exchange(needs_, {});
    ++upgradesRun;
    Work work;
    work.material = KORISpecObject_var::Of(this);
    if (!work.material) return E_FAIL;
    work.container = KORIContainer_var(ZELContainerOf(work.material));
    if (!work.container) return E_FAIL;
    HRESULT status = ZELOpenModuleCatalog(work.container.Get(), work.catalog);
    if (FAILED(status)) return status;

    const struct {
        unsigned char needed;
        HRESULT (*run)(const Work&);
    } steps[] = {
        {needs.userMaterial, AddUserMaterial},
        {needs.hyperelasticity, AddHyperelasticity},
        {needs.johnsonCookV2, MoveJohnsonCook},
        {needs.hyperelasticModelV2, MoveHyperelasticModel},
        {needs.hyperelasticUnits, ConvertHyperelasticUnits},
        {needs.inOldApplicativeContainer, LeaveOldContainer},
        {needs.testDataInForeignContainer, FetchTestData},
    };
    for (const auto& step : steps) {
        if (!step.needed) continue;
        status = step.run(work);
        if (FAILED(status)) return status;
    }
    return S_OK;
}

HRESULT ZELEMRVMaterialUpgrade::AddUserMaterial(const Work& work) {
    KORISpecObject_var created;
    return AddComponent(*work.catalog, work.container.Get(), ZELLateType::MRVUserMaterialLT,
                        work.material.Get(), ZELKey::ZELUserMaterial, created);
}

HRESULT ZELEMRVMaterialUpgrade::AddHyperelasticity(const Work& work) {
    KORISpecObject_var hyperelasticity;
    const HRESULT status =
        AddComponent(*work.catalog, work.container.Get(), ZELLateType::MRVHyperelasticityLT,
                     work.material.Get(), ZELKey::ZELHyperelasticity, hyperelasticity);
    if (FAILED(status)) return status;
    KORISpecObject_var model;
    return AddComponent(*work.catalog, work.container.Get(), ZELLateType::ZELHyperelasticMaterialModelLT,
                        hyperelasticity.Get(), ZELKey::HyperelasticModel_v2, model);
}

HRESULT ZELEMRVMaterialUpgrade::MoveJohnsonCook(const Work& work) {
    const KORISpecObject_var plastic = ComponentOf(work.material.Get(), ZELKey::ZELPlastic);
    KORBaseUnknown_var stored;
    ZELGetValue(plastic.Get(), ZELKeyOnce(ZELKey::JohnsonCookData), stored);
    double a = 0.0, b = 0.0, n = 0.0, m = 0.0, melting = 0.0, transition = 0.0;
    if (const ZELIJohnsonCookData_var old(stored); old) {
        old->GetCoeffA(a);
        old->GetCoeffB(b);
        old->GetCoeffN(n);
        old->GetCoeffM(m);
        old->GetMeltingTemperature(melting);
        old->GetTransitionTemperature(transition);
    }
    const auto created =
        KORISpecObject_var::Adopt(ZELMaterialPlastic::CreateJohnsonCookDataObject(plastic.Get()));
    const ZELIJohnsonCookData_var data(created);
    if (!data) return E_FAIL;
    data->SetCoeffA(a);
    data->SetCoeffB(b);
    data->SetCoeffN(n);
    data->SetCoeffM(m);
    data->SetMeltingTemperature(melting);
    data->SetTransitionTemperature(transition);
    const HRESULT status =
        ZELSetValue(plastic.Get(), ZELKeyOnce(ZELKey::JohnsonCookData_v2), KORBaseUnknown_var(created));
    if (FAILED(status)) return E_FAIL;
    return ZELFailOnly(RemoveValue(plastic.Get(), ZELKey::JohnsonCookData));
}

HRESULT ZELEMRVMaterialUpgrade::MoveHyperelasticModel(const Work& work) {
    const KORISpecObject_var hyperelasticity = ComponentOf(work.material.Get(), ZELKey::ZELHyperelasticity);
    KORBaseUnknown_var stored;
    ZELGetValue(hyperelasticity.Get(), ZELKeyOnce(ZELKey::HyperelasticModel), stored);
    KORISpecObject_var created;
    const HRESULT status =
        ZELInstantiate(*work.catalog, ZELLateType::ZELHyperelasticMaterialModelLT,
                       ZELLateType::ZELHyperelasticMaterialModelLT, work.container.Get(), created);
    if (FAILED(status)) return status;
    const ZELIHyperelasticMaterialModel_var model(created);
    if (!model) return E_FAIL;

    int order = 0;
    unsigned char temperatureDependent = 0;
    KORUnicodeString dataFile;
    ZELCftArrayZELCftArrayDouble rows;
    if (const ZELIHyperelasticMaterialModel_var old(stored); old) {
        old->GetStrainEnergyPotentialOrder(order);
        old->GetPropertyTemperatureDependent(temperatureDependent);
        old->GetPropertyDataFile(dataFile);
        old->GetPropertyData(rows);
    }
    model->SetStrainEnergyPotentialOrder(order);
    model->SetPropertyTemperatureDependent(temperatureDependent);
    model->SetPropertyDataFile(dataFile);
    if (FAILED(model->SetPropertyData(rows))) return E_FAIL;  // the old model still has them

    // The new key is looked up before the old value goes: a document without it keeps its model where it is.
    const KORBaseUnknown_var moved(created);
    return ZELFailOnly(ZELUseAttribute(hyperelasticity.Get(), ZELKeyOnce(ZELKey::HyperelasticModel_v2),
                                       [&](KORISpecAttrAccess& access, KORISpecAttrKey* key) {
                                           RemoveValue(hyperelasticity.Get(), ZELKey::HyperelasticModel);
                                           access.SetComponent(key, moved.Get(), 0);
                                       }));
}

HRESULT ZELEMRVMaterialUpgrade::ConvertHyperelasticUnits(const Work& work) {
    const KORISpecObject_var hyperelasticity = ComponentOf(work.material.Get(), ZELKey::ZELHyperelasticity);
    // Before anything else, so that no document is ever converted twice, whatever happens from here on.
    const unsigned char converted = 1;
    if (FAILED(ZELSetValue(hyperelasticity.Get(), ZELKeyOnce(ZELKey::HyperelasticUnitUpgradeRequired),
                           converted))) {
        return E_FAIL;
    }
    ZELHyperelastic behavior(work.material.Get());
    unsigned char enabled = 0;
    behavior.GetHyperelasticEnabled(enabled);
    if (!enabled) return S_OK;

    KORUnicodeString type;
    behavior.GetMaterialModelType(type);
    KORISpecObject_var feature;
    behavior.GetHyperelasticMaterialModel(feature);
    const ZELIHyperelasticMaterialModel_var model(feature);
    ZELCftArrayZELCftArrayDouble table;
    if (!model || FAILED(model->GetPropertyData(table))) return E_FAIL;
    double pressureFactor = 0.0;
    if (!ZELCurrentPressureFactor(pressureFactor) || table.size() == 0) return E_FAIL;
    int order = 0;
    model->GetStrainEnergyPotentialOrder(order);
    int width = 0;
    for (int row = 0; row < table.size(); ++row) width = std::max(width, table[row].size());
    return model->SetPropertyData(
        ZELScaleColumns(table, ZELHyperelasticUnitFactors(type, order, pressureFactor, width)));
}

HRESULT ZELEMRVMaterialUpgrade::LeaveOldContainer(const Work& work) {
    const KORILinkableObject_var linkable(work.material);
    const KORBaseUnknown_var old = linkable ? OldContainerOf(linkable->GetDocument()) : KORBaseUnknown_var();
    const KORBaseUnknown_var own = ZELContainerOf(work.material);
    if (!old || !(own == old)) return S_OK;
    const auto parent = KORISpecObject_var::Adopt(work.material->GetFather());
    const KORIMaterialFeature_var platformMaterial(parent);
    if (!platformMaterial) return E_FAIL;
    const KORBaseUnknown_var target = ZELContainerOf(parent);
    if (target == own) return S_OK;

    const KORICutAndPastable_var source(own);
    const KORICutAndPastable_var destination(target);
    KORListValKORISpecObject_var wanted;
    wanted.Append(work.material);
    const KORListValKORISpecObject_var copies = ZELCopyInto(source, destination, wanted);
    if (copies.Size() == 0 || !copies[1]) return E_FAIL;
    const KORISpecObject_var& moved = copies[1];
    const HRESULT status = ZELCarryTestData(work.material.Get(), moved.Get());
    if (FAILED(status)) return status;
    const KORUnicodeString name = ZELMaterial::GetApplicativeSpecName();
    if (FAILED(platformMaterial->RemoveApplicativeFeature(name)) ||
        FAILED(source->Remove(work.material.Get())) ||
        FAILED(platformMaterial->SetApplicativeFeature(name, moved.Get()))) {
        return E_FAIL;
    }
    return S_OK;
}

HRESULT ZELEMRVMaterialUpgrade::FetchTestData(const Work& work) {
    return ZELCarryTestData(work.material.Get(), work.material.Get());
}
