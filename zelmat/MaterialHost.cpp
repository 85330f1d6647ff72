#include "zelmat/MaterialHost.h"

#include <array>
#include <filesystem>
#include <utility>

#include "interfaces/KORIAlias.h"
#include "interfaces/KORICatalog.h"
#include "interfaces/KORISpecAttrAccess.h"
#include "platform/document/KORMemoryDocument.h"

namespace zelmat {

namespace {

constexpr const char* kCatalog = "ZELMaterialPropertiesCatalog.KORfct";
constexpr const char* kClient = "ZELMAR";
constexpr const char* kMaterialType = "ZELMaterialLT";

/// A behavior's own feature and where it hangs on the material.
struct SubFeature {
    const char* lateType;
    const char* attribute;
};

constexpr std::array<SubFeature, 7> kSubFeatures = {{
    {"ZELElasticLT", "ZELElastic"},
    {"ZELPlasticLT", "ZELPlastic"},
    {"ZELDensityLT", "ZELDensity"},
    {"ZELThermalExpansionLT", "ZELThermalExpansion"},
    {"ZELConductivityLT", "ZELConductivity"},
    {"ZELSpecificHeatLT", "ZELSpecificHeat"},
    {"MRVUserMaterialLT", "ZELUserMaterial"},
}};

/// A new feature of a late type, named after it; null when the catalog lacks the type.
KORISpecObject_var Instantiate(KORICatalog& catalog, const char* lateType, KORIContainer* container) {
    void* found = nullptr;
    if (FAILED(catalog.RetrieveStartUp(lateType, "KORISpecObject", &found))) return nullptr;
    const auto startUp = KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
    return KORISpecObject_var::Adopt(startUp->Instantiate(lateType, container));
}

/// False when the material has no attribute of that name.
bool Attach(KORISpecObject* material, const char* attribute, KORISpecObject* subFeature) {
    const KORISpecAttrAccess_var access = KORISpecAttrAccess_var::Of(material);
    KORISpecAttrKey* key = access->GetAttrKey(attribute);
    if (!key) return false;
    const auto component = KORBaseUnknown_var::Of(subFeature);
    access->SetComponent(key, component.Get(), 0);
    key->Release();
    return true;
}

}  // namespace

/// Let go of from the last to the first.
struct MaterialHost::Ground {
    explicit Ground(std::string catalogFolder) : catalogs(std::move(catalogFolder)), platform(catalogs) {}

    std::string catalogs;
    KORPlatform platform;
    KORServicesScope services{platform.Services()};
    KORVar<KORMemoryDocument> document = KORMemoryDocument::New(platform);
};

MaterialHost::MaterialHost(const std::string& catalogs) : ground_(std::make_unique<Ground>(catalogs)) {}

MaterialHost::~MaterialHost() = default;

KORISpecObject_var MaterialHost::NewMaterial(const MaterialCard& card, Findings& findings) {
    const std::string path = (std::filesystem::path(ground_->catalogs) / kCatalog).string();
    const auto refuse = [&](int line, const std::string& text) {
        findings.Add({FindingKind::UNREADABLE, {path, line}, "bad-catalog", text, {}});
        return KORISpecObject_var();
    };

    // Read here first, to have the reason and its place; the container then finds the catalog already read.
    KORJsonError error;
    if (!KORCatalogFile::Open(path, error)) return refuse(error.line, error.message);

    const auto own = KORBaseUnknown_var::Adopt(ground_->document->GetFeatContainer());
    const KORIContainer_var container = own;
    KORICatalog_var catalog;
    if (FAILED(AccessCatalog(kCatalog, kClient, container.Get(), catalog)))
        return refuse(0, "cannot be opened");

    KORISpecObject_var material = Instantiate(*catalog, kMaterialType, container.Get());
    if (!material) return refuse(0, std::string("has no late type ") + kMaterialType);
    for (const SubFeature& part : kSubFeatures) {
        const KORISpecObject_var feature = Instantiate(*catalog, part.lateType, container.Get());
        if (!feature) return refuse(0, std::string("has no late type ") + part.lateType);
        if (!Attach(material.Get(), part.attribute, feature.Get())) {
            return refuse(0, std::string(kMaterialType) + " has no attribute " + part.attribute);
        }
    }
    KORIAlias_var::Of(material.Get())->SetAlias(card.name.c_str());
    return material;
}

}  // namespace zelmat
