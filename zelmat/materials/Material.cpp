#include "zelmat/materials/Material.h"

#include <algorithm>

namespace zelmat {

const Table* Block::Find(const TableKind* table) const {
    const auto found =
        std::find_if(tables.begin(), tables.end(), [&](const Table& each) { return each.kind == table; });
    return found == tables.end() ? nullptr : &*found;
}

const Table* Block::Find(const std::string& table) const {
    return Find(kind->FindTable(table));
}

const Block* Material::Find(const std::string& block) const {
    const auto found = std::find_if(blocks.begin(), blocks.end(),
                                    [&](const Block& each) { return each.kind->name == block; });
    return found == blocks.end() ? nullptr : &*found;
}

}  // namespace zelmat
