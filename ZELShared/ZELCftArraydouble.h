#pragma once

#include <cstddef>
#include <cstring>

/// One row of a property table: a growable array of doubles, numbered from 0. Four numbers lie in the row
/// itself, so the usual row needs no allocation. Wherever it is given a size, a negative one counts as 0.
class ZELCftArraydouble {
public:
    /// `size` numbers copied from `values`; zeros when `values` is null. Size 0 makes an empty row.
    explicit ZELCftArraydouble(int size = 0, const double* values = nullptr);
    ZELCftArraydouble(const ZELCftArraydouble& other) { CopyFrom(other); }
    ZELCftArraydouble(ZELCftArraydouble&& other) noexcept { StealFrom(other); }
    ZELCftArraydouble& operator=(const ZELCftArraydouble& other) {
        if (this != &other) CopyFrom(other);
        return *this;
    }
    ZELCftArraydouble& operator=(ZELCftArraydouble&& other) noexcept {
        if (this == &other) return *this;
        if (values_ != inline_) FreeHeap();
        StealFrom(other);
        return *this;
    }
    ~ZELCftArraydouble() {
        if (values_ != inline_) FreeHeap();
    }

    /// Appends a number, which may be one of the row's own. False when memory is short; the row is then
    /// unchanged.
    bool push_back(const double& value) {
        if (size_ == capacity_) return GrowAndPush(value);
        values_[size_++] = value;
        return true;
    }

    /// The number at an index from 0. Outside 0..size()-1: a slot that is 0.0 at each such access and keeps
    /// nothing.
    double& operator[](int index) { return InRange(index) ? values_[index] : Outside(); }
    const double& operator[](int index) const { return InRange(index) ? values_[index] : Outside(); }

    /// Makes the row these numbers, four at most: any row has room for as many.
    template <std::size_t Size>
    void Assign(const double (&values)[Size]) {
        static_assert(Size <= kInline);
        std::memcpy(values_, values, sizeof values);
        size_ = static_cast<int>(Size);
    }

    int size() const { return size_; }
    bool Prepare(int size);  ///< room for this many numbers; false when memory is short

private:
    static constexpr int kInline = 4;

    bool InRange(int index) const { return static_cast<unsigned>(index) < static_cast<unsigned>(size_); }
    static double& Outside();
    bool GrowAndPush(double value);
    void FreeHeap();
    void CopyInline(const ZELCftArraydouble& other) {
        for (int i = 0; i < kInline; ++i) inline_[i] = other.inline_[i];
        size_ = other.size_;
    }
    void CopyFrom(const ZELCftArraydouble& other) {
        if (values_ == inline_ && other.values_ == other.inline_) {
            CopyInline(other);
        } else {
            CopyWide(other);
        }
    }
    void StealFrom(ZELCftArraydouble& other) noexcept {  // what this row held in the heap is freed already
        if (other.values_ == other.inline_) {
            CopyInline(other);
            values_ = inline_;
            capacity_ = kInline;
        } else {
            StealWide(other);
        }
    }
    void CopyWide(const ZELCftArraydouble& other);
    void StealWide(ZELCftArraydouble& other) noexcept;

    double inline_[kInline] = {};
    double* values_ = inline_;
    int size_ = 0;
    int capacity_ = kInline;
};
