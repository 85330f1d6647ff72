#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

// Packed bytes are little-endian, and so is every machine this runs on: numbers are copied as they lie in
// memory.
static_assert(std::endian::native == std::endian::little);

/// Puts numbers and texts one behind the other.
class KORPacker {
public:
    void Byte(unsigned value) { bytes_.push_back(static_cast<char>(value)); }

    /// Seven bits a byte, the lowest first; every byte but the last has its highest bit set.
    void Count(std::uint64_t value) {
        for (; value >= 0x80; value >>= 7) Byte(0x80u | static_cast<unsigned>(value & 0x7F));
        Byte(static_cast<unsigned>(value));
    }
    void Raw(const void* bytes, std::size_t count) { bytes_.append(static_cast<const char*>(bytes), count); }
    void Text(std::string_view text) {
        Count(text.size());
        bytes_.append(text);
    }

    const std::string& Bytes() const { return bytes_; }
    void Clear() { bytes_.clear(); }

private:
    std::string bytes_;
};

/// Takes packed bytes apart again. Whatever they are, nothing behind their end is read: from the first thing
/// on that does not fit, everything reads as 0 and empty, and Failed says so.
class KORUnpacker {
public:
    explicit KORUnpacker(std::string_view bytes) : at_(bytes.data()), end_(bytes.data() + bytes.size()) {}

    bool AtEnd() const { return at_ == end_; }
    bool Failed() const { return failed_; }
    void Fail() {
        failed_ = true;
        at_ = end_;
    }
    std::size_t Left() const { return static_cast<std::size_t>(end_ - at_); }

    unsigned Byte() {
        if (at_ != end_) return static_cast<unsigned char>(*at_++);
        Fail();
        return 0;
    }
    std::uint64_t Count() {
        std::uint64_t value = 0;
        for (unsigned shift = 0; shift < 63; shift += 7) {
            const unsigned byte = Byte();
            value |= std::uint64_t{byte & 0x7F} << shift;
            if (byte < 0x80) return failed_ ? 0 : value;
        }
        Fail();
        return 0;
    }
    /// A count of things of so many bytes each, which are still to come.
    std::size_t CountOf(std::size_t size) {
        const std::uint64_t count = Count();
        if (count <= Left() / size) return count;
        Fail();
        return 0;
    }
    std::string_view Raw(std::size_t count) {
        if (count > Left()) {
            Fail();
            return {};
        }
        at_ += count;
        return {at_ - count, count};
    }
    std::string_view Text() { return Raw(CountOf(1)); }

private:
    const char* at_;
    const char* end_;
    bool failed_ = false;
};
