#pragma once

#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/store/KORLayout.h"

/// What few features have beyond the attributes that their late type declares: an instance name of their own,
/// an alias, and undeclared attributes, which a document brought along and the catalogs at hand do not know.
/// Those are kept for whoever knows them. No key reaches any of it. A feature has such a table only when it
/// needs it, and its document keeps it.
///
/// Each name has a slot, counted from KORLayout::kFirstUndeclared on, for as long as the feature lives: what
/// was removed leaves its slot absent, so that undo finds it again. Writing goes through KORFeature.
class KORUndeclaredAttributes {
public:
    static constexpr std::size_t kMost = 0x10000 - KORLayout::kFirstUndeclared;

    KORUndeclaredAttributes() {
        name_.SetSlot(KORLayout::kName);
        alias_.SetSlot(KORLayout::kAlias);
    }

    /// The slot of a name; made, and absent, when there is none. Throws std::length_error at the end of
    /// kMost.
    KORSlot SlotOf(const KORUnicodeString& name);

    KORSlot Find(std::string_view name) const;  ///< 0 when the name has no slot
    std::size_t Size() const {
        return attributes_.size();
    }  ///< how many undeclared attributes there are, absent ones included

    const KORUnicodeString& Name(KORSlot slot) const { return attributes_[Index(slot)].name; }

    /// The value of an undeclared attribute, of the name or of the alias.
    const KORValue& At(KORSlot slot) const;
    KORValue& At(KORSlot slot) { return const_cast<KORValue&>(std::as_const(*this).At(slot)); }

private:
    struct Attribute {
        KORUnicodeString name;
        KORValue value = KORValue::Absent();
    };

    static std::size_t Index(KORSlot slot) {
        return static_cast<std::size_t>(slot - KORLayout::kFirstUndeclared);
    }

    KORValue name_{KORAttributeKind::String};
    KORValue alias_{KORAttributeKind::String};
    std::vector<Attribute> attributes_;
    std::unordered_map<std::string_view, KORSlot> slots_;  ///< by the names' own buffers
};
