#include "zelmat/materials/PlasticAccess.h"

#include <array>

#include "ZELMaterialModel/include/ZELMaterialPlastic.h"
#include "zelmat/materials/BehaviorAnswers.h"

namespace zelmat {

namespace {

struct Hardening {
    const char* word;     ///< in the block
    const char* keyword;  ///< in the store
};

constexpr std::array<Hardening, 3> kHardenings = {{
    {"isotropic", "IsotropicHardening"},
    {"kinematic", "KinematicHardening"},
    {"johnson-cook", "JohnsonCookHardening"},
}};

std::string KeywordOf(const std::string& word) {
    for (const Hardening& hardening : kHardenings) {
        if (word == hardening.word) return hardening.keyword;
    }
    return word;
}

/// A keyword without a word stands for itself.
std::string WordOf(const std::string& keyword) {
    for (const Hardening& hardening : kHardenings) {
        if (keyword == hardening.keyword) return hardening.word;
    }
    return keyword;
}

/// The setter's own answer says nothing about success: what is stored does.
HRESULT SetHardening(ZELMaterialPlastic& plastic, const std::string& keyword) {
    plastic.SetHardeningType(keyword.c_str());
    KORUnicodeString stored;
    const HRESULT status = plastic.GetHardeningType(stored);
    if (FAILED(status)) return status;
    return stored == KORUnicodeString(keyword.c_str()) ? S_OK : E_FAIL;
}

}  // namespace

std::vector<std::string> PlasticAccess::HardeningWords() {
    std::vector<std::string> words;
    for (const Hardening& hardening : kHardenings) words.push_back(hardening.word);
    return words;
}

std::vector<WriteStatus> PlasticAccess::Write(ZELIMaterial& material, const Block& block) {
    BehaviorAnswers answers;
    const auto plastic = HandOut(material, &ZELIMaterial::GetPlasticProperties);
    if (!plastic.IsObject()) return answers.NoBehavior();

    // The hardening type decides where the table goes and has to stand before it.
    answers.ToValue(plastic->SetPlasticEnabled(block.enabled ? 1 : 0));
    if (const auto hardening = block.values.Get<std::string>("hardening")) {
        answers.ToValue(SetHardening(*plastic.GetProxyObject(), KeywordOf(*hardening)));
    }
    for (const Table& table : block.tables) {
        answers.ToValue(plastic->SetTemperatureDependent(table.temperatureDependent ? 1 : 0));
        answers.ToTable(table, plastic->SetPlasticDataArray(ToPropertyTable(table)));
    }
    return answers.All();
}

HRESULT PlasticAccess::Read(ZELIMaterial& material, Block& block) {
    const auto plastic = HandOut(material, &ZELIMaterial::GetPlasticProperties);
    if (!plastic.IsObject()) return E_FAIL;
    block.enabled = plastic->GetPlasticEnabled() != 0;
    if (!block.enabled) return S_OK;

    KORUnicodeString keyword;
    HRESULT status = plastic->GetHardeningType(keyword);
    if (SUCCEEDED(status)) status = plastic->GetPropertyTemperatureDependent();
    if (FAILED(status)) return status;
    block.values.Set("hardening", WordOf(std::string(keyword.View())));
    AddTable(block, block.kind->tables.front(), plastic->GetTemperatureDependent() != 0,
             plastic->GetPlasticDataArray());
    return S_OK;
}

}  // namespace zelmat
