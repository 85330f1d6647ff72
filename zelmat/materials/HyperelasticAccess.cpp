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

HRESULT ReadModel(ZELHyperelastic& behavior, Block& block) {
    KORUnicodeString type;
    HRESULT status = behavior.GetMaterialModelType(type);
    if (FAILED(status)) return status;
    block.values.Set("model", std::string(type.View()));
    const auto model = ModelOf(behavior);
    if (!model) return E_FAIL;

    int order = 0;
    unsigned char temperatureDependent = 0;
    ZELCftArrayZELCftArrayDouble rows(0, nullptr);
    status = model->GetStrainEnergyPotentialOrder(order);
    if (SUCCEEDED(status)) status = model->GetPropertyTemperatureDependent(temperatureDependent);
    if (SUCCEEDED(status)) status = model->GetPropertyData(rows);
    if (FAILED(status)) return status;
    block.values.Set("order", order);
    AddTable(block, block.kind->tables.front(), temperatureDependent != 0, rows);
    return S_OK;
}

}  // namespace

std::vector<WriteStatus> HyperelasticAccess::Write(ZELIMaterial& material, const Block& block) {
    BehaviorAnswers answers;
    const auto behavior = HandOut(material, &ZELIMaterial::GetHyperelasticProperties);
    if (!behavior.IsObject()) return answers.NoBehavior();

    answers.ToValue(behavior->SetHyperelasticEnabled(block.enabled ? 1 : 0));
    const auto type = block.values.Get<std::string>("model");
    if (!block.enabled || !type) return answers.All();
    answers.ToValue(behavior->SetMaterialModelType(type->c_str()));
    const auto model = ModelOf(*behavior.GetProxyObject());
    if (const auto order = block.values.Get<int>("order"); model && order) {
        answers.ToValue(model->SetStrainEnergyPotentialOrder(*order));
    }
    for (const Table& table : block.tables) {
        if (!model) {
            answers.ToTable(table, E_FAIL);
            continue;
        }
        answers.ToValue(model->SetPropertyTemperatureDependent(table.temperatureDependent ? 1 : 0));
        answers.ToTable(table, model->SetPropertyData(ToPropertyTable(table)));
    }
    return answers.All();
}

HRESULT HyperelasticAccess::Read(ZELIMaterial& material, Block& block) {
    const auto behavior = HandOut(material, &ZELIMaterial::GetHyperelasticProperties);
    if (!behavior.IsObject()) return E_FAIL;
    unsigned char enabled = 0;
    const HRESULT status = behavior->GetHyperelasticEnabled(enabled);
    block.enabled = SUCCEEDED(status) && enabled != 0;
    return block.enabled ? ReadModel(*behavior.GetProxyObject(), block) : status;
}

}  // namespace zelmat
