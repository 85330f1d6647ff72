#include "zelmat/materials/UserMaterialAccess.h"

#include "ZELMaterialModel/include/ZELUserMaterial.h"
#include "zelmat/materials/BehaviorAnswers.h"

namespace zelmat {

std::vector<WriteStatus> UserMaterialAccess::Write(ZELIMaterial& material, const Block& block) {
    BehaviorAnswers answers;
    const auto behavior = HandOut(material, &ZELIMaterial::GetUserMaterialProperties);
    if (!behavior.IsObject()) return answers.NoBehavior();

    answers.ToValue(behavior->SetUserMaterialEnabled(block.enabled ? 1 : 0));
    if (!block.enabled) return answers.All();
    if (const auto type = block.values.Get<std::string>("type")) {
        answers.ToValue(behavior->SetUserMaterialType(type->c_str()));
    }
    answers.ToValue(behavior->SetUnSymmMatrixFlag(block.values.Get<bool>("unsymmetric").value_or(false)));
    answers.ToValue(
        behavior->SetUserMaterialDependentVar(block.values.Get<int>("state_variables").value_or(0)));
    for (const Table& constants : block.tables) {
        answers.ToTable(constants, behavior->SetUserMaterialDataArray(ToPropertyTable(constants)));
    }
    return answers.All();
}

HRESULT UserMaterialAccess::Read(ZELIMaterial& material, Block& block) {
    const auto behavior = HandOut(material, &ZELIMaterial::GetUserMaterialProperties);
    if (!behavior.IsObject()) return E_FAIL;
    unsigned char enabled = 0;
    HRESULT status = behavior->GetUserMaterialEnabled(enabled);
    block.enabled = SUCCEEDED(status) && enabled != 0;
    if (!block.enabled) return status;

    KORUnicodeString type;
    unsigned char unsymmetric = 0;
    int stateVariables = 0;
    ZELCftArrayZELCftArrayDouble constants(0, nullptr);
    status = behavior->GetUserMaterialType(type);
    if (SUCCEEDED(status)) status = behavior->GetUnSymmMatrixFlag(unsymmetric);
    if (SUCCEEDED(status)) status = behavior->GetUserMaterialDependentVar(stateVariables);
    if (SUCCEEDED(status)) status = behavior->GetUserMaterialDataArray(constants);
    if (FAILED(status)) return status;
    block.values.Set("type", std::string(type.View()));
    block.values.Set("unsymmetric", unsymmetric != 0);
    block.values.Set("state_variables", stateVariables);
    AddTable(block, block.kind->tables.front(), false, constants);
    return S_OK;
}

}  // namespace zelmat
