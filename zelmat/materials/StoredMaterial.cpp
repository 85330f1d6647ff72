#include "zelmat/materials/StoredMaterial.h"

#include <algorithm>
#include <utility>

#include "zelmat/materials/MaterialReader.h"
#include "zelmat/materials/MaterialWriter.h"

namespace zelmat {

namespace {

using Given = std::vector<const Block*>;

/// What the document holds once it was given these; without blocks when some of it could not be stored.
StoredMaterial WriteAndRead(KORISpecObject* feature, const Material& material, const Given& given,
                            Findings& findings) {
    StoredMaterial stored{.given = &material};
    WriteBlocks(feature, material, given, findings);
    if (findings.HasErrors()) return stored;
    Material read = ReadMaterial(feature, material.file, material.name, findings);
    stored.heatGeneration = read.heatGeneration;
    for (Block& block : read.blocks) {
        const auto found = std::find_if(given.begin(), given.end(),
                                        [&](const Block* each) { return each->kind == block.kind; });
        stored.blocks.push_back({std::move(block), found == given.end() ? nullptr : *found});
    }
    return stored;
}

/// Puts what was read of a further fit behind the ones before it.
void AddFit(std::vector<StoredBlock>& blocks, std::vector<StoredBlock> read, const BlockKind* fit) {
    const auto isFit = [fit](const StoredBlock& stored) { return stored.block.kind == fit; };
    const auto added = std::find_if(read.begin(), read.end(), isFit);
    const auto last = std::find_if(blocks.rbegin(), blocks.rend(), isFit);
    if (added != read.end()) blocks.insert(last.base(), std::move(*added));
}

}  // namespace

std::vector<const StoredBlock*> StoredMaterial::SwitchedOn() const {
    std::vector<const StoredBlock*> on;
    for (const StoredBlock& stored : blocks) {
        if (stored.block.enabled) on.push_back(&stored);
    }
    return on;
}

std::vector<std::string> StoredMaterial::Names(bool switchedOn) const {
    std::vector<std::string> names;
    for (const StoredBlock& stored : blocks) {
        const std::string& name = stored.block.kind->name;
        const bool told = !names.empty() && names.back() == name;
        if (stored.block.enabled == switchedOn && !told) names.push_back(name);
    }
    return names;
}

StoredMaterial HeldMaterial(const Material& given, Material held, std::size_t features) {
    StoredMaterial stored{.given = &given, .heatGeneration = held.heatGeneration, .features = features};
    for (Block& block : held.blocks) {
        const bool fit = block.kind->alternatives && block.enabled && !given.fits.empty();
        const Block* as = fit ? &given.fits.front() : given.Find(block.kind->name);
        stored.blocks.push_back({std::move(block), as});
    }
    return stored;
}

StoredMaterial StoreMaterial(MaterialHost& host, const Material& material, const Given& fits,
                             Findings& findings) {
    const std::size_t before = host.FeatureCount();
    const KORISpecObject_var feature = host.NewMaterial(material, findings);
    if (!feature) return {.given = &material};

    Given given;
    for (const Block& block : material.blocks) given.push_back(&block);
    if (!fits.empty()) given.push_back(fits.front());
    StoredMaterial stored = WriteAndRead(feature.Get(), material, given, findings);
    stored.features = host.FeatureCount() - before;
    for (std::size_t i = 1; i < fits.size(); ++i) {
        auto next = WriteAndRead(feature.Get(), material, {fits[i]}, findings);
        AddFit(stored.blocks, std::move(next.blocks), fits[i]->kind);
    }
    return stored;
}

}  // namespace zelmat
