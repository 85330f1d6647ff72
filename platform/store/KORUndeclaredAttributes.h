#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/store/KORLayout.h"

/// The attributes of one feature that its late type does not declare: what a document brought along and the
/// catalogs at hand do not know. They are kept for whoever knows them; no key reaches them. A feature has
/// such a table only when it has such an attribute, and its document keeps it.
///
/// Each name has a slot, counted from KORLayout::kFirstUndeclared on, for as long as the feature lives: what
/// was removed leaves its slot absent, so that undo finds it again. Writing goes through KORFeature.
class KORUndeclaredAttributes {
public:
    static constexpr std::size_t kMost = 0x10000 - KORLayout::kFirstUndeclared;

    /// The slot of a name; made, and absent, when there is none. Throws std::length_error at the end of
    /// kMost.
    KORSlot SlotOf(const KORUnicodeString& name);

    KORSlot Find(std::string_view name) const;               ///< 0 when the name has no slot
    std::size_t Size() const { return attributes_.size(); }  ///< how many slots there are

    const KORUnicodeString& Name(KORSlot slot) const { return attributes_[Index(slot)].name; }
    const KORValue& At(KORSlot slot) const { return attributes_[Index(slot)].value; }
    KORValue& At(KORSlot slot) { return attributes_[Index(slot)].value; }

private:
    struct Attribute {
        KORUnicodeString name;
        KORValue value = KORValue::Absent();
    };

    static std::size_t Index(KORSlot slot) {
        return static_cast<std::size_t>(slot - KORLayout::kFirstUndeclared);
    }

    std::vector<Attribute> attributes_;
    std::unordered_map<std::string_view, KORSlot> slots_;  ///< by the names' own buffers
};
