#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// An interned name: the name of an attribute, a late type, a class or an interface. There is one object per
/// text in the process, it is never destroyed, and two names are the same exactly when their addresses are.
/// It is a name and nothing else: it keeps no feature, type or library alive.
///
/// As an attribute key (KORISpecAttrKey) it is handed out and given back with AddRef and Release. The count
/// decides nothing; it is kept so that a caller's accounting can be checked.
class KORName {
public:
    static const KORName* Intern(std::string_view text);  ///< the one name of this text, made on first use
    static const KORName* Find(std::string_view text);    ///< null when the text was never interned

    /// The same of a zero-terminated text; null is the empty one. Callers ask again and again with the same
    /// constants, so where the text lies is remembered; what lies there is compared each time.
    static const KORName* Find(const char* text);
    static const KORName* FindConstant(std::string_view text);  ///< the same; not of a null address

    const std::string& Text() const { return text_; }
    const char* c_str() const { return text_.c_str(); }

    /// Small and dense, counted from 0 in order of first use: an index into tables.
    std::uint32_t Number() const { return number_; }

    void AddRef() const { ++references_; }
    void Release() const { --references_; }
    std::int32_t References() const { return references_; }  ///< handed out and not yet given back

    KORName(const KORName&) = delete;
    KORName& operator=(const KORName&) = delete;

private:
    KORName(std::string_view text, std::uint32_t number) : text_(text), number_(number) {}
    ~KORName() = default;

    const std::string text_;
    const std::uint32_t number_;
    mutable std::int32_t references_ = 0;

    friend class KORNamePool;
};

/// Identifies an interface: the interned name of the interface.
using KORIID = const KORName*;
