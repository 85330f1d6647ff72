#include "zelmat/materials/NewMaterial.h"

#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORInstantiateComponent.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/CardExtras.h"
#include "zelmat/materials/MaterialReader.h"
#include "zelmat/materials/MaterialWriter.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

namespace {

constexpr const char* kPlatformMaterial = "KORMaterialLT";
constexpr const char* kFactory = "ZELMaterialPropertiesFact";

/// Has the module make the analysis data of a platform material and hangs them on it; the status of what
/// fails.
HRESULT HangAnalysisData(KORIMaterialFeature* material) {
    ZELIMaterialPropertiesFact_var factory;
    HRESULT status = KORInstantiate(kFactory, factory);
    if (FAILED(status)) return status;
    KORISpecObject* created = nullptr;
    status = factory->CreateZELMaterialProperty(material, created);
    const auto root = KORISpecObject_var::Adopt(created);
    if (FAILED(status)) return status;
    return material->SetApplicativeFeature(ZELMaterial::GetApplicativeSpecName(), root.Get());
}

std::vector<const Block*> GivenBlocks(const Material& card, const Block* fit) {
    std::vector<const Block*> blocks;
    for (const Block& block : card.blocks) blocks.push_back(&block);
    if (fit) blocks.push_back(fit);
    return blocks;
}

}  // namespace

KORVar<KORFeature> NewMaterial(KORMemoryDocument& document, const std::string& name, HRESULT& status) {
    const KORVar<KORFeature> feature = document.NewPlatformFeature(kPlatformMaterial, name.c_str());
    status = E_FAIL;
    if (!feature) return nullptr;
    feature->SetAlias(name.c_str());
    const auto material = KORIMaterialFeature_var::Of(feature.Get());
    status = HangAnalysisData(material.Get());
    return SUCCEEDED(status) ? feature : nullptr;
}

KORVar<KORFeature> AddMaterial(KORMemoryDocument& document, const Material& card, const Block* fit,
                               Findings& findings) {
    const auto refuse = [&](const char* text, const std::string& why) {
        findings.Add({FindingKind::ERROR, {card.file, 0}, "not-written", card.name + text, {why}});
    };
    HRESULT status = S_OK;
    KORVar<KORFeature> feature;
    {
        const DiagnosticLines diagnostics(findings, card.file, card.name);
        feature = NewMaterial(document, card.name, status);
    }
    if (!feature) {
        refuse(": its analysis data cannot be made", StatusText(status));
        return nullptr;
    }
    WriteBlocks(feature.Get(), card, GivenBlocks(card, fit), findings);
    const Material held = ReadMaterial(feature.Get(), card.file, card.name, findings);
    if (!WriteCardExtras(document, feature.Get(), card, fit, held)) {
        refuse(": what the card says beyond them cannot be kept", "the catalog lacks its late types");
    }
    return feature;
}

}  // namespace zelmat
