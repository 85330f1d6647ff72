#include "zelmat/layups/DocumentLayups.h"

#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "framework/KORInstantiateComponent.h"
#include "interfaces/KORIAlias.h"
#include "interfaces/KORISamValidity.h"
#include "zelmat/layups/KeptLayupCard.h"
#include "zelmat/materials/FeatureValues.h"

namespace zelmat {

namespace {

constexpr const char* kFactory = "ZELMaterialPropertiesFact";
constexpr const char* kLayup = "ZELLayupLT";
constexpr const char* kPropertySet = "ZELZelmarPropertySetLT";
constexpr const char* kMembers = "Children";

std::optional<StoredLayer> ReadLayer(const KORISpecObject_var& feature) {
    const ZELILayupLayer_var layer(feature);
    if (!layer) return std::nullopt;
    StoredLayer stored;
    KORISpecObject_var material;  // a fresh one: a layer without material leaves it alone
    if (FAILED(layer->GetMaterial(material)) || FAILED(layer->GetThickness(stored.thickness)) ||
        FAILED(layer->GetOrientationAngle(stored.angle))) {
        return std::nullopt;
    }
    if (material) stored.material = VisibleName(material);
    return stored;
}

/// Null, and the status of what fails.
KORISpecObject_var NewLayerFeature(ZELIMaterialPropertiesFact& factory, const KORISpecObject_var& layup,
                                   const NewLayer& given, HRESULT& status) {
    KORISpecObject_var feature;
    status = factory.CreateLayupLayer(layup, feature);
    const ZELILayupLayer_var layer(feature);
    if (FAILED(status) || !layer) return nullptr;
    if (given.material) status = layer->SetMaterial(given.material);
    if (SUCCEEDED(status)) status = layer->SetThickness(given.thickness);
    if (SUCCEEDED(status)) status = layer->SetOrientationAngle(given.angle);
    return SUCCEEDED(status) ? feature : KORISpecObject_var();
}

void RemoveLayers(KORMemoryDocument& document, const KORISpecObject_var& layup) {
    const ZELILayup_var read(layup);
    KORListValKORISpecObject_var layers;
    if (!read || FAILED(read->GetLayers(layers))) return;
    for (int position = 1; position <= layers.Size(); ++position) {
        static_cast<void>(document.Remove(layers[position].Get()));
    }
}

}  // namespace

std::string VisibleName(const KORISpecObject_var& feature) {
    const KORIAlias_var alias(feature);
    return alias ? std::string(alias->GetAlias().View()) : std::string();
}

std::vector<DocumentLayup> LayupsOf(KORMemoryDocument& document) {
    std::vector<DocumentLayup> layups;
    document.ForEachFeature(KORName::Intern(kLayup), [&](KORFeature& feature) {
        const KORISpecObject_var layup(&feature);
        layups.push_back({layup, VisibleName(layup)});
    });
    return layups;
}

std::optional<StoredLayup> ReadLayup(const KORISpecObject_var& feature) {
    const ZELILayup_var layup(feature);
    const KORISamValidity_var validity(feature);
    KORListValKORISpecObject_var layers;
    if (!layup || !validity || FAILED(layup->GetLayers(layers))) return std::nullopt;
    StoredLayup stored;
    stored.name = VisibleName(feature);
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

KORISpecObject_var NewLayup(KORMemoryDocument& document, const std::string& name, HRESULT& status) {
    document.AddAnalysisModel();
    ZELIMaterialPropertiesFact_var factory;
    status = KORInstantiate(kFactory, factory);
    if (FAILED(status)) return nullptr;
    KORISpecObject_var layup;
    status = factory->CreateLayup(layup, &document);
    if (FAILED(status) || !layup) return nullptr;
    if (!name.empty()) KORIAlias_var(layup)->SetAlias(name.c_str());
    return layup;
}

HRESULT SetLayers(KORMemoryDocument& document, const KORISpecObject_var& layup,
                  const std::vector<NewLayer>& layers) {
    ZELIMaterialPropertiesFact_var factory;
    HRESULT status = KORInstantiate(kFactory, factory);
    KORListValKORISpecObject_var made;
    for (const NewLayer& layer : layers) {
        if (FAILED(status)) return status;
        const auto feature = NewLayerFeature(*factory, layup, layer, status);
        if (!feature) return FAILED(status) ? status : E_FAIL;
        made.Append(feature);
    }
    const ZELILayup_var target(layup);
    if (FAILED(status) || !target) return FAILED(status) ? status : E_FAIL;
    RemoveLayers(document, layup);
    return target->SetLayers(made);
}

void RemoveLayup(KORMemoryDocument& document, const KORISpecObject_var& layup) {
    RemoveKeptLayupCard(document, layup);
    RemoveLayers(document, layup);
    document.ForEachFeature(KORName::Intern(kPropertySet), [&](KORFeature& feature) {
        const KORISpecObject_var set(&feature);
        const FeatureValues values(set.Get());
        const auto members = values.Features(kMembers);
        values.Empty(kMembers);
        for (const auto& member : members) {
            if (KORVar<KORFeature>(member).Get() != KORVar<KORFeature>(layup).Get()) {
                values.Append(kMembers, member.Get());
            }
        }
    });
    static_cast<void>(document.Remove(layup.Get()));
}

}  // namespace zelmat
