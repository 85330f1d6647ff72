#include "platform/store/KORUndoEntries.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace {

/// From so many entries on a step takes the block in which they were written: a copy would cost as much as
/// writing them did. Fewer are copied, and their block is used again.
constexpr std::size_t kMany = 256;

}  // namespace

void KORUndoEntries::Drop() noexcept {
    Clear();
    std::free(first_);
}

KORUndoEntry KORUndoEntries::TakeLast() noexcept {
    KORUndoEntry last = std::move(first_[size_ - 1]);
    std::destroy_at(first_ + --size_);
    return last;
}

KORUndoEntries KORUndoEntries::TakeAll() {
    KORUndoEntries all;
    if (size_ == 0) return all;
    if (size_ < kMany) {
        all.SetRoom(size_);
        std::memcpy(static_cast<void*>(all.first_), first_, size_ * sizeof(KORUndoEntry));
        all.size_ = std::exchange(size_, 0);
    } else {
        all.SetRoom(room_);
        Swap(all);
        all.Shrink();
    }
    return all;
}

void KORUndoEntries::Clear() noexcept {
    std::destroy_n(first_, std::exchange(size_, 0));
}

void KORUndoEntries::Grow() {
    SetRoom(std::max<std::size_t>(16, 2 * room_));
}

// realloc, and not operator new: it can grow and cut a block where it lies.

bool KORUndoEntries::Reallocate(std::size_t room) noexcept {
    void* const block = std::realloc(static_cast<void*>(first_), room * sizeof(KORUndoEntry));
    if (!block) return false;
    first_ = static_cast<KORUndoEntry*>(block);
    room_ = room;
    return true;
}

void KORUndoEntries::SetRoom(std::size_t room) {
    if (!Reallocate(room)) throw std::bad_alloc();
}

void KORUndoEntries::Shrink() noexcept {
    static_cast<void>(Reallocate(size_));  // if not, it stays as roomy as it is
}
