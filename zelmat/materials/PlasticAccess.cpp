#include "zelmat/materials/PlasticAccess.h"

#include <array>

#include "ZELMaterialModel/include/ZELMaterialPlastic.h"
#include "zelmat/materials/BehaviorAnswers.h"

namespace zelmat {

namespace {

struct Hardening {
    const char* word;     ///< on the card
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

std::vector<WriteStatus> PlasticAccess::Write(ZELIMaterial& material, const CardData& data) {
    BehaviorAnswers answers;
    const auto plastic = HandOut(material, &ZELIMaterial::GetPlasticProperties);
    if (!plastic.IsObject()) return answers.NoBehavior();

    // The hardening type decides where the table goes and has to stand before it.
    const CardTable& table = data.tables.front();
    answers.ToValue(plastic->SetPlasticEnabled(1));
    answers.ToValue(
        SetHardening(*plastic.GetProxyObject(), KeywordOf(*data.values.Get<std::string>("hardening"))));
    answers.ToValue(plastic->SetTemperatureDependent(table.temperatureDependent ? 1 : 0));
    answers.ToTable(table, plastic->SetPlasticDataArray(ToPropertyTable(table.rows)));
    return answers.All();
}

StoredBlock PlasticAccess::Read(ZELIMaterial& material, const CardBlock& block) {
    StoredBlock stored{.block = &block};
    const auto plastic = HandOut(material, &ZELIMaterial::GetPlasticProperties);
    if (!plastic.IsObject()) {
        stored.status = E_FAIL;
        return stored;
    }
    stored.enabled = plastic->GetPlasticEnabled() != 0;
    if (!stored.enabled) return stored;

    KORUnicodeString keyword;
    stored.status = plastic->GetHardeningType(keyword);
    if (SUCCEEDED(stored.status)) stored.status = plastic->GetPropertyTemperatureDependent();
    if (FAILED(stored.status)) return stored;
    stored.values.Set("hardening", WordOf(keyword.c_str()));
    auto table = plastic->GetPlasticDataArray();
    stored.AddTable(block.tables.front(), plastic->GetTemperatureDependent() != 0, FromPropertyTable(table));
    return stored;
}

}  // namespace zelmat
