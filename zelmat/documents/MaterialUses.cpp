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

bool IsOf(const KORISpecObject_var& layer, KORISpecObject* material) {
    const ZELILayupLayer_var read(layer);
    KORISpecObject_var own;
    return read && SUCCEEDED(read->GetMaterial(own)) && own &&
           KORVar<KORFeature>::Of(own.Get()).Get() == KORVar<KORFeature>::Of(material).Get();
}

}  // namespace

std::vector<std::string> LayupsThatUse(KORMemoryDocument& document, KORISpecObject* material) {
    std::vector<std::string> names;
    document.ForEachFeature(KORName::Intern(kLayup), [&](KORFeature& feature) {
        const auto layup = ZELILayup_var::Of(static_cast<KORISpecObject*>(&feature));
        KORListValKORISpecObject_var layers;
        if (!layup || FAILED(layup->GetLayers(layers))) return;
        for (int position = 1; position <= layers.Size(); ++position) {
            if (!IsOf(layers[position], material)) continue;
            names.emplace_back(feature.GetAlias().View());
            return;
        }
    });
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
