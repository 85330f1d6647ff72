#include "zelmat/layups/LayupCardText.h"

#include <algorithm>

#include "zelmat/files/JsonText.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

ordered_json Materials(const LayupCard& card) {
    ordered_json materials = ordered_json::object();
    for (const PlyMaterial& material : card.materials) {
        ordered_json& json = materials[material.name] = ordered_json::object();
        for (const auto& [name, value] : material.constants) json[name] = value;
        if (!material.source.empty()) json["source"] = material.source;
    }
    return materials;
}

ordered_json Layers(const LayupCard& card) {
    ordered_json layers = ordered_json::array();
    for (const CardLayer& layer : card.layers) {
        ordered_json& json = layers.emplace_back(ordered_json::object());
        if (layer.material) json["material"] = *layer.material;
        json["thickness"] = layer.thickness;
        json["angle_deg"] = layer.angle;
    }
    return layers;
}

}  // namespace

std::string LayupCardText(const LayupCard& card) {
    ordered_json json = {{"name", card.name}};
    const auto keep = [&](const char* name) {
        const auto found = std::find_if(card.kept.begin(), card.kept.end(),
                                        [&](const KeptValue& kept) { return kept.name == name; });
        if (found != card.kept.end()) json[name] = ordered_json::parse(found->json);
    };
    if (!card.description.empty()) json["description"] = card.description;
    if (!card.sources.empty()) json["source"] = card.sources;
    if (!card.notes.empty()) json["notes"] = card.notes;
    keep("units");
    keep("convention");
    json["ply_materials"] = Materials(card);
    json["layers"] = Layers(card);
    keep("total_thickness");
    keep("published");
    keep("computed");
    return JsonText(json);
}

}  // namespace zelmat
