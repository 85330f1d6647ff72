#pragma once

#include <cstdint>

/// A growable list of doubles, numbered from 1. It is a list, not a table column: it knows no unit and no
/// key.
///
/// Copies share one counted buffer until one of them is written to: a list that the store hands out or takes
/// over costs no copy of its numbers. Append and RemoveAll are the only writers and detach first.
class KORRawColldouble {
public:
    KORRawColldouble() = default;
    KORRawColldouble(const KORRawColldouble& other) noexcept : buffer_(other.buffer_) {
        if (buffer_) ++buffer_->count;
    }
    KORRawColldouble(KORRawColldouble&& other) noexcept : buffer_(other.buffer_) { other.buffer_ = nullptr; }
    KORRawColldouble& operator=(KORRawColldouble other) noexcept {
        Buffer* mine = buffer_;
        buffer_ = other.buffer_;
        other.buffer_ = mine;
        return *this;
    }
    ~KORRawColldouble() { RemoveAll(); }

    void Append(double value) {
        if (!buffer_ || buffer_->count != 1 || buffer_->size == buffer_->capacity) Detach(Size() + 1);
        Values(buffer_)[buffer_->size++] = value;
    }

    /// Appends `count` values for the caller to fill, at once: they are not initialized. Good until the next
    /// change.
    double* Extend(int count) {
        Reserve(Size() + count);
        if (count == 0) return nullptr;
        double* values = Values(buffer_) + buffer_->size;
        buffer_->size += count;
        return values;
    }

    /// The value at a position counted from 1; the caller stays within Size().
    double operator[](int position) const { return Values(buffer_)[position - 1]; }

    int Size() const { return buffer_ ? buffer_->size : 0; }
    void RemoveAll();

    /// Room for this many values, so that as many Append follow without another allocation.
    void Reserve(int size) {
        if (size > (buffer_ && buffer_->count == 1 ? buffer_->capacity : 0)) Detach(size);
    }

    const double* Data() const { return buffer_ ? Values(buffer_) : nullptr; }  ///< Size() values in a row
    bool SameBits(
        const KORRawColldouble& other) const;  ///< same size and the same bit patterns (NaN equals itself)

private:
    struct Buffer {
        std::int32_t count;  ///< lists that share it
        std::int32_t size;
        std::int32_t capacity;
    };
    static constexpr int kHeader = 16;  ///< the values follow the Buffer, aligned for doubles
    static_assert(sizeof(Buffer) <= kHeader);

    static double* Values(Buffer* buffer) {
        return reinterpret_cast<double*>(reinterpret_cast<char*>(buffer) + kHeader);
    }
    void Detach(int wanted);  ///< a buffer of its own, with room for at least `wanted` values

    Buffer* buffer_ = nullptr;

    friend class KORValue;  ///< keeps the bare buffer in a slot
};
