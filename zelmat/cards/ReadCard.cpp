#include "zelmat/cards/ReadCard.h"

#include <memory>
#include <utility>

#include "zelmat/cards/JsonCardReader.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using Tree = std::shared_ptr<const PlacedJson>;

Tree JsonTree(std::string text, const std::string& path, Findings& findings) {
    KORFileError error;
    auto file = KORJsonFile::Parse(std::move(text), path, error);
    if (file) return std::make_shared<const PlacedJson>(std::move(*file));
    findings.Add(UnreadableFile(path, error, "broken-json"));
    return nullptr;
}

}  // namespace

std::vector<Material> ReadCards(const std::string& path, Findings& findings, const CardReading&) {
    auto text = ReadText(path, findings);
    if (!text) return {};
    const Tree tree = JsonTree(std::move(*text), ShownPath(path), findings);
    return tree ? JsonCardReader(tree, findings).Read() : std::vector<Material>();
}

std::optional<Material> ReadCard(const std::string& path, Findings& findings) {
    auto materials = ReadCards(path, findings);
    if (findings.HasErrors() || materials.empty()) return std::nullopt;
    if (materials.size() == 1) return std::move(materials.front());
    findings.Add({FindingKind::USAGE,
                  {ShownPath(path), 0},
                  "several-materials",
                  "the card holds " + std::to_string(materials.size()) + " materials",
                  {"expected one",
                   "has: " + WordList(materials, [](const Material& material) { return material.name; })}});
    return std::nullopt;
}

}  // namespace zelmat
