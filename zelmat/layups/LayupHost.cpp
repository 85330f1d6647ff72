#include "zelmat/layups/LayupHost.h"

#include <map>

#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "framework/KORInstantiateComponent.h"
#include "interfaces/KORIAlias.h"
#include "interfaces/KORISamAnalysisSet.h"
#include "interfaces/KORISamValidity.h"
#include "interfaces/KORISpecAttrAccess.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

namespace {

constexpr const char* kFactory = "ZELMaterialPropertiesFact";
constexpr const char* kPlatformMaterial = "KORMaterialLT";
constexpr const char* kLayup = "ZELLayupLT";
constexpr const char* kPropertySet = "ZELZelmarPropertySetLT";
constexpr const char* kSection = "ZELShellSectionEnhLT";
constexpr int kScanEverything = 3;

std::string NameOf(const KORISpecObject_var& feature) {
    const KORIAlias_var alias(feature);
    return alias ? std::string(alias->GetAlias().View()) : std::string();
}

/// The first failure of several operations, one after the other.
class Steps {
public:
    Steps& operator<<(HRESULT status) {
        if (SUCCEEDED(status_)) status_ = status;
        return *this;
    }
    HRESULT Status() const { return status_; }

private:
    HRESULT status_ = S_OK;
};

std::optional<StoredLayer> ReadLayer(const KORISpecObject_var& feature) {
    const ZELILayupLayer_var layer(feature);
    if (!layer) return std::nullopt;
    StoredLayer stored;
    KORISpecObject_var material;  // a fresh one: a layer without material leaves it alone
    const Steps steps = Steps() << layer->GetMaterial(material) << layer->GetThickness(stored.thickness)
                                << layer->GetOrientationAngle(stored.angle);
    if (material) stored.material = NameOf(material);
    return SUCCEEDED(steps.Status()) ? std::optional(stored) : std::nullopt;
}

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
    ZELIMaterialPropertiesFact_var factory;
    Steps steps;
    steps << KORInstantiate(kFactory, factory);
    if (FAILED(steps.Status())) return steps.Status();
    KORISpecObject_var layup;
    steps << factory->CreateLayup(layup, &platform_.Document());

    std::map<std::string, KORISpecObject_var> materials;
    for (const PlyMaterial& material : card.materials) materials[material.name] = NewMaterial(material.name);
    KORListValKORISpecObject_var layers;
    for (const CardLayer& given : card.layers) {
        if (FAILED(steps.Status())) return steps.Status();
        KORISpecObject_var feature;
        steps << factory->CreateLayupLayer(layup, feature);
        const ZELILayupLayer_var layer(feature);
        if (!layer) return E_FAIL;
        if (given.material) steps << layer->SetMaterial(materials.at(*given.material));
        steps << layer->SetThickness(given.thickness) << layer->SetOrientationAngle(given.angle);
        layers.Append(feature);
    }
    const ZELILayup_var made(layup);
    return made ? (steps << made->SetLayers(layers)).Status() : E_FAIL;
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
    const auto feature = FindInModel(kLayup);
    const ZELILayup_var layup(feature);
    const KORISamValidity_var validity(feature);
    KORListValKORISpecObject_var layers;
    if (!layup || !validity || FAILED(layup->GetLayers(layers))) return std::nullopt;
    StoredLayup stored;
    stored.name = NameOf(feature);
    for (int position = 1; position <= layers.Size(); ++position) {
        const auto layer = ReadLayer(layers[position]);
        if (!layer) return std::nullopt;
        stored.layers.push_back(*layer);
    }
    std::uint32_t status = 1;
    stored.verdict = validity->IsValid(feature, nullptr, status);
    stored.valid = SUCCEEDED(stored.verdict) && status == 0;
    stored.unused = layup->IsUnused();
    return stored;
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
