#include "zelmat/layups/LayupHost.h"

#include <map>

#include "interfaces/KORIAlias.h"
#include "interfaces/KORISamAnalysisSet.h"
#include "interfaces/KORISpecAttrAccess.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/layups/DocumentLayups.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

namespace {

constexpr const char* kPlatformMaterial = "KORMaterialLT";
constexpr const char* kLayup = "ZELLayupLT";
constexpr const char* kPropertySet = "ZELZelmarPropertySetLT";
constexpr const char* kSection = "ZELShellSectionEnhLT";
constexpr int kScanEverything = 3;

}  // namespace

bool LayupHost::Make(const LayupCard& card, Findings& findings) {
    const DiagnosticLines diagnostics(findings, card.file, card.name);
    if (!platform_.OpenCatalog(findings)) return false;
    platform_.Document().AddAnalysisModel();
    const HRESULT status = MakeLayup(card);
    if (SUCCEEDED(status)) return true;
    findings.Add({FindingKind::UNREADABLE,
                  {platform_.CatalogPath(), 0},
                  "bad-catalog",
                  "the layup " + card.name + " cannot be made from it",
                  {StatusText(status)}});
    return false;
}

HRESULT LayupHost::MakeLayup(const LayupCard& card) {
    HRESULT status = S_OK;
    const auto layup = NewLayup(platform_.Document(), {}, status);
    if (!layup) return FAILED(status) ? status : E_FAIL;
    std::map<std::string, KORISpecObject_var> materials;
    for (const PlyMaterial& material : card.materials) materials[material.name] = NewMaterial(material.name);
    std::vector<NewLayer> layers;
    for (const CardLayer& given : card.layers) {
        layers.push_back({given.material ? materials.at(*given.material) : KORISpecObject_var(),
                          given.thickness, given.angle});
    }
    return SetLayers(platform_.Document(), layup, layers);
}

bool LayupHost::AddSection(int sectionType) {
    const auto layup = FindInModel(kLayup);
    const KORISamAnalysisSet_var set(FindInModel(kPropertySet));
    const KORISpecObject_var section(platform_.Document().NewPlatformFeature(kSection, kSection));
    const KORISpecAttrAccess_var access(section);
    if (!layup || !set || !access) return false;
    access->SetInteger(KORName::Intern("SectionType"), sectionType, 0);
    access->SetComponent(KORName::Intern("Layup"), KORBaseUnknown_var(layup).Get(), 0);
    set->AddChild(section);
    return true;
}

std::optional<StoredLayup> LayupHost::Read() {
    return ReadLayup(FindInModel(kLayup));
}

KORISpecObject_var LayupHost::NewMaterial(const std::string& name) {
    const auto feature = platform_.Document().NewPlatformFeature(kPlatformMaterial, name.c_str());
    KORIAlias_var::Of(feature.Get())->SetAlias(name.c_str());
    return KORISpecObject_var(feature);
}

KORISpecObject_var LayupHost::FindInModel(const char* lateType) {
    const auto model = KORISamAnalysisModel_var::Adopt(platform_.Document().GetAnalysisModel());
    const KORISamAnalysisScan_var scan(model);
    if (!scan) return nullptr;
    const KORListValKORISpecObject_var found = scan->Scan(lateType, kScanEverything);
    return found.Size() > 0 ? found[1] : KORISpecObject_var();
}

}  // namespace zelmat
