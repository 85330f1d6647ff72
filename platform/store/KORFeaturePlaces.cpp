#include "platform/store/KORFeaturePlaces.h"

#include <bit>
#include <utility>

KORFeaturePlaces::KORFeaturePlaces(std::size_t expected) : entries_(std::bit_ceil(2 * expected + 16)) {}

bool KORFeaturePlaces::Add(const KORFeature* feature, std::uint32_t place) {
    const std::size_t index = IndexOf(feature);
    if (entries_[index].feature) return false;
    entries_[index] = {feature, place};
    if (2 * ++size_ > entries_.size()) Grow();
    return true;
}

std::optional<std::uint32_t> KORFeaturePlaces::Find(const KORFeature* feature) const {
    const Entry& entry = entries_[IndexOf(feature)];
    return entry.feature ? std::optional(entry.place) : std::nullopt;
}

std::size_t KORFeaturePlaces::IndexOf(const KORFeature* feature) const {
    // Fibonacci hashing: addresses differ in their middle bits.
    const std::uint64_t hash = reinterpret_cast<std::uintptr_t>(feature) * 0x9E3779B97F4A7C15u;
    const std::size_t mask = entries_.size() - 1;
    std::size_t index = (hash >> 32) & mask;
    while (entries_[index].feature && entries_[index].feature != feature) index = (index + 1) & mask;
    return index;
}

void KORFeaturePlaces::Grow() {
    std::vector<Entry> taken(2 * entries_.size());
    taken.swap(entries_);
    for (const Entry& entry : taken) {
        if (entry.feature) entries_[IndexOf(entry.feature)] = entry;
    }
}
