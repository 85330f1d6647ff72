#pragma once

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "interfaces/KORICatalog.h"
#include "interfaces/KORIContainer.h"
#include "interfaces/KORISpecAttrAccess.h"

/// Implements KORISamUpgrade on "ZELMaterialLT" features: brings a material of an older document up to the
/// current catalog. The query finds out what is to be done and the upgrade does it, so both go to one object;
/// an upgrade that no query came before does nothing, and one before which something was undone or another
/// upgrade was run asks again. Steps already done stay when a later one fails; the
/// next query finds what is left.
class ZELEMRVMaterialUpgrade final : public KORBaseUnknown, private ZELModuleObject {
    KORDeclareClass

    bool IsUpgradeNeeded();
    HRESULT Upgrade();

private:
    /// What the last query found to be done, until an upgrade works through it in this order.
    struct Needs {
        unsigned char userMaterial = 0;               ///< there is no user-material feature
        unsigned char hyperelasticity = 0;            ///< there is no hyperelastic feature
        unsigned char johnsonCookV2 = 0;              ///< Johnson-Cook data under the old key
        unsigned char hyperelasticModelV2 = 0;        ///< the hyperelastic model under the old key
        unsigned char hyperelasticUnits = 0;          ///< coefficients not in the current unit of pressure
        unsigned char inOldApplicativeContainer = 0;  ///< the material lies in the old container
        unsigned char testDataInForeignContainer = 0;

        bool Any() const {
            return userMaterial || hyperelasticity || johnsonCookV2 || hyperelasticModelV2 ||
                   hyperelasticUnits || inOldApplicativeContainer || testDataInForeignContainer;
        }
    };

    /// What every step works on.
    struct Work {
        KORISpecObject_var material;
        KORIContainer_var container;
        KORICatalog_var catalog;
    };

    void LookForBehaviors(KORISpecAttrAccess& material);

    static HRESULT AddUserMaterial(const Work& work);
    static HRESULT AddHyperelasticity(const Work& work);
    static HRESULT MoveJohnsonCook(const Work& work);
    static HRESULT MoveHyperelasticModel(const Work& work);
    static HRESULT ConvertHyperelasticUnits(const Work& work);
    static HRESULT LeaveOldContainer(const Work& work);
    static HRESULT FetchTestData(const Work& work);

    Needs needs_;
    std::uint64_t asked_ = 0;  ///< how much had been undone and upgraded when they were found

    friend class ZELTestAccess;
};
