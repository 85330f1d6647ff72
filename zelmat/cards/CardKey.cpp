#include "zelmat/cards/CardKey.h"

#include <algorithm>

#include "zelmat/cards/PropertyNames.h"
#include "zelmat/cards/TableByColumns.h"

namespace zelmat {

namespace {

bool HasSetting(const BlockKind& block, const std::string& name) {
    return std::any_of(block.settings.begin(), block.settings.end(),
                       [&](const Setting& setting) { return setting.name == name; });
}

std::string KeyWithoutBlock(const std::string& name) {
    const std::string property = PropertyName(name);
    const BlockKind* block = FindBlockKind(property) ? nullptr : BlockOfProperty(property);
    return block ? block->name + "." + property : BlockName(name);
}

}  // namespace

std::string CardKey(std::string_view key) {
    const auto dot = key.find('.');
    const std::string head(key.substr(0, dot));
    if (dot == std::string_view::npos) return KeyWithoutBlock(head);
    const BlockKind* block = FindBlockKind(BlockName(head));
    if (!block || block->IsUnread()) return std::string(key);
    const std::string member(key.substr(dot + 1));
    const auto last = member.rfind('.');
    const std::string table = last == std::string::npos ? "" : member.substr(0, last);
    std::string property = PropertyName(last == std::string::npos ? member : member.substr(last + 1));
    if (table.empty() && property == block->name && HasColumn(*block, property)) return property;
    const bool known = HasColumn(*block, property, table) || (table.empty() && HasSetting(*block, property));
    if (!known) return block->name + "." + member;
    return block->name + "." + (table.empty() ? property : table + "." + property);
}

}  // namespace zelmat
