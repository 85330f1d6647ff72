#pragma once

#include <compare>
#include <cstdint>
#include <string_view>

#include "framework/KORSharedBuffer.h"

/// The platform's text type: UTF-8, compared byte by byte, never changed once made. Copies share one counted
/// buffer, so handing a string out costs no allocation. A Literal points at text compiled into the program
/// and costs nothing to construct or destroy; a copy of a literal owns its text, so nothing handed on points
/// into a library that may be unloaded.
class KORUnicodeString {
public:
    constexpr KORUnicodeString() = default;
    KORUnicodeString(const char* text);                ///< copies UTF-8 text; null is the empty string
    explicit KORUnicodeString(std::string_view text);  ///< copies UTF-8 text

    /// Text that lives as long as the program or library it is compiled into.
    static consteval KORUnicodeString Literal(const char* text) {
        KORUnicodeString literal;
        literal.text_ = text;
        literal.size_ = static_cast<std::uint32_t>(std::string_view(text).size());
        return literal;
    }

    constexpr KORUnicodeString(const KORUnicodeString& other) { CopyFrom(other); }
    constexpr KORUnicodeString(KORUnicodeString&& other) noexcept { Swap(other); }
    constexpr KORUnicodeString& operator=(const KORUnicodeString& other) {
        KORUnicodeString copy(other);
        Swap(copy);
        return *this;
    }
    constexpr KORUnicodeString& operator=(KORUnicodeString&& other) noexcept {
        Swap(other);
        return *this;
    }
    constexpr ~KORUnicodeString() {
        if (shared_) Drop();
    }

    constexpr const char* c_str() const { return text_; }   ///< zero-terminated, never null
    constexpr std::uint32_t size() const { return size_; }  ///< in bytes
    constexpr bool empty() const { return size_ == 0; }
    constexpr std::string_view View() const { return {text_, size_}; }

    constexpr void Swap(KORUnicodeString& other) noexcept {
        const KORUnicodeStringParts mine{text_, size_, shared_};
        text_ = other.text_, size_ = other.size_, shared_ = other.shared_;
        other.text_ = mine.text, other.size_ = mine.size, other.shared_ = mine.shared;
    }

    // The bare form of a string, for a slot that knows by itself whether it holds one: the address of its
    // text in a counted buffer of its own or shared with copies. Null is the empty string.
    static char* BareCopyOf(const KORUnicodeString& text) {  ///< counted for whoever takes it
        KORUnicodeString copy(text);
        if (!copy.shared_) return nullptr;
        copy.shared_ = false;
        return const_cast<char*>(copy.text_);
    }
    static KORUnicodeString OfBare(char* text) {  ///< a copy; the bare form keeps its count
        KORUnicodeString copy;
        if (!text) return copy;
        copy.text_ = KORSharedBuffer<char>::Share(text);
        copy.size_ = static_cast<std::uint32_t>(ViewOfBare(text).size());
        copy.shared_ = true;
        return copy;
    }
    static std::string_view ViewOfBare(const char* text) {
        return {text, static_cast<std::size_t>(KORSharedBuffer<char>::SizeOf(text) - 1)};  // its end is a NUL
    }

    friend constexpr bool operator==(const KORUnicodeString& a, const KORUnicodeString& b) {
        return a.View() == b.View();
    }
    friend constexpr auto operator<=>(const KORUnicodeString& a, const KORUnicodeString& b) {
        return a.View() <=> b.View();
    }

private:
    struct KORUnicodeStringParts {
        const char* text;
        std::uint32_t size;
        bool shared;
    };

    constexpr void CopyFrom(const KORUnicodeString& other) {
        if (other.shared_) {
            Share(other);
        } else if (other.size_ != 0) {
            Own(other.View());
        }
    }

    void Own(std::string_view text);  ///< makes a counted buffer of its own

    /// Counts the other's buffer once more.
    void Share(const KORUnicodeString& other) {
        text_ = KORSharedBuffer<char>::Share(const_cast<char*>(other.text_));
        size_ = other.size_;
        shared_ = true;
    }
    void Drop() { KORSharedBuffer<char>::Drop(const_cast<char*>(text_)); }

    const char* text_ = "";
    std::uint32_t size_ = 0;
    bool shared_ = false;  ///< text_ lies in a counted buffer
};

KORUnicodeString operator+(const KORUnicodeString& a, const KORUnicodeString& b);
