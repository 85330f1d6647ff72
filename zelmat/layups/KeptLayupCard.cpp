#include "zelmat/layups/KeptLayupCard.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "zelmat/layups/DocumentLayups.h"
#include "zelmat/materials/DocumentMaterials.h"
#include "zelmat/materials/ExtraText.h"
#include "zelmat/materials/FeatureValues.h"

namespace zelmat {

namespace {

constexpr const char* kCardType = "ZelmatLayupCardLT";
constexpr const char* kPlyType = "ZelmatPlyMaterialLT";

bool IsSame(const KORISpecObject_var& a, const KORISpecObject_var& b) {
    return KORVar<KORFeature>(a).Get() == KORVar<KORFeature>(b).Get();
}

/// Null when nothing is kept.
KORISpecObject_var CardFeatureOf(KORMemoryDocument& document, const KORISpecObject_var& layup) {
    KORISpecObject_var found;
    document.ForEachFeature(KORName::Intern(kCardType), [&](KORFeature& feature) {
        const KORISpecObject_var card(&feature);
        const auto of = FeatureValues(card.Get()).Feature("Layup");
        if (of && IsSame(of, layup)) found = card;
    });
    return found;
}

bool SaysNothing(const LayupCard& card) {
    return card.description.empty() && card.sources.empty() && card.notes.empty() && card.kept.empty() &&
           std::all_of(card.materials.begin(), card.materials.end(), [](const PlyMaterial& material) {
               return material.constants.empty() && material.source.empty();
           });
}

std::string TextOfConstants(const PlyMaterial& material) {
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    for (const auto& [name, value] : material.constants) json[name] = value;
    return json.empty() ? std::string() : json.dump();
}

/// Those that the program knows: another one may have written others.
std::vector<std::pair<std::string, double>> ConstantsOfText(const std::string& text) {
    std::vector<std::pair<std::string, double>> constants;
    const auto json = nlohmann::ordered_json::parse(text, nullptr, false);
    if (!json.is_object()) return constants;
    for (const auto& [name, value] : json.items()) {
        if (PlyConstantQuantity(name) && value.is_number()) constants.emplace_back(name, value.get<double>());
    }
    return constants;
}

/// Null when there is none.
KORISpecObject_var MaterialOf(KORMemoryDocument& document, const std::string& name,
                              const std::map<std::string, KORISpecObject_var>& materials) {
    if (const auto known = materials.find(name); known != materials.end()) return known->second;
    for (const DocumentMaterial& material : MaterialsOf(document)) {
        if (material.name == name) return material.feature;
    }
    return nullptr;
}

PlyMaterial ReadPlyMaterial(KORISpecObject* feature) {
    const FeatureValues values(feature);
    const auto material = values.Feature("Material");
    std::string name = material ? VisibleName(material) : std::string();
    if (name.empty()) name = values.Text("Name");
    return {std::move(name), ConstantsOfText(values.Text("Constants")), values.Text("Source")};
}

void AddMaterial(LayupCard& card, PlyMaterial material) {
    const bool there = std::any_of(card.materials.begin(), card.materials.end(),
                                   [&](const PlyMaterial& each) { return each.name == material.name; });
    if (!there) card.materials.push_back(std::move(material));
}

}  // namespace

bool KeepLayupCard(KORMemoryDocument& document, const KORISpecObject_var& layup, const LayupCard& card,
                   const std::map<std::string, KORISpecObject_var>& materials) {
    RemoveKeptLayupCard(document, layup);
    if (SaysNothing(card)) return true;
    const KORISpecObject_var feature(document.NewPlatformFeature(kCardType, kCardType));
    if (!feature) return false;
    const FeatureValues values(feature.Get());
    values.SetFeature("Layup", layup.Get());
    values.SetText("Description", card.description);
    values.SetText("Sources", TextOfTexts(card.sources));
    values.SetText("Notes", TextOfTexts(card.notes));
    values.SetText("Kept", TextOfKept(card.kept));
    for (const PlyMaterial& material : card.materials) {
        const KORISpecObject_var ply(document.NewPlatformFeature(kPlyType, kPlyType));
        if (!ply) return false;
        const FeatureValues said(ply.Get());
        said.SetText("Name", material.name);
        said.SetFeature("Material", MaterialOf(document, material.name, materials).Get());
        said.SetText("Constants", TextOfConstants(material));
        said.SetText("Source", material.source);
        values.Append("PlyMaterials", ply.Get());
    }
    return true;
}

LayupCard ReadKeptLayupCard(KORMemoryDocument& document, const KORISpecObject_var& layup,
                            const StoredLayup& stored, const std::string& file) {
    LayupCard card;
    card.file = file;
    card.name = stored.name;
    if (const auto feature = CardFeatureOf(document, layup)) {
        const FeatureValues values(feature.Get());
        card.description = values.Text("Description");
        card.sources = TextsOfText(values.Text("Sources"));
        card.notes = TextsOfText(values.Text("Notes"));
        card.kept = KeptOfText(values.Text("Kept"));
        for (const auto& ply : values.Features("PlyMaterials")) AddMaterial(card, ReadPlyMaterial(ply.Get()));
    }
    for (const StoredLayer& layer : stored.layers) {
        if (layer.material) AddMaterial(card, {*layer.material, {}, {}});
        card.layers.push_back({0, layer.material, layer.thickness, layer.angle});
    }
    return card;
}

void RemoveKeptLayupCard(KORMemoryDocument& document, const KORISpecObject_var& layup) {
    const auto feature = CardFeatureOf(document, layup);
    if (!feature) return;
    for (const auto& ply : FeatureValues(feature.Get()).Features("PlyMaterials")) {
        static_cast<void>(document.Remove(ply.Get()));
    }
    static_cast<void>(document.Remove(feature.Get()));
}

}  // namespace zelmat
