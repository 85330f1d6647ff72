#pragma once

#include <cstddef>
#include <utility>

#include "platform/store/KORFeature.h"

/// One reversible change. Holds the value the feature does not have at the moment, so applying it is a swap.
/// That a feature was created, removed or moved is a change of its container slot.
struct KORUndoEntry {
    KORUndoEntry(KORFeature& changed, KORSlot in, KORValue&& value) noexcept
        : feature(&changed), other(std::move(value)), slot(in) {}

    KORVar<KORFeature> feature;  ///< owned: an undone creation must be able to come back
    [[no_unique_address]] KORValue other;
    KORSlot slot;  ///< lies in what the value leaves unused of its 16 bytes

    void Apply() noexcept {
        feature->Swap(slot, other);
        if (slot == KORLayout::kContainer) feature->WasPutBack();
    }

    /// What changed, for reports: an attribute's name, or "Name", "Alias", "Container".
    const char* AttributeName() const { return feature->SlotName(slot); }
};

static_assert(sizeof(KORUndoEntry) == 24);

/// Entries in a row, oldest first. A vector would move them one by one to where they are kept; here they move
/// as bytes, since neither a handle nor a value knows where it lies, and a step can have very many.
class KORUndoEntries {
public:
    KORUndoEntries() = default;
    KORUndoEntries(KORUndoEntries&& other) noexcept { Swap(other); }
    KORUndoEntries& operator=(KORUndoEntries&& other) noexcept {
        Swap(other);
        return *this;
    }
    ~KORUndoEntries() {
        if (first_) Drop();
    }

    /// The value is as it was when there is no memory.
    KORUndoEntry& Append(KORFeature& feature, KORSlot slot, KORValue&& other) {
        if (size_ == room_) Grow();
        return *new (first_ + size_++) KORUndoEntry(feature, slot, std::move(other));
    }
    KORUndoEntry TakeLast() noexcept;

    /// All of them, in no more room than they need. This one is empty then and keeps its room for others.
    KORUndoEntries TakeAll();
    void Clear() noexcept;

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    KORUndoEntry* begin() { return first_; }
    KORUndoEntry* end() { return first_ + size_; }
    const KORUndoEntry* begin() const { return first_; }
    const KORUndoEntry* end() const { return first_ + size_; }
    const KORUndoEntry& operator[](std::size_t index) const { return first_[index]; }

private:
    void Drop() noexcept;
    void Grow();
    void MoveInto(std::size_t room);  ///< another block
    void Swap(KORUndoEntries& other) noexcept {
        std::swap(first_, other.first_);
        std::swap(size_, other.size_);
        std::swap(room_, other.room_);
    }

    KORUndoEntry* first_ = nullptr;
    std::size_t size_ = 0;
    std::size_t room_ = 0;
};
