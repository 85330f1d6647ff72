#include "platform/store/KORUndoEntries.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

void KORUndoEntries::Drop() noexcept {
    Clear();
    ::operator delete(first_);
}

KORUndoEntry KORUndoEntries::TakeLast() noexcept {
    KORUndoEntry last = std::move(first_[size_ - 1]);
    std::destroy_at(first_ + --size_);
    return last;
}

KORUndoEntries KORUndoEntries::TakeAll() {
    KORUndoEntries all;
    if (size_ == 0) return all;
    all.MoveInto(size_);
    std::memcpy(static_cast<void*>(all.first_), first_, size_ * sizeof(KORUndoEntry));
    all.size_ = std::exchange(size_, 0);
    return all;
}

void KORUndoEntries::Clear() noexcept {
    std::destroy_n(first_, std::exchange(size_, 0));
}

void KORUndoEntries::Grow() {
    MoveInto(std::max<std::size_t>(16, 2 * room_));
}

void KORUndoEntries::MoveInto(std::size_t room) {
    auto* const block = static_cast<KORUndoEntry*>(::operator new(room * sizeof(KORUndoEntry)));
    if (size_ > 0) std::memcpy(static_cast<void*>(block), first_, size_ * sizeof(KORUndoEntry));
    ::operator delete(first_);
    first_ = block;
    room_ = room;
}
