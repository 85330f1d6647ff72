#include "zelmat/documents/WholeMaterial.h"

#include <algorithm>

#include "zelmat/materials/MaterialWriter.h"
#include "zelmat/materials/NewMaterial.h"

namespace zelmat {

namespace {

void Switch(const DocumentMaterial& material, const Material& names, const BlockKind& kind, bool on) {
    const Block block{.kind = &kind, .enabled = on};
    Findings none;  // what the material does not have cannot be switched
    WriteBlocks(material.feature.Get(), names, {&block}, none);
}

bool HasRows(const Block& block) {
    return std::any_of(block.tables.begin(), block.tables.end(),
                       [](const Table& table) { return table.Rows() > 0; });
}

}  // namespace

WholeMaterial ReadWholeMaterial(const DocumentMaterial& material, const std::string& file,
                                Findings& findings) {
    const Material held = ReadHeldMaterial(material, file, findings);
    Material names{.file = file, .name = material.name};
    WholeMaterial whole;
    for (const Block& block : held.blocks) {
        if (block.enabled) continue;
        Switch(material, names, *block.kind, true);
        Findings none;
        const Material now = ReadHeldMaterial(material, file, none);
        const Block* on = none.HasErrors() ? nullptr : now.Find(block.kind->name);
        if (on && on->enabled && HasRows(*on)) {
            whole.off.push_back(block.kind);
        } else {
            Switch(material, names, *block.kind, false);
        }
    }
    whole.material = ReadDocumentMaterial(material, file, findings);
    return whole;
}

bool AddWholeMaterial(KORMemoryDocument& document, const WholeMaterial& whole, Findings& findings) {
    const Block* fit = whole.material.fits.empty() ? nullptr : &whole.material.fits.front();
    const auto feature = AddMaterial(document, whole.material, fit, findings);
    if (!feature) return false;
    for (const BlockKind* kind : whole.off) {
        Switch({KORISpecObject_var(feature), whole.material.name}, whole.material, *kind, false);
    }
    return true;
}

}  // namespace zelmat
