#include "zelmat/materials/BlockKind.h"

#include <algorithm>
#include <utility>

#include "zelmat/materials/AttributeFacts.h"

namespace zelmat {

namespace {

SettingKind KindOf(KORAttributeKind kind) {
    switch (kind) {
        case KORAttributeKind::Boolean:
            return SettingKind::FLAG;
        case KORAttributeKind::Integer:
            return SettingKind::COUNT;
        case KORAttributeKind::Double:
            return SettingKind::NUMBER;
        case KORAttributeKind::String:
            return SettingKind::TEXT;
        case KORAttributeKind::ListOfDoubles:
        case KORAttributeKind::Component:
        case KORAttributeKind::ListOfComponents:
            break;
    }
    return SettingKind::UNREAD;
}

}  // namespace

Setting StoredSetting(const char* name, const char* lateType, const char* attribute, SettingBounds bounds) {
    AttributeFacts facts = FactsOf(lateType, attribute);
    return {.name = name,
            .title = std::move(facts.title),
            .unit = std::move(facts.unit),
            .kind = KindOf(facts.kind),
            .required = bounds.required,
            .choices = std::move(bounds.choices),
            .least = bounds.least,
            .most = bounds.most};
}

const TableKind* BlockKind::FindTable(const std::string& table) const {
    const auto found =
        std::find_if(tables.begin(), tables.end(), [&](const TableKind& kind) { return kind.name == table; });
    return found == tables.end() ? nullptr : &*found;
}

std::string BlockKind::TableName(const TableKind& table) const {
    return table.name.empty() ? name : name + "." + table.name;
}

const BlockKind* FindBlockKind(const std::string& name) {
    const auto& kinds = BlockKinds();
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [&](const BlockKind& kind) { return kind.name == name; });
    return found == kinds.end() ? nullptr : &*found;
}

}  // namespace zelmat
