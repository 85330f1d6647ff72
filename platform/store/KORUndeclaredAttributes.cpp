#include "platform/store/KORUndeclaredAttributes.h"

#include <stdexcept>

KORSlot KORUndeclaredAttributes::SlotOf(const KORUnicodeString& name) {
    if (const KORSlot known = Find(name.View())) return known;
    if (attributes_.size() == kMost) throw std::length_error("a feature has too many undeclared attributes");
    const auto slot = static_cast<KORSlot>(KORLayout::kFirstUndeclared + attributes_.size());
    attributes_.push_back({name});
    attributes_.back().value.SetSlot(slot);
    slots_.emplace(attributes_.back().name.View(), slot);
    return slot;
}

KORSlot KORUndeclaredAttributes::Find(std::string_view name) const {
    const auto found = slots_.find(name);
    return found != slots_.end() ? found->second : KORSlot{0};
}

const KORValue& KORUndeclaredAttributes::At(KORSlot slot) const {
    if (slot == KORLayout::kName) return name_;
    if (slot == KORLayout::kAlias) return alias_;
    return attributes_[Index(slot)].value;
}
