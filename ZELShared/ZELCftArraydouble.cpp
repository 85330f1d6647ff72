#include "ZELShared/ZELCftArraydouble.h"

#include <algorithm>
#include <new>
#include <utility>

ZELCftArraydouble::ZELCftArraydouble(int size, const double* values) {
    if (size <= 0) return;
    if (!Prepare(size)) throw std::bad_alloc();
    if (values) {
        std::copy_n(values, size, values_);
    } else {
        std::fill_n(values_, size, 0.0);
    }
    size_ = size;
}

void ZELCftArraydouble::CopyWide(const ZELCftArraydouble& other) {
    if (!Prepare(other.size_)) throw std::bad_alloc();
    std::copy_n(other.values_, other.size_, values_);
    size_ = other.size_;
}

void ZELCftArraydouble::StealWide(ZELCftArraydouble& other) noexcept {
    values_ = std::exchange(other.values_, other.inline_);
    size_ = std::exchange(other.size_, 0);
    capacity_ = std::exchange(other.capacity_, kInline);
}

bool ZELCftArraydouble::Prepare(int size) {
    if (size <= capacity_) return true;
    auto* grown = new (std::nothrow) double[static_cast<std::size_t>(size)];
    if (!grown) return false;
    std::copy_n(values_, size_, grown);
    if (values_ != inline_) FreeHeap();
    values_ = grown;
    capacity_ = size;
    return true;
}

bool ZELCftArraydouble::GrowAndPush(double value) {
    if (!Prepare(2 * capacity_)) return false;
    values_[size_++] = value;
    return true;
}

void ZELCftArraydouble::FreeHeap() {
    delete[] values_;
}

double& ZELCftArraydouble::Outside() {
    static double slot;
    slot = 0.0;
    return slot;
}
