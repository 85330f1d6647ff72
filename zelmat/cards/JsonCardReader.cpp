#include "zelmat/cards/JsonCardReader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "zelmat/cards/CardBlockReader.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 7> kUnits = {{
    {"stress", "Pa"},
    {"length", "m"},
    {"temperature", "K"},
    {"density", "kg/m3"},
    {"thermal_expansion", "1/K"},
    {"conductivity", "W/(m K)"},
    {"specific_heat", "J/(kg K)"},
}};

constexpr std::array<const char*, 8> kHeadKeys = {"name",  "description",  "class", "source",
                                                  "notes", "illustrative", "units", "heat_generation"};

}  // namespace

std::optional<Material> JsonCardReader::Read(const std::string& path) {
    KORFileError error;
    auto read = KORJsonFile::Read(path, error);
    if (!read) {
        findings_.Add(UnreadableFile(path, error, "broken-json"));
        return std::nullopt;
    }
    const auto file = std::make_shared<const KORJsonFile>(std::move(*read));

    Findings mistakes;
    Material material{.file = path, .name = {}};
    const JsonNode root(*file, mistakes);
    if (root.ExpectObject()) {
        ReadHead(root, material);
        ReadBlocks(root, file, material);
        KeepUnknownBlocks(root, material);
    }
    for (const Finding& mistake : mistakes.ByLine()) findings_.Add(mistake);
    if (mistakes.HasErrors()) return std::nullopt;
    return material;
}

void JsonCardReader::ReadHead(const JsonNode& root, Material& material) const {
    const std::vector<std::string> none;
    if (const auto name = root.Required("name")) material.name = name->Text().value_or("");
    if (root.Has("description")) material.description = root.At("description").Text().value_or("");
    if (root.Has("class")) material.materialClass = root.At("class").Text().value_or("");
    if (root.Has("illustrative")) material.illustrative = root.At("illustrative").Flag().value_or(false);
    if (root.Has("heat_generation")) material.heatGeneration = root.At("heat_generation").Flag();
    if (root.Has("source")) material.sources = root.At("source").OneOrMoreTexts().value_or(none);
    if (root.Has("notes")) material.notes = root.At("notes").OneOrMoreTexts().value_or(none);
    if (root.Has("units")) ReadUnits(root.At("units"));
}

void JsonCardReader::ReadUnits(const JsonNode& units) const {
    if (!units.ExpectObject()) return;
    for (const std::string& quantity : units.Keys()) {
        const JsonNode node = units.At(quantity);
        const auto known = std::find_if(kUnits.begin(), kUnits.end(),
                                        [&](const auto& unit) { return unit.first == quantity; });
        if (known == kUnits.end()) {
            node.Report("unknown-unit", "there is no quantity \"" + quantity + "\"",
                        {"known: " + WordList(kUnits, [](const auto& unit) { return unit.first; })});
            continue;
        }
        const auto given = node.Text();
        if (given && *given != known->second) {
            node.Report("wrong-unit", quantity + " is given in \"" + *given + "\"",
                        {std::string("expected ") + known->second, "convert the values"});
        }
    }
}

void JsonCardReader::ReadBlocks(const JsonNode& root, const File& file, Material& material) const {
    for (const BlockKind& kind : BlockKinds()) {
        if (!root.Has(kind.name)) continue;
        const JsonNode node = root.At(kind.name);
        if (kind.alternatives) {
            ReadAlternatives(node, kind, file, material);
            continue;
        }
        auto block = CardBlockReader(node, kind, file).Read();
        if (!block) continue;
        auto& list = kind.use == BlockUse::BEHAVIOR ? material.blocks : material.information;
        list.push_back(std::move(*block));
    }
}

void JsonCardReader::ReadAlternatives(const JsonNode& node, const BlockKind& kind, const File& file,
                                      Material& material) const {
    if (!node.ExpectList()) return;
    if (node.Size() == 0) {
        node.Report("empty-list", kind.name + " is an empty list", {"leave it out if it is not defined"});
    }
    for (std::size_t i = 0; i < node.Size(); ++i) {
        auto block = CardBlockReader(node.At(i), kind, file).Read();
        if (block) material.fits.push_back(std::move(*block));
    }
}

void JsonCardReader::KeepUnknownBlocks(const JsonNode& root, Material& material) const {
    for (const std::string& key : root.Keys()) {
        if (std::find(kHeadKeys.begin(), kHeadKeys.end(), key) != kHeadKeys.end() || FindBlockKind(key))
            continue;
        const JsonNode node = root.At(key);
        material.kept.push_back({key, node.Json().dump()});
        node.Report(FindingKind::WARNING, "unknown-block", "there is no block " + Quoted(key),
                    {"known: " + WordList(BlockKinds(), [](const BlockKind& kind) { return kind.name; }),
                     "it is kept, and nothing uses it"});
    }
}

}  // namespace zelmat
