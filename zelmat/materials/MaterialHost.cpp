#include "zelmat/materials/MaterialHost.h"

#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORInstantiateComponent.h"
#include "interfaces/KORIAlias.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

namespace {

constexpr const char* kPlatformMaterial = "KORMaterialLT";
constexpr const char* kFactory = "ZELMaterialPropertiesFact";

/// Has the module make the analysis data of a platform material and hangs them on it. Null when one of the
/// two fails, with the status of that.
KORISpecObject_var NewAnalysisData(KORIMaterialFeature* material, HRESULT& status) {
    ZELIMaterialPropertiesFact_var factory;
    status = KORInstantiate(kFactory, factory);
    if (FAILED(status)) return nullptr;
    KORISpecObject* created = nullptr;
    status = factory->CreateZELMaterialProperty(material, created);
    auto root = KORISpecObject_var::Adopt(created);
    if (SUCCEEDED(status)) {
        status = material->SetApplicativeFeature(ZELMaterial::GetApplicativeSpecName(), root.Get());
    }
    return SUCCEEDED(status) ? root : nullptr;
}

}  // namespace

KORISpecObject_var MaterialHost::NewMaterial(const Material& material, Findings& findings) {
    const DiagnosticLines diagnostics(findings, material.file, material.name);
    // Opened here first, to have the reason and its place; the factory then finds the catalog already read.
    if (!platform_.OpenCatalog(findings)) return nullptr;
    const KORVar<KORFeature> feature =
        platform_.Document().NewPlatformFeature(kPlatformMaterial, material.name.c_str());
    KORIAlias_var::Of(feature.Get())->SetAlias(material.name.c_str());
    const auto made = KORIMaterialFeature_var::Of(feature.Get());
    HRESULT status = S_OK;
    KORISpecObject_var data = NewAnalysisData(made.Get(), status);
    if (!data) {
        findings.Add({FindingKind::UNREADABLE,
                      {platform_.CatalogPath(), 0},
                      "bad-catalog",
                      "the analysis data of " + material.name + " cannot be made from it",
                      {StatusText(status)}});
    }
    return data;
}

}  // namespace zelmat
