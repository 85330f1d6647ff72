#pragma once

#include <bit>
#include <cstdint>
#include <utility>

#include "framework/KORRawColldouble.h"
#include "platform/store/KORAttributeKind.h"
#include "platform/store/KORComponentList.h"

/// Never valued and empty are different for a list: the first reads as no list at all. Scalars, strings and
/// components are never empty. Absent is the slot of an undeclared attribute that its feature does not have.
enum class KORValueState : std::uint8_t { NeverValued, Empty, Valued, Absent };

/// What one slot of a feature holds: an owning value of one of the attribute kinds, in 16 bytes. Strings and
/// lists share their buffers with whoever handed them in or asked for them; a component is one counted
/// reference on its main object.
///
/// Reading it as another kind than its own is the caller's bug.
class KORValue {
public:
    explicit KORValue(KORAttributeKind kind) noexcept
        : form_{kind, KORValueState::NeverValued} {}  ///< never valued

    static KORValue OfBoolean(bool value) noexcept;
    static KORValue OfInteger(int value) noexcept;
    static KORValue OfDouble(double value) noexcept;
    static KORValue OfString(const KORUnicodeString& text);
    static KORValue OfListOfDoubles(const KORRawColldouble& list) noexcept;
    static KORValue OfComponent(KORBaseUnknown* component) noexcept;  ///< of null: never valued
    static KORValue EmptyList(KORAttributeKind kind) noexcept;        ///< `kind` is one of the lists
    static KORValue Absent() noexcept;

    KORValue(const KORValue& other)
        : bits_(other.OwnsNothing() ? other.bits_ : other.CopyOwned()),
          stamp_(other.stamp_),
          form_(other.form_) {}
    KORValue(KORValue&& other) noexcept
        : bits_(std::exchange(other.bits_, 0)),
          stamp_(std::exchange(other.stamp_, 0)),
          form_(std::exchange(other.form_, {other.form_.kind, KORValueState::NeverValued})) {}
    KORValue& operator=(KORValue other) noexcept {
        Swap(other);
        return *this;
    }
    ~KORValue() {
        if (!OwnsNothing()) DropOwned();
    }

    void Swap(KORValue& other) noexcept {
        std::swap(bits_, other.bits_);
        std::swap(stamp_, other.stamp_);
        std::swap(form_, other.form_);
    }

    KORAttributeKind Kind() const { return form_.kind; }
    KORValueState State() const { return form_.state; }

    /// The same state and the same bits: a NaN equals itself, 0.0 differs from -0.0. Strings and lists are
    /// compared by what they hold.
    bool SameAs(const KORValue& other) const {
        if (form_ != other.form_) return false;
        if (bits_ == other.bits_) return true;
        return !OwnsNothing() && other.bits_ != 0 && OwnsSameAs(other);
    }

    // A value that was never valued reads as false, 0, 0.0, empty text, no list and null.
    bool Boolean() const { return bits_ != 0; }
    int Integer() const { return static_cast<int>(static_cast<std::int64_t>(bits_)); }
    double Double() const { return std::bit_cast<double>(bits_); }
    KORUnicodeString String() const { return KORUnicodeString::OfBare(Pointer<char>()); }
    KORRawColldouble ListOfDoubles() const;                     ///< a share of the list, not a copy
    KORBaseUnknown* Component() const { return Referenced(); }  ///< no reference
    KORListValKORISpecObject_var Features() const;       ///< a share of a list of components, as features
    KORBaseUnknown_var ComponentAt(int position) const;  ///< of a list, counted from 1; null outside
    int ListSize() const;                                ///< of either kind of list; never valued: 0

    /// Appends to a list of components, whichever state it is in. Null is appended as an empty entry.
    void Append(KORBaseUnknown* component);

    /// The undo scope that logged this slot last. It belongs to the slot, not to the value, and travels with
    /// a swap; 0 before the first one.
    std::uint32_t Stamp() const { return stamp_; }
    void SetStamp(std::uint32_t stamp) { stamp_ = stamp; }

private:
    struct Form {
        KORAttributeKind kind;
        KORValueState state;
        bool operator==(const Form&) const = default;
    };

    KORValue(KORAttributeKind kind, std::uint64_t bits) noexcept
        : bits_(bits), form_{kind, KORValueState::Valued} {}

    bool OwnsNothing() const { return bits_ == 0 || form_.kind <= KORAttributeKind::Double; }
    bool OwnsSameAs(const KORValue& other) const;  ///< both own something of the same kind
    std::uint64_t CopyOwned() const;
    void DropOwned() noexcept;

    template <class Object>
    Object* Pointer() const {
        return reinterpret_cast<Object*>(static_cast<std::uintptr_t>(bits_));
    }
    KORBaseUnknown* Referenced() const { return Pointer<KORBaseUnknown>(); }
    KORComponentList* Components() const { return Pointer<KORComponentList>(); }

    std::uint64_t bits_ = 0;  ///< the scalar, or the address of what is owned; 0: nothing is owned
    std::uint32_t stamp_ = 0;
    Form form_;
};

static_assert(sizeof(KORValue) == 16);

inline KORValue KORValue::Absent() noexcept {
    KORValue absent(KORAttributeKind::Boolean);
    absent.form_.state = KORValueState::Absent;
    return absent;
}

inline KORValue KORValue::OfBoolean(bool value) noexcept {
    return {KORAttributeKind::Boolean, value ? 1u : 0u};
}

inline KORValue KORValue::OfInteger(int value) noexcept {
    return {KORAttributeKind::Integer, static_cast<std::uint64_t>(static_cast<std::int64_t>(value))};
}

inline KORValue KORValue::OfDouble(double value) noexcept {
    return {KORAttributeKind::Double, std::bit_cast<std::uint64_t>(value)};
}
