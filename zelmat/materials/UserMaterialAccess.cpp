#include "zelmat/materials/UserMaterialAccess.h"

#include "ZELMaterialModel/include/ZELUserMaterial.h"
#include "zelmat/materials/BehaviorAnswers.h"

namespace zelmat {

std::vector<WriteStatus> UserMaterialAccess::Write(ZELIMaterial& material, const CardData& data) {
    BehaviorAnswers answers;
    const auto behavior = HandOut(material, &ZELIMaterial::GetUserMaterialProperties);
    if (!behavior.IsObject()) return answers.NoBehavior();

    const CardTable& constants = data.tables.front();
    answers.ToValue(behavior->SetUserMaterialEnabled(1));
    answers.ToValue(behavior->SetUserMaterialType(data.values.Get<std::string>("type")->c_str()));
    answers.ToValue(behavior->SetUnSymmMatrixFlag(data.values.Get<bool>("unsymmetric").value_or(false)));
    answers.ToValue(
        behavior->SetUserMaterialDependentVar(data.values.Get<int>("state_variables").value_or(0)));
    answers.ToTable(constants, behavior->SetUserMaterialDataArray(ToPropertyTable(constants.rows)));
    return answers.All();
}

StoredBlock UserMaterialAccess::Read(ZELIMaterial& material, const CardBlock& block) {
    StoredBlock stored{.block = &block};
    const auto behavior = HandOut(material, &ZELIMaterial::GetUserMaterialProperties);
    if (!behavior.IsObject()) {
        stored.status = E_FAIL;
        return stored;
    }
    unsigned char enabled = 0;
    stored.status = behavior->GetUserMaterialEnabled(enabled);
    stored.enabled = enabled != 0;
    if (FAILED(stored.status) || !stored.enabled) return stored;

    KORUnicodeString type;
    unsigned char unsymmetric = 0;
    int stateVariables = 0;
    ZELCftArrayZELCftArrayDouble constants(0, nullptr);
    stored.status = behavior->GetUserMaterialType(type);
    if (SUCCEEDED(stored.status)) stored.status = behavior->GetUnSymmMatrixFlag(unsymmetric);
    if (SUCCEEDED(stored.status)) stored.status = behavior->GetUserMaterialDependentVar(stateVariables);
    if (SUCCEEDED(stored.status)) stored.status = behavior->GetUserMaterialDataArray(constants);
    if (FAILED(stored.status)) return stored;
    stored.values.Set("type", std::string(type.c_str()));
    stored.values.Set("unsymmetric", unsymmetric != 0);
    stored.values.Set("state_variables", stateVariables);
    stored.AddTable(block.tables.front(), false, FromPropertyTable(constants));
    return stored;
}

}  // namespace zelmat
