#include "platform/disk/KORDiskSlots.h"

KORDiskSlots::KORDiskSlots(const KORDiskNames& names) : names_(names) {
    for (std::size_t number = 1; number <= names.Size(); ++number) {
        keys_.push_back(KORName::Find(std::string_view(names.Text(number))));
    }
}

KORSlot KORDiskSlots::Of(KORFeature& feature, std::uint64_t name, KORAttributeKind kind) const {
    if (const KORName* key = keys_[name - 1]) {
        const KORLayout::Place place = feature.Layout().Find(key);
        if (place.slot != 0 && place.kind == kind) return place.slot;
    }
    return UndeclaredOf(feature, name);
}

KORSlot KORDiskSlots::UndeclaredOf(KORFeature& feature, std::uint64_t name) const {
    return feature.UndeclaredSlot(KORUnicodeString(std::string_view(names_.Text(name))));
}
