#pragma once

#include <cstddef>
#include <utility>

#include "platform/store/KORFeature.h"

/// One reversible change. Holds the value the feature does not have at the moment, so applying it is a swap.
/// That a feature was created, removed or moved is a change of its container slot.
struct KORUndoEntry {
    KORUndoEntry(KORFeature& changed, KORValue&& value) noexcept
        : feature(&changed), other(std::move(value)) {}
    KORUndoEntry(KORFeature& changed, KORSlot slot, KORValue&& value) noexcept
        : KORUndoEntry(changed, std::move(value)) {
        other.SetSlot(slot);
    }

    KORVar<KORFeature> feature;  ///< owned: an undone creation must be able to come back
    KORValue other;              ///< knows its slot

    KORSlot Slot() const { return other.Slot(); }

    void Apply() noexcept {
        const KORSlot slot = Slot();
        feature->Swap(other);
        if (slot == KORLayout::kContainer) feature->WasPutBack();
    }

    /// What changed, for reports: an attribute's name, or "Name", "Alias", "Container".
    const char* AttributeName() const { return feature->SlotName(Slot()); }
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
    void Append(KORFeature& feature, KORSlot slot, KORValue&& other) {
        MakeRoom();
        new (first_ + size_++) KORUndoEntry(feature, slot, std::move(other));
    }

    /// Append in two: room for one more, and a value that knows its slot, for which there is room.
    void MakeRoom() {
        if (size_ == room_) Grow();
    }
    const KORValue& Put(KORFeature& feature, KORValue&& other) noexcept {
        return (new (first_ + size_++) KORUndoEntry(feature, std::move(other)))->other;
    }
    KORUndoEntry TakeLast() noexcept;

    /// All of them, in no more room than they need. This one is empty then and as roomy as before.
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
    void SetRoom(std::size_t room);  ///< for all that there are, at least
    void Shrink() noexcept;
    bool Reallocate(std::size_t room) noexcept;  ///< false, and nothing changed, without memory
    void Swap(KORUndoEntries& other) noexcept {
        std::swap(first_, other.first_);
        std::swap(size_, other.size_);
        std::swap(room_, other.room_);
    }

    KORUndoEntry* first_ = nullptr;
    std::size_t size_ = 0;
    std::size_t room_ = 0;
};
