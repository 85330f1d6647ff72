#include "zelmat/documents/MaterialUses.h"

#include <algorithm>
#include <set>

#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "interfaces/KORIAlias.h"
#include "interfaces/KORICutAndPastable.h"

namespace zelmat {

namespace {

constexpr const char* kLayup = "ZELLayupLT";

KORICutAndPastable_var ContainerOf(KORISpecObject* feature) {
    return KORICutAndPastable_var(KORBaseUnknown_var::Adopt(feature->GetFeatContainer()));
}

/// The material's features, itself the first.
KORListValKORISpecObject_var PartsOf(const DocumentMaterial& material) {
    KORListValKORISpecObject_var one;
    KORListValKORISpecObject_var parts;
    one.Append(material.feature);
    const auto container = ContainerOf(material.feature.Get());
    if (!container || FAILED(container->Extract(one, parts))) return one;
    return parts;
}

/// The layer's material; null: it has none.
KORVar<KORFeature> MaterialOf(const KORISpecObject_var& layer) {
    const ZELILayupLayer_var read(layer);
    KORISpecObject_var material;
    const bool has = read && SUCCEEDED(read->GetMaterial(material)) && material;
    return has ? KORVar<KORFeature>::Of(material.Get()) : KORVar<KORFeature>();
}

KORListValKORISpecObject_var LayersOf(KORISpecObject* layup) {
    const auto read = ZELILayup_var::Of(layup);
    KORListValKORISpecObject_var layers;
    if (!read || FAILED(read->GetLayers(layers))) return {};
    return layers;
}

}  // namespace

std::vector<std::string> LayupsThatUse(KORMemoryDocument& document, KORISpecObject* material) {
    std::vector<std::string> names;
    document.ForEachFeature(KORName::Intern(kLayup), [&](KORFeature& feature) {
        const auto layers = LayersOf(&feature);
        for (int position = 1; position <= layers.Size(); ++position) {
            if (MaterialOf(layers[position]).Get() != KORVar<KORFeature>::Of(material).Get()) continue;
            names.emplace_back(feature.GetAlias().View());
            return;
        }
    });
    return names;
}

std::vector<std::string> RemovedMaterialsOf(const KORISpecObject_var& layup) {
    std::vector<std::string> names;
    const auto layers = LayersOf(layup.Get());
    for (int position = 1; position <= layers.Size(); ++position) {
        const auto material = MaterialOf(layers[position]);
        if (!material || material->LiesInContainer()) continue;
        const std::string name(material->GetAlias().View());
        if (std::ranges::find(names, name) == names.end()) names.push_back(name);
    }
    return names;
}

void RemoveMaterial(KORMemoryDocument& document, const DocumentMaterial& material) {
    const auto parts = PartsOf(material);
    for (int position = 1; position <= parts.Size(); ++position) {
        static_cast<void>(document.Remove(parts[position].Get()));
    }
}

KORISpecObject_var CopyMaterial(const DocumentMaterial& material, const std::string& name) {
    const auto parts = PartsOf(material);
    const auto container = ContainerOf(material.feature.Get());
    KORListValKORISpecObject_var copies;
    if (!container || FAILED(container->Paste(parts, copies)) || copies.Size() == 0) return nullptr;
    KORISpecObject_var copy = copies[1];
    KORIAlias_var::Of(copy.Get())->SetAlias(name.c_str());
    return copy;
}

std::string FreeName(KORMemoryDocument& document, const std::string& name) {
    std::set<std::string> taken;
    for (const DocumentMaterial& material : MaterialsOf(document)) taken.insert(material.name);
    std::string free = name;
    for (int number = 2; taken.contains(free); ++number) free = name + " (" + std::to_string(number) + ")";
    return free;
}

}  // namespace zelmat
