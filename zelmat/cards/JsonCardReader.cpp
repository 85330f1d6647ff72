#include "zelmat/cards/JsonCardReader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "zelmat/cards/CardBlockReader.h"
#include "zelmat/cards/CommentKey.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr std::array<const char*, 9> kHeadKeys = {
    "version", "name", "description", "class", "source", "notes", "illustrative", "units", "heat_generation"};

}  // namespace

std::vector<Material> JsonCardReader::Read() {
    std::vector<Material> materials;
    Findings mistakes;
    const JsonNode root(*file_, mistakes);
    if (!root.Json().is_array()) {
        ReadMaterial(root, mistakes, materials);
    } else if (root.Size() == 0) {
        root.Report("empty-list", "the card is an empty list", {"expected the cards of materials"});
    }
    for (std::size_t i = 0; root.Json().is_array() && i < root.Size(); ++i) {
        ReadMaterial(root.At(i), mistakes, materials);
    }
    for (const Finding& mistake : mistakes.ByLine()) findings_.Add(mistake);
    return materials;
}

void JsonCardReader::ReadMaterial(const JsonNode& root, Findings& mistakes,
                                  std::vector<Material>& materials) const {
    if (!root.ExpectObject() || !ReadVersion(root)) return;
    const auto before = mistakes.All().size();
    Material material{.file = file_->Name(), .name = {}};
    ReadHead(root, material);
    const CardUnits units = root.Has("units") ? CardUnits(root.At("units"), bare_) : CardUnits(bare_);
    ReadBlocks(root, units, material);
    KeepUnknownBlocks(root, material);
    const auto& all = mistakes.All();
    const bool good = std::all_of(all.begin() + static_cast<std::ptrdiff_t>(before), all.end(),
                                  [](const Finding& one) { return one.kind == FindingKind::WARNING; });
    if (good) materials.push_back(std::move(material));
}

/// Nothing else of a newer card is looked at: it may mean anything.
bool JsonCardReader::ReadVersion(const JsonNode& root) const {
    if (!root.Has("version")) return true;
    const JsonNode node = root.At("version");
    if (node.Json().is_number_integer() && node.Json() > kVersion) {
        node.Report("newer-version", "the card is of version " + node.Excerpt(),
                    {"this program reads up to version " + std::to_string(kVersion)});
        return false;
    }
    return node.Whole(1, kVersion).has_value();
}

void JsonCardReader::ReadHead(const JsonNode& root, Material& material) const {
    const std::vector<std::string> none;
    if (const auto name = root.Required("name")) material.name = name->Name().value_or("");
    if (root.Has("description")) material.description = root.At("description").Text().value_or("");
    if (root.Has("class")) material.materialClass = root.At("class").Text().value_or("");
    if (root.Has("illustrative")) material.illustrative = root.At("illustrative").Flag().value_or(false);
    if (root.Has("heat_generation")) material.heatGeneration = root.At("heat_generation").Flag();
    if (root.Has("source")) material.sources = root.At("source").OneOrMoreTexts().value_or(none);
    if (root.Has("notes")) material.notes = root.At("notes").OneOrMoreTexts().value_or(none);
}

void JsonCardReader::ReadBlocks(const JsonNode& root, const CardUnits& units, Material& material) const {
    for (const BlockKind& kind : BlockKinds()) {
        if (!root.Has(kind.name)) continue;
        const JsonNode node = root.At(kind.name);
        if (kind.alternatives) {
            ReadAlternatives(node, kind, units, material);
            continue;
        }
        auto block = CardBlockReader(node, kind, units, file_).Read();
        if (!block) continue;
        auto& list = kind.use == BlockUse::BEHAVIOR ? material.blocks : material.information;
        list.push_back(std::move(*block));
    }
}

void JsonCardReader::ReadAlternatives(const JsonNode& node, const BlockKind& kind, const CardUnits& units,
                                      Material& material) const {
    if (!node.ExpectList()) return;
    if (node.Size() == 0) {
        node.Report("empty-list", kind.name + " is an empty list", {"leave it out if it is not defined"});
    }
    for (std::size_t i = 0; i < node.Size(); ++i) {
        auto block = CardBlockReader(node.At(i), kind, units, file_).Read();
        if (block) material.fits.push_back(std::move(*block));
    }
}

void JsonCardReader::KeepUnknownBlocks(const JsonNode& root, Material& material) const {
    for (const std::string& key : root.Keys()) {
        if (IsComment(key) || FindBlockKind(key) ||
            std::find(kHeadKeys.begin(), kHeadKeys.end(), key) != kHeadKeys.end()) {
            continue;
        }
        const JsonNode node = root.At(key);
        material.kept.push_back({key, node.Json().dump()});
        node.Report(FindingKind::WARNING, "unknown-block", "there is no block " + Quoted(key),
                    {"known: " + WordList(BlockKinds(), [](const BlockKind& kind) { return kind.name; }),
                     "it is kept, and no behavior uses it"});
    }
}

}  // namespace zelmat
