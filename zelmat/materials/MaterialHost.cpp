#include "zelmat/materials/MaterialHost.h"

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "interfaces/KORIMaterialFeature.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/NewMaterial.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

KORISpecObject_var MaterialHost::NewMaterial(const Material& material, Findings& findings) {
    const DiagnosticLines diagnostics(findings, material.file, material.name);
    // Opened here first, to have the reason and its place; the factory then finds the catalog already read.
    if (!platform_.OpenCatalog(findings)) return nullptr;
    HRESULT status = S_OK;
    const auto feature = zelmat::NewMaterial(platform_.Document(), material.name, status);
    if (!feature) {
        findings.Add({FindingKind::UNREADABLE,
                      {platform_.CatalogPath(), 0},
                      "bad-catalog",
                      "the analysis data of " + material.name + " cannot be made from it",
                      {StatusText(status)}});
        return nullptr;
    }
    const auto made = KORIMaterialFeature_var::Of(feature.Get());
    return KORISpecObject_var::Adopt(made->GetApplicativeFeature(ZELMaterial::GetApplicativeSpecName()));
}

}  // namespace zelmat
