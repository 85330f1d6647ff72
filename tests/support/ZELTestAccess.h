#pragma once

#include <vector>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEHyperelasticMaterialModel.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEMRVMaterialUpgrade.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"
#include "ZELMaterialModel/include/ZELMaterialPlastic.h"

/// The one friend of the module's classes: what tests need of their private parts.
class ZELTestAccess {
public:
    /// The store operations that the public ones call, for their statuses.
    static HRESULT GetPropertyPlasticEnabled(ZELMaterialPlastic& plastic) {
        return plastic.GetPropertyPlasticEnabled();
    }
    static HRESULT GetPropertyPlasticityData(ZELMaterialPlastic& plastic) {
        return plastic.GetPropertyPlasticityData();
    }
    static HRESULT InitPlasticProperties(ZELMaterialPlastic& plastic) {
        return plastic.InitPlasticProperties();
    }

    static HRESULT CreateRow(ZELEHyperelasticMaterialModel& model, KORISpecObject_var& row) {
        return model.CreateHyperelasticRowDataFeature(row);
    }
    static std::vector<KORISpecObject_var> RememberedRows(const ZELEHyperelasticMaterialModel& model) {
        std::vector<KORISpecObject_var> rows;
        for (int position = 1; position <= model.rows_.Size(); ++position) {
            rows.push_back(model.rows_[position]);
        }
        return rows;
    }

    /// The upgrade's seven flags, in the order of its steps.
    static std::vector<int> Flags(const ZELEMRVMaterialUpgrade& upgrade) {
        const auto& needs = upgrade.needs_;
        return {needs.userMaterial,
                needs.hyperelasticity,
                needs.johnsonCookV2,
                needs.hyperelasticModelV2,
                needs.hyperelasticUnits,
                needs.inOldApplicativeContainer,
                needs.testDataInForeignContainer};
    }

    static HRESULT GetFEModelInfo(KORDocument*& document, KORISpecObject*& model,
                                  KORISamAnalysisModelFactory_var& factory) {
        return ZELMaterialPropertiesFact::GetFEModelInfo(document, model, factory);
    }
    static HRESULT CreatePropertiesSet(KORDocument* document) {
        return ZELMaterialPropertiesFact::CreateZelmarPropertiesSet(document);
    }
};
