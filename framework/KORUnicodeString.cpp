#include "framework/KORUnicodeString.h"

#include <cstddef>
#include <cstring>
#include <new>
#include <string>

namespace {

/// The counted buffer: a counter, then the zero-terminated text.
struct Buffer {
    std::uint32_t count;
    char text[1];

    static Buffer* Of(const char* text) {
        return reinterpret_cast<Buffer*>(const_cast<char*>(text) - offsetof(Buffer, text));
    }
};

}  // namespace

KORUnicodeString::KORUnicodeString(const char* text) : KORUnicodeString(std::string_view(text ? text : "")) {}

KORUnicodeString::KORUnicodeString(std::string_view text) {
    if (!text.empty()) Own(text);
}

void KORUnicodeString::Own(std::string_view text) {
    auto* buffer = static_cast<Buffer*>(::operator new(sizeof(Buffer) + text.size()));
    buffer->count = 1;
    char* begin = reinterpret_cast<char*>(buffer) + offsetof(Buffer, text);
    std::memcpy(begin, text.data(), text.size());
    begin[text.size()] = '\0';
    text_ = begin;
    size_ = static_cast<std::uint32_t>(text.size());
    shared_ = true;
}

void KORUnicodeString::Share(const KORUnicodeString& other) {
    ++Buffer::Of(other.text_)->count;
    text_ = other.text_;
    size_ = other.size_;
    shared_ = true;
}

void KORUnicodeString::Drop() {
    Buffer* buffer = Buffer::Of(text_);
    if (--buffer->count == 0) ::operator delete(buffer);
}

KORUnicodeString operator+(const KORUnicodeString& a, const KORUnicodeString& b) {
    std::string joined(a.View());
    joined += b.View();
    return KORUnicodeString(std::string_view(joined));
}
