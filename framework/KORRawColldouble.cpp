#include "framework/KORRawColldouble.h"

#include <cstring>

bool KORRawColldouble::SameBits(const KORRawColldouble& other) const {
    if (Data() == other.Data()) return true;
    const int size = Size();
    if (size != other.Size()) return false;
    return size == 0 ||
           std::memcmp(Data(), other.Data(), sizeof(double) * static_cast<std::size_t>(size)) == 0;
}
