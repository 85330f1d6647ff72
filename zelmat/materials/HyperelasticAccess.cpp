#include "zelmat/materials/HyperelasticAccess.h"

#include "ZELMaterialModel/include/ZELHyperelastic.h"
#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "zelmat/materials/BehaviorAnswers.h"

namespace zelmat {

namespace {

/// The coefficients' interface; empty when no model is stored or it is none.
ZELIHyperelasticMaterialModel_var ModelOf(ZELHyperelastic& behavior) {
    KORISpecObject_var feature;
    if (FAILED(behavior.GetHyperelasticMaterialModel(feature)) || !feature) return nullptr;
    return ZELIHyperelasticMaterialModel_var::Of(feature.Get());
}

HRESULT ReadModel(ZELHyperelastic& behavior, StoredBlock& stored) {
    KORUnicodeString type;
    HRESULT status = behavior.GetMaterialModelType(type);
    if (FAILED(status)) return status;
    stored.values.Set("model", std::string(type.c_str()));
    const auto model = ModelOf(behavior);
    if (!model) return E_FAIL;

    int order = 0;
    unsigned char temperatureDependent = 0;
    ZELCftArrayZELCftArrayDouble rows(0, nullptr);
    status = model->GetStrainEnergyPotentialOrder(order);
    if (SUCCEEDED(status)) status = model->GetPropertyTemperatureDependent(temperatureDependent);
    if (SUCCEEDED(status)) status = model->GetPropertyData(rows);
    if (FAILED(status)) return status;
    stored.values.Set("order", order);
    stored.AddTable(stored.block->tables.front(), temperatureDependent != 0, FromPropertyTable(rows));
    return S_OK;
}

}  // namespace

std::vector<WriteStatus> HyperelasticAccess::Write(ZELIMaterial& material, const CardData& data) {
    BehaviorAnswers answers;
    const auto behavior = HandOut(material, &ZELIMaterial::GetHyperelasticProperties);
    if (!behavior.IsObject()) return answers.NoBehavior();

    answers.ToValue(behavior->SetHyperelasticEnabled(1));
    answers.ToValue(behavior->SetMaterialModelType(data.values.Get<std::string>("model")->c_str()));
    const CardTable& table = data.tables.front();
    const auto model = ModelOf(*behavior.GetProxyObject());
    if (!model) {
        answers.ToTable(table, E_FAIL);
        return answers.All();
    }
    answers.ToValue(model->SetStrainEnergyPotentialOrder(*data.values.Get<int>("order")));
    answers.ToValue(model->SetPropertyTemperatureDependent(table.temperatureDependent ? 1 : 0));
    answers.ToTable(table, model->SetPropertyData(ToPropertyTable(table.rows)));
    return answers.All();
}

StoredBlock HyperelasticAccess::Read(ZELIMaterial& material, const CardBlock& block) {
    StoredBlock stored{.block = &block};
    const auto behavior = HandOut(material, &ZELIMaterial::GetHyperelasticProperties);
    if (!behavior.IsObject()) {
        stored.status = E_FAIL;
        return stored;
    }
    unsigned char enabled = 0;
    stored.status = behavior->GetHyperelasticEnabled(enabled);
    stored.enabled = enabled != 0;
    if (stored.enabled) stored.status = ReadModel(*behavior.GetProxyObject(), stored);
    return stored;
}

}  // namespace zelmat
