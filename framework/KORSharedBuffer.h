#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "framework/KORSmallBlocks.h"

/// A growable array of elements numbered from 0, shared copy-on-write: copies count one block of memory until
/// one of them is written to. It is the storage below strings and lists, not a list of its own: it checks no
/// index.
///
/// The block holds a count, the size and the elements, and no address of code. Whoever lets go last destroys
/// the elements with its own code, so a buffer may outlive the library that made it.
template <class T>
class KORSharedBuffer {
public:
    constexpr KORSharedBuffer() = default;
    KORSharedBuffer(const KORSharedBuffer& other) noexcept : first_(Share(other.first_)) {}
    KORSharedBuffer(KORSharedBuffer&& other) noexcept : first_(std::exchange(other.first_, nullptr)) {}
    KORSharedBuffer& operator=(KORSharedBuffer other) noexcept {
        std::swap(first_, other.first_);
        return *this;
    }
    ~KORSharedBuffer() { Drop(first_); }

    int Size() const { return SizeOf(first_); }
    const T* First() const { return first_; }  ///< Size() elements in a row; null without a block

    bool IsShared() const { return first_ && HeaderOf(first_).count != 1; }

    /// The elements for the caller to change: shared with nobody from here on. Good until the next change.
    T* Own() {
        if (IsShared()) Grow(Size());
        return first_;
    }

    /// A block of its own, with room for this many elements in all. No element goes.
    void Reserve(int size) {
        if (size > Room()) Grow(std::max(size, Size()));
    }

    void Append(T element) {
        if (!HasRoom()) Grow(std::max(kFirstRoom, 2 * Size()));
        Header& header = HeaderOf(first_);
        new (first_ + header.size) T(std::move(element));
        ++header.size;
    }

    /// Appends `count` elements for the caller to fill, at once: they are not initialized. Good until the
    /// next change. For plain numbers and characters.
    T* Extend(int count) {
        static_assert(std::is_trivially_copyable_v<T>);
        if (count == 0) return nullptr;
        const int size = Size();
        Reserve(size + count);
        HeaderOf(first_).size += count;
        return first_ + size;
    }

    /// Makes it this many elements: those that are too many go, and new ones are made by default.
    void Resize(int size) {
        const int before = Size();
        if (size <= before) {
            if (size < before) Truncate(size);
            return;
        }
        Reserve(size);
        std::uninitialized_value_construct_n(first_ + before, size - before);
        HeaderOf(first_).size = size;
    }

    /// Takes the element at an index out; those after it move up.
    void Erase(int index) {
        T* own = Own();
        std::move(own + index + 1, own + Size(), own + index);
        std::destroy_at(own + --HeaderOf(own).size);
    }
    void Clear() { Drop(std::exchange(first_, nullptr)); }

    // The bare form of a buffer, for a slot that knows by itself whether it holds one: the address of the
    // first element, counted like a buffer. Null is an empty one.
    T* Detach() { return std::exchange(first_, nullptr); }  ///< gives the count out
    static KORSharedBuffer Adopt(T* first) {                ///< takes the count over
        KORSharedBuffer buffer;
        buffer.first_ = first;
        return buffer;
    }
    static T* Share(T* first) noexcept {
        if (first) ++HeaderOf(first).count;
        return first;
    }
    static void Drop(T* first) noexcept {
        if (!first || --HeaderOf(first).count != 0) return;
        std::destroy_n(first, HeaderOf(first).size);
        KORSmallBlocks::Give(&HeaderOf(first), BlockSize(HeaderOf(first).room));
    }
    static bool SameBytes(const T* first, const T* other) {  ///< elements are compared bit by bit
        static_assert(std::is_trivially_copyable_v<T>);
        const int size = SizeOf(first);
        if (size != SizeOf(other)) return false;
        if (!first || !other || first == other) return true;
        return std::memcmp(first, other, sizeof(T) * static_cast<std::size_t>(size)) == 0;
    }
    static int SizeOf(const T* first) { return first ? HeaderOf(first).size : 0; }

private:
    struct Header {
        std::int32_t count;  ///< buffers that share the block
        std::int32_t size;
        std::int32_t room;
    };
    static constexpr std::size_t kHeader = 16;  ///< the elements follow the header, aligned
    static_assert(sizeof(Header) <= kHeader && alignof(T) <= kHeader);

    static std::size_t BlockSize(int room) { return kHeader + sizeof(T) * static_cast<std::size_t>(room); }

    /// 64 bytes with the header: most lists fit.
    static constexpr int kFirstRoom = std::max<int>(1, (64 - kHeader) / sizeof(T));

    static Header& HeaderOf(T* first) {
        return *reinterpret_cast<Header*>(reinterpret_cast<std::byte*>(first) - kHeader);
    }
    static const Header& HeaderOf(const T* first) { return HeaderOf(const_cast<T*>(first)); }

    /// For one element more, without another block.
    bool HasRoom() const {
        if (!first_) return false;
        const Header& header = HeaderOf(first_);
        return header.count == 1 && header.size < header.room;
    }

    /// For how many elements there is room without another block; 0 as long as others share this one.
    int Room() const { return first_ && HeaderOf(first_).count == 1 ? HeaderOf(first_).room : 0; }

    void Truncate(int size) {
        if (IsShared()) {
            KORSharedBuffer kept;
            if (size > 0) kept.CopyFrom(first_, size);
            std::swap(first_, kept.first_);
        } else {
            std::destroy_n(first_ + size, Size() - size);
            HeaderOf(first_).size = size;
        }
    }

    /// Into a buffer without a block.
    void CopyFrom(const T* elements, int count) {
        Grow(count);
        std::uninitialized_copy_n(elements, count, first_);
        HeaderOf(first_).size = count;
    }

    /// A block of its own with this much room. The elements move there, or are copied if others share them.
    /// Apart from its callers, which are short without it.
    [[gnu::noinline]] void Grow(int room) {
        auto* memory = static_cast<std::byte*>(KORSmallBlocks::Take(BlockSize(room)));
        new (memory) Header{1, 0, room};
        auto grown = Adopt(reinterpret_cast<T*>(memory + kHeader));
        if (const int size = Size(); size > 0) {
            if (HeaderOf(first_).count == 1) {
                std::uninitialized_move_n(first_, size, grown.first_);
            } else {
                std::uninitialized_copy_n(first_, size, grown.first_);
            }
            HeaderOf(grown.first_).size = size;
        }
        std::swap(first_, grown.first_);
    }

    T* first_ = nullptr;
};
