#pragma once

#include <memory>
#include <vector>

#include "platform/store/KORValue.h"

/// One attribute of a late type.
struct KORAttribute {
    const KORName* name;
    KORValue initial;       ///< what a new feature starts with; it carries the attribute's kind
    bool isFather = false;  ///< the feature on which the type's features hang; a component
};

class KORLayout;
using KORLayoutHandle = std::shared_ptr<const KORLayout>;

/// A late type as features see it: its name, its role, and which attribute lies in which slot. It knows no
/// meaning, unit or release; that is the catalog's. It belongs to the catalog that was read and lives as long
/// as a feature uses it.
///
/// Every feature begins with a slot that no key reaches: its container. Two more such slots, its instance
/// name and its alias, exist only where they are valued, which is rare.
class KORLayout {
public:
    static constexpr KORSlot kContainer = 0;  ///< no attribute's: where an attribute is asked for, 0 is none
    static constexpr KORSlot kFirstAttribute = 1;

    /// Slots from here on are no late type's: they hold what a feature has beyond its layout.
    static constexpr KORSlot kAlias = 0x7FFE;
    static constexpr KORSlot kName = 0x7FFF;  ///< never valued: the late type's own name
    static constexpr KORSlot kFirstUndeclared = 0x8000;
    static constexpr std::size_t kMostAttributes = kAlias - kFirstAttribute;

    /// Where an attribute lies; slot 0 when there is none.
    struct Place {
        KORSlot slot = 0;
        KORAttributeKind kind = KORAttributeKind::Boolean;
    };

    /// The attributes in slot order; no name twice, at most one father, no more than kMostAttributes.
    KORLayout(const KORName* name, std::vector<KORAttribute> attributes, const KORName* role = nullptr);

    /// The layout of a late type that no catalog declares: no attributes. One per name in the process.
    static KORLayoutHandle OfUndeclaredType(const KORName* name);

    const KORName* Name() const { return name_; }
    const KORName* Role() const { return role_; }  ///< one of KORRoles.h; null: none
    const KORUnicodeString& NameText() const { return nameText_; }
    const std::vector<KORAttribute>& Attributes() const { return attributes_; }
    KORSlot SlotCount() const { return static_cast<KORSlot>(kFirstAttribute + attributes_.size()); }

    Place Find(const KORName* key) const {
        const std::uint32_t index = key->Number() - firstNumber_;
        return index < numbers_ ? places_[index] : Place{};
    }

    /// What a new feature starts with, by slot: SlotCount() values in a row. It lies in no container.
    const KORValue* Initials() const { return initials_.data(); }
    const KORValue& Initial(KORSlot slot) const { return initials_[slot]; }
    const char* SlotName(KORSlot slot) const;  ///< the attribute's name; "Name", "Alias" and "Container"

    /// The component attribute with the feature on which its features hang. Slot 0 when they hang on none.
    KORSlot FatherSlot() const { return father_; }

    /// Small and dense, one number per layout of the process: an index into tables.
    std::uint32_t Ordinal() const { return ordinal_; }

private:
    const KORName* name_;
    const KORName* role_;
    KORUnicodeString nameText_;
    std::vector<KORAttribute> attributes_;
    std::vector<KORValue> initials_;
    std::vector<Place> places_;  ///< by the key's number, from firstNumber_ on
    std::uint32_t firstNumber_ = 0;
    std::uint32_t numbers_ = 0;  ///< how many places there are: asked at every access
    KORSlot father_ = 0;
    std::uint32_t ordinal_;
};
