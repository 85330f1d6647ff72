#include "zelmat/layups/LayupCardReader.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "zelmat/files/ReadText.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/layups/PlyThickness.h"
#include "zelmat/layups/StackingNotation.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/Quantity.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// What a card may name the unit of, and the quantity that it is.
constexpr std::array<std::pair<const char*, const char*>, 7> kQuantities = {{
    {"length", "length"},
    {"angle", "angle"},
    {"stress", "stress"},
    {"density", "density"},
    {"A", "force_per_length"},
    {"B", "force"},
    {"D", "moment"},
}};

// "published" and "computed" hold stiffness matrices and moduli, for those who check an analysis against
// them.
const std::vector<std::string> kKeys = {
    "name",          "description", "source",          "notes",     "units",   "convention",
    "ply_materials", "layers",      "total_thickness", "published", "computed"};
constexpr std::array<const char*, 5> kKept = {"units", "convention", "total_thickness", "published",
                                              "computed"};

}  // namespace

std::optional<LayupCard> LayupCardReader::Read(const std::string& path) {
    auto text = zelmat::ReadText(path, findings_);
    return text ? ReadText(std::move(*text), ShownPath(path)) : std::nullopt;
}

std::optional<LayupCard> LayupCardReader::ReadText(std::string text, const std::string& name) {
    KORFileError error;
    auto read = KORJsonFile::Parse(std::move(text), name, error);
    if (!read) {
        findings_.Add(UnreadableFile(name, error, "broken-json"));
        return std::nullopt;
    }

    const PlacedJson file(std::move(*read));
    Findings mistakes;
    LayupCard card;
    card.file = name;
    const JsonNode root(file, mistakes);
    if (root.ExpectObject()) ReadCard(root, card);
    for (const Finding& mistake : mistakes.ByLine()) findings_.Add(mistake);
    if (mistakes.HasErrors()) return std::nullopt;
    return card;
}

void LayupCardReader::ReadCard(const JsonNode& root, LayupCard& card) const {
    root.ExpectKeys(kKeys);
    if (const auto name = root.Required("name")) card.name = name->Name().value_or("");
    if (root.Has("description")) card.description = root.At("description").Text().value_or("");
    if (root.Has("source")) {
        card.sources = root.At("source").OneOrMoreTexts().value_or(std::vector<std::string>());
    }
    if (root.Has("notes")) {
        card.notes = root.At("notes").OneOrMoreTexts().value_or(std::vector<std::string>());
    }
    if (root.Has("units")) ReadUnits(root.At("units"));
    if (root.Has("ply_materials")) ReadMaterials(root.At("ply_materials"), card);
    if (const auto layers = root.Required("layers")) ReadLayers(*layers, card);
    if (root.Has("total_thickness")) CheckTotal(root.At("total_thickness"), card);
    for (const char* key : kKept) {
        if (root.Has(key)) card.kept.push_back({key, root.At(key).Json().dump()});
    }
}

void LayupCardReader::ReadUnits(const JsonNode& units) const {
    if (!units.ExpectObject()) return;
    for (const std::string& name : units.Keys()) {
        const JsonNode node = units.At(name);
        const auto known = std::find_if(kQuantities.begin(), kQuantities.end(),
                                        [&](const auto& entry) { return entry.first == name; });
        if (known == kQuantities.end()) {
            node.Report("unknown-unit", "there is no quantity " + Quoted(name),
                        {"known: " + WordList(kQuantities, [](const auto& entry) { return entry.first; })});
            continue;
        }
        const std::string& expected = FindQuantity(known->second)->stored.Spelling();
        const auto given = node.Text();
        if (given && *given != expected) {
            node.Report("wrong-unit", name + " is given in " + Quoted(*given),
                        {"expected " + expected, "convert the values"});
        }
    }
}

void LayupCardReader::ReadMaterials(const JsonNode& materials, LayupCard& card) const {
    if (!materials.ExpectObject()) return;
    for (const std::string& name : materials.Keys()) {
        PlyMaterial& material = card.materials.emplace_back(PlyMaterial{name, {}, {}});
        const JsonNode node = materials.At(name);
        if (!node.ExpectObject()) continue;
        std::vector<std::string> known = PlyConstants();
        for (const std::string& constant : known) {
            if (!node.Has(constant)) continue;
            if (const auto value = node.At(constant).Number()) {
                material.constants.emplace_back(constant, *value);
            }
        }
        if (node.Has("source")) material.source = node.At("source").Text().value_or("");
        known.emplace_back("source");
        node.ExpectKeys(known);
    }
}

void LayupCardReader::ReadLayers(const JsonNode& layers, LayupCard& card) const {
    card.layersLine = layers.Line();
    if (!layers.ExpectList()) return;
    for (std::size_t i = 0; i < layers.Size(); ++i) {
        if (auto layer = ReadLayer(layers.At(i), card)) card.layers.push_back(std::move(*layer));
    }
}

std::optional<CardLayer> LayupCardReader::ReadLayer(const JsonNode& node, const LayupCard& card) const {
    if (!node.ExpectObject()) return std::nullopt;
    CardLayer layer{.line = node.Line(), .material = std::nullopt};
    node.ExpectKeys({"material", "thickness", "angle_deg"});
    if (node.Has("material")) {
        layer.material = node.At("material").Text();
        const bool known = std::any_of(card.materials.begin(), card.materials.end(),
                                       [&](const auto& material) { return material.name == layer.material; });
        if (layer.material && !known) {
            node.At("material")
                .Report("unknown-material", "there is no ply material " + Quoted(*layer.material),
                        {"known: " +
                         WordList(card.materials, [](const auto& material) { return material.name; })});
        }
    }
    const auto thickness = node.Required("thickness");
    if (const auto value = thickness ? thickness->Number() : std::nullopt) {
        layer.thickness = *value;
        if (!IsPlyThickness(*value)) {
            thickness->Report("out-of-range", thickness->Path() + " is " + WithUnit(*value, "m"),
                              {kPlyThicknesses});
        }
    }
    const auto angle = node.Required("angle_deg");
    if (const auto value = angle ? angle->Number() : std::nullopt) {
        layer.angle = *value;
        if (!(std::abs(*value) <= kLargestAngle)) {
            angle->Report("out-of-range", angle->Path() + " is " + WithUnit(*value, "deg"),
                          {"expected -360 deg to 360 deg"});
        }
    }
    return layer;
}

void LayupCardReader::CheckTotal(const JsonNode& total, const LayupCard& card) const {
    constexpr double kAgreement = 1e-9;  // relative
    const auto given = total.Number();
    double sum = 0.0;
    for (const CardLayer& layer : card.layers) {
        if (!(layer.thickness > 0.0)) return;  // reported already
        sum += layer.thickness;
    }
    if (given && !(std::abs(*given - sum) <= kAgreement * sum)) {
        total.Report("wrong-total", "total_thickness is " + WithUnit(*given, "m"),
                     {"the layers add up to " + WithUnit(sum, "m")});
    }
}

}  // namespace zelmat
