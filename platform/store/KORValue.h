#pragma once

#include <bit>
#include <cstdint>
#include <utility>

#include "framework/KORRawColldouble.h"
#include "platform/store/KORAttributeKind.h"
#include "platform/store/KORComponentList.h"

/// The place of a value in its feature; see KORLayout.
using KORSlot = std::uint16_t;

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
        : rest_(Form(kind, KORValueState::NeverValued)) {}  ///< never valued

    static KORValue OfBoolean(bool value) noexcept;
    static KORValue OfInteger(int value) noexcept;
    static KORValue OfDouble(double value) noexcept;
    static KORValue OfString(const KORUnicodeString& text);
    static KORValue OfListOfDoubles(const KORRawColldouble& list) noexcept;
    static KORValue OfComponent(KORBaseUnknown* component) noexcept;  ///< of null: never valued
    static KORValue EmptyList(KORAttributeKind kind) noexcept;        ///< `kind` is one of the lists
    static KORValue Absent() noexcept;

    KORValue(const KORValue& other)
        : bits_(other.OwnsNothing() ? other.bits_ : other.CopyOwned()), rest_(other.rest_) {}
    KORValue(KORValue&& other) noexcept
        : bits_(std::exchange(other.bits_, 0)),
          rest_(std::exchange(other.rest_, Form(other.Kind(), KORValueState::NeverValued))) {}
    /// Stays in its slot.
    KORValue& operator=(KORValue other) noexcept {
        other.SetSlot(Slot());
        Swap(other);
        return *this;
    }
    ~KORValue() {
        if (!OwnsNothing()) DropOwned();
    }

    void Swap(KORValue& other) noexcept {
        std::swap(bits_, other.bits_);
        std::swap(rest_, other.rest_);
    }

    KORAttributeKind Kind() const { return static_cast<KORAttributeKind>(rest_ >> kKindAt & 0xFF); }
    KORValueState State() const { return static_cast<KORValueState>(rest_ >> kStateAt & 0xFF); }

    /// The same state and the same bits: a NaN equals itself, 0.0 differs from -0.0. Strings and lists are
    /// compared by what they hold.
    bool SameAs(const KORValue& other) const {
        if (Kind() != other.Kind() || State() != other.State()) return false;
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
    std::uint32_t Stamp() const { return static_cast<std::uint32_t>(rest_); }
    void SetStamp(std::uint32_t stamp) { rest_ = rest_ >> kKindAt << kKindAt | stamp; }

    /// The slot of a feature in which it stands, or for which an undo entry keeps it; 0 anywhere else.
    KORSlot Slot() const { return static_cast<KORSlot>(rest_ >> kSlotAt); }
    void SetSlot(KORSlot slot) { rest_ = (rest_ & (kOneSlot - 1)) | slot * kOneSlot; }

private:
    static constexpr std::uint64_t Form(KORAttributeKind kind, KORValueState state) {
        return static_cast<std::uint64_t>(kind) << kKindAt | static_cast<std::uint64_t>(state) << kStateAt;
    }

    KORValue(KORAttributeKind kind, std::uint64_t bits) noexcept
        : bits_(bits), rest_(Form(kind, KORValueState::Valued)) {}

    void SetState(KORValueState state) {
        rest_ = (rest_ & ~(std::uint64_t{0xFF} << kStateAt)) | std::uint64_t{static_cast<std::uint8_t>(state)}
                                                                   << kStateAt;
    }

    bool OwnsNothing() const { return bits_ == 0 || Kind() <= KORAttributeKind::Double; }
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

    /// The stamp and, from these bits on, kind, state and slot: in one word, so that a value is two registers
    /// on the way into a feature, and undo exchanges two words.
    std::uint64_t rest_;
    static constexpr int kKindAt = 32;
    static constexpr int kStateAt = 40;
    static constexpr int kSlotAt = 48;
    static constexpr std::uint64_t kOneSlot = std::uint64_t{1} << kSlotAt;
};

static_assert(sizeof(KORValue) == 16);

inline KORValue KORValue::Absent() noexcept {
    KORValue absent(KORAttributeKind::Boolean);
    absent.SetState(KORValueState::Absent);
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
