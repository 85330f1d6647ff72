#include "zelmat/properties/UsedBlock.h"

#include <algorithm>

#include "zelmat/materials/StoredMeaning.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

const Block* FindBlock(const Material& material, const std::string& name) {
    if (const Block* block = material.Find(name)) return block;
    const auto fits = FitsOf(material);
    return !fits.empty() && fits.front()->kind->name == name ? fits.front() : nullptr;
}

/// What there is in its place.
std::string Present(const Material& material) {
    std::vector<std::string> names;
    for (const auto* blocks : {&material.blocks, &material.fits}) {
        for (const Block& block : *blocks) {
            const bool known = std::find(names.begin(), names.end(), block.kind->name) != names.end();
            if (block.enabled && !known) names.push_back(block.kind->name);
        }
    }
    return names.empty() ? "it has none" : "it has " + WordList(names);
}

}  // namespace

std::vector<const Block*> FitsOf(const Material& material) {
    std::vector<const Block*> fits;
    for (const auto* blocks : {&material.fits, &material.blocks}) {
        for (const Block& block : *blocks) {
            if (block.kind->name == "hyperelastic") fits.push_back(&block);
        }
    }
    return fits;
}

std::optional<Block> UsedBlock(const Material& material, const std::string& block, Findings& findings) {
    if (const Block* found = FindBlock(material, block)) return UsedBlock(material, *found, findings);
    findings.Add({FindingKind::ERROR,
                  {material.file, 0},
                  "no-such-block",
                  QuotedText(material.name) + " has no block " + QuotedText(block),
                  {Present(material)}});
    return std::nullopt;
}

std::optional<Block> UsedBlock(const Material& material, const Block& block, Findings& findings) {
    if (block.enabled) return ToStoredMeaning(block, material, findings);
    findings.Add({FindingKind::ERROR,
                  {material.file, block.origin.Line()},
                  "switched-off",
                  block.kind->name + " of " + QuotedText(material.name) + " is switched off",
                  {Present(material)}});
    return std::nullopt;
}

}  // namespace zelmat
