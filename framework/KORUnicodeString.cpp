#include "framework/KORUnicodeString.h"

#include <cstring>
#include <string>

KORUnicodeString::KORUnicodeString(const char* text) : KORUnicodeString(std::string_view(text ? text : "")) {}

KORUnicodeString::KORUnicodeString(std::string_view text) {
    if (!text.empty()) Own(text);
}

void KORUnicodeString::Own(std::string_view text) {
    const std::size_t size = text.size();
    KORSharedBuffer<char> buffer;
    char* begin = buffer.Extend(static_cast<int>(size + 1));
    std::memcpy(begin, text.data(), size);
    begin[size] = '\0';
    text_ = buffer.Detach();
    size_ = static_cast<std::uint32_t>(size);
    shared_ = true;
}

KORUnicodeString operator+(const KORUnicodeString& a, const KORUnicodeString& b) {
    std::string joined(a.View());
    joined += b.View();
    return KORUnicodeString(std::string_view(joined));
}
