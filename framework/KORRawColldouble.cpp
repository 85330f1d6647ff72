#include "framework/KORRawColldouble.h"

#include <algorithm>
#include <cstring>
#include <new>

void KORRawColldouble::RemoveAll() {
    Buffer* buffer = buffer_;
    buffer_ = nullptr;
    if (buffer && --buffer->count == 0) ::operator delete(buffer);
}

void KORRawColldouble::Detach(int wanted) {
    constexpr int kFirst = 6;  // 64 bytes with the header: short tables fit
    const int size = Size();
    const int grown = size >= kFirst ? 2 * size : kFirst;
    const int capacity = wanted > size + 1 ? wanted : std::max(wanted, grown);
    void* raw = ::operator new(kHeader + sizeof(double) * static_cast<std::size_t>(capacity));
    auto* fresh = new (raw) Buffer{1, size, capacity};
    if (size > 0)
        std::memcpy(Values(fresh), Values(buffer_), sizeof(double) * static_cast<std::size_t>(size));
    RemoveAll();
    buffer_ = fresh;
}

bool KORRawColldouble::SameBits(const KORRawColldouble& other) const {
    if (buffer_ == other.buffer_) return true;
    const int size = Size();
    if (size != other.Size()) return false;
    return size == 0 ||
           std::memcmp(Data(), other.Data(), sizeof(double) * static_cast<std::size_t>(size)) == 0;
}
