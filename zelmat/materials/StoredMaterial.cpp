#include "zelmat/materials/StoredMaterial.h"

#include <algorithm>
#include <utility>

#include "zelmat/materials/MaterialReader.h"
#include "zelmat/materials/MaterialWriter.h"

namespace zelmat {

namespace {

using Given = std::vector<const CardData*>;

/// What the material holds once it was given these; empty when some of it could not be stored.
std::vector<StoredBlock> WriteAndRead(KORISpecObject* material, const MaterialCard& card, const Given& given,
                                      Findings& findings) {
    WriteMaterial(material, card, given, findings);
    if (findings.HasErrors()) return {};
    auto stored = ReadMaterial(material, card.file, card.name, findings);
    for (StoredBlock& block : stored) {
        const auto found = std::find_if(given.begin(), given.end(),
                                        [&](const CardData* data) { return data->block == block.block; });
        if (found != given.end()) block.given = *found;
    }
    return stored;
}

/// Puts what was read of a further fit behind the ones before it.
void AddFit(std::vector<StoredBlock>& blocks, std::vector<StoredBlock> read, const CardBlock* fit) {
    const auto isFit = [fit](const StoredBlock& block) { return block.block == fit; };
    const auto added = std::find_if(read.begin(), read.end(), isFit);
    const auto last = std::find_if(blocks.rbegin(), blocks.rend(), isFit);
    if (added != read.end()) blocks.insert(last.base(), std::move(*added));
}

}  // namespace

std::vector<const StoredBlock*> StoredMaterial::SwitchedOn() const {
    std::vector<const StoredBlock*> on;
    for (const StoredBlock& block : blocks) {
        if (block.enabled) on.push_back(&block);
    }
    return on;
}

std::vector<std::string> StoredMaterial::Names(bool switchedOn) const {
    std::vector<std::string> names;
    for (const StoredBlock& block : blocks) {
        const bool told = !names.empty() && names.back() == block.block->name;
        if (block.enabled == switchedOn && !told) names.push_back(block.block->name);
    }
    return names;
}

StoredMaterial StoreMaterial(MaterialHost& host, const MaterialCard& card, const Given& fits,
                             Findings& findings) {
    StoredMaterial stored{.card = &card};
    const std::size_t before = host.FeatureCount();
    const KORISpecObject_var material = host.NewMaterial(card, findings);
    if (!material) return stored;

    Given given;
    for (const CardData& data : card.data) given.push_back(&data);
    if (!fits.empty()) given.push_back(fits.front());
    stored.blocks = WriteAndRead(material.Get(), card, given, findings);
    stored.features = host.FeatureCount() - before;
    for (std::size_t i = 1; i < fits.size(); ++i) {
        AddFit(stored.blocks, WriteAndRead(material.Get(), card, {fits[i]}, findings), fits[i]->block);
    }
    return stored;
}

}  // namespace zelmat
