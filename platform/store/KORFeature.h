#pragma once

#include <new>

#include "interfaces/KORIAlias.h"
#include "interfaces/KORILinkableObject.h"
#include "platform/store/KORAttributeReads.h"
#include "platform/store/KORFeatureType.h"
#include "platform/store/KORUndeclaredAttributes.h"

inline const KORIID IID_KORFeature = KORName::Intern("KORFeature");

/// A feature of a document: one allocation, a small header followed by one slot per attribute of its late
/// type. Values, alias and container membership are all slots, and all changes go through Write, so that
/// undo and dirty tracking cannot be forgotten. It is no start-up: those stand in catalogs.
///
/// A feature lies in at most one container, which keeps a reference on it: it lives on without other handles.
/// Once its document is closed, its slots are empty, reads answer "never valued" and writes are ignored.
/// Writes are ignored, too, while undo, redo or a rollback has taken it out of its container: whoever still
/// holds it reads what it was, and that is how a redo brings it back. One that was removed, and not undone,
/// can be written.
class KORFeature final : public KORAttributeReads<KORFeature, KORILinkableObject, KORIAlias> {
public:
    static KORIID Iid() { return IID_KORFeature; }

    /// A new feature with its type's initial values, in a container. Within an undo step the creation is
    /// logged as one change; later writes to its declared attributes in the same scope are part of it.
    static KORVar<KORFeature> New(KORStoreDocument& document, const KORLayoutHandle& layout,
                                  const KORUnicodeString& name, KORBaseUnknown& container);

    /// A copy of a feature of an open document: the same type, name, alias and values, in a container of that
    /// document. Lists share their numbers with the original; references are the original's. Logged like a
    /// new feature.
    static KORVar<KORFeature> NewCopy(const KORFeature& original, KORBaseUnknown& container);

    /// Its number in its document, from 1 on: never another feature's, also after this one is gone.
    std::uint32_t Number() const { return number_; }
    const KORLayout& Layout() const { return type_->Layout(); }
    /// The value in a slot that every feature or its layout has, in one of an undeclared attribute, or the
    /// name or alias.
    const KORValue& At(KORSlot slot) const {
        return slot < KORLayout::kAlias ? Slots()[slot] : UndeclaredAt(slot);
    }
    const KORValue& Declared(KORSlot slot) const { return Slots()[slot]; }  ///< of the layout, unchecked
    KORStoreDocument* StoreDocument() const { return type_->Document(); }   ///< null once it is closed

    /// Changes the container it lies in. Null takes it out: only its other holders keep it then.
    void SetContainer(KORBaseUnknown* container);
    bool LiesInContainer() const { return At(KORLayout::kContainer).Component() != nullptr; }

    /// For the undo log, which has just undone or redone a change of its container.
    void WasPutBack() noexcept { takenAway_ = !LiesInContainer(); }

    KORUnicodeString GetName() override;
    KORBaseUnknown* GetFeatContainer() override;
    KORISpecObject* GetFather() override;  ///< null where its type has no attribute for it
    KORISpecObject* Instantiate(const KORUnicodeString&, KORIContainer*) override { return nullptr; }

    void SetDouble(KORISpecAttrKey* key, double value, int index) override;
    void SetBoolean(KORISpecAttrKey* key, bool value, int index) override;
    void SetString(KORISpecAttrKey* key, const KORUnicodeString& value, int index) override;
    void SetListOfDouble(KORISpecAttrKey* key, const KORRawColldouble& values) override;
    void SetInteger(KORISpecAttrKey* key, int value, int index) override;
    void SetComponent(KORISpecAttrKey* key, KORBaseUnknown* component, int index) override;
    void AppendComponent(KORISpecAttrKey* key, KORBaseUnknown* component) override;
    void RemoveAllValues(KORISpecAttrKey* key) override;
    void RemoveValue(KORISpecAttrKey* key) override;

    KORDocument* GetDocument() override;
    void SetAlias(const KORUnicodeString& alias) override;
    KORUnicodeString GetAlias() override { return At(KORLayout::kAlias).String(); }

    /// Stores what a document holds under a name that the late type does not declare, of whichever kind.
    /// Never valued is a value like any other here. Such attributes are copied, undone and referenced like
    /// all others, but no key reaches them. Throws std::length_error beyond
    /// KORUndeclaredAttributes::kMost names.
    void SetUndeclared(const KORUnicodeString& name, KORValue&& value);
    void RemoveUndeclared(const KORUnicodeString& name);  ///< nothing happens when it has none

    /// The slot of an undeclared attribute; made, and absent, when it has none of that name. Its document is
    /// open.
    KORSlot UndeclaredSlot(const KORUnicodeString& name) {
        return MakeUndeclared(*StoreDocument()).SlotOf(name);
    }

    /// Makes room for its name and alias, which few features need: before Swap is called for one of them on a
    /// feature that may never have had either. Its document is open.
    void MakeNameSlots() { MakeUndeclared(*StoreDocument()); }

    /// Visits the undeclared attributes as (const KORUnicodeString& name, const KORValue& value), in the
    /// order in which their names came. The visitor does not change the feature.
    template <class Visitor>
    void ForEachUndeclared(Visitor&& visit) const;

    /// Visits the slots of all attributes, the undeclared ones included.
    template <class Visitor>
    void ForEachSlot(Visitor&& visit) const;

    const char* SlotName(KORSlot slot) const;       ///< the attribute's name; "Name", "Alias" and "Container"
    std::string_view SlotText(KORSlot slot) const;  ///< the same with what stands behind a NUL

    /// Puts a value of the slot's kind into a slot. The one choke point of all changes: compares, logs,
    /// writes. Nothing happens once the document is closed, nor to a feature that was taken away, except that
    /// it can be put into a container again.
    void Write(KORSlot slot, KORValue&& value);

    /// Visits the components that its attributes reference, those in lists included, as KORBaseUnknown&
    /// without a reference. Its father is not among them: a feature hangs on that, but does not consist of
    /// it. The visitor does not change the feature.
    template <class Visitor>
    void ForEachComponent(Visitor&& visit) const;

    /// Exchanges the value of a slot for another that knows its slot: all there is to do, undo and redo a
    /// change. Marks the feature dirty. The caller holds a reference. The slot is there: see UndeclaredSlot
    /// and MakeNameSlots.
    void Swap(KORValue& other) noexcept {
        const KORSlot slot = other.Slot();
        Stored(slot).Swap(other);
        Changed(slot, other);
    }

    /// It is saved as it stands. Called by the registry, which keeps the numbers of what is dirty.
    void MarkClean() noexcept { dirty_ = false; }

    /// Takes all values away, unlogged: its document is being closed.
    void Clear() noexcept;

    /// The slots lie behind the object.
    struct SlotCount {
        KORSlot count;
    };
    static void* operator new(std::size_t size, SlotCount slots);
    static void operator delete(void* memory, SlotCount slots);
    static void operator delete(KORFeature* feature, std::destroying_delete_t);

protected:
    void* OwnInterface(KORIID iid) override;
    const KORName* DictionaryName() const override { return Layout().Name(); }
    const KORName* DictionaryRole() const override { return Layout().Role(); }
    std::uint32_t Generation() const override;

private:
    /// With the values of the original, or with the type's initial ones when it is null.
    KORFeature(KORFeatureType& type, std::uint32_t number, std::uint32_t stamp, const KORFeature* original);
    ~KORFeature() override;

    /// Its table of what its layout has no slots for. Null when it has none, and once its document is closed.
    KORUndeclaredAttributes* Undeclared() const;
    KORUndeclaredAttributes& MakeUndeclared(KORStoreDocument& document);  ///< the same, made if it has none
    void CopyUndeclared(KORStoreDocument& document, const KORFeature& original);
    const KORValue& UndeclaredAt(KORSlot slot) const;
    void DropUndeclared() noexcept;

    /// Puts a new feature into its container: what Write does, but there is nothing yet to compare and to
    /// drop.
    void Enter(KORBaseUnknown& container);

    /// A slot was written that held another value before.
    void Changed(KORSlot slot, const KORValue& before) noexcept {
        if (!dirty_) MarkDirty();
        if (slot == KORLayout::kContainer) ChangeMembership(before);
    }
    void MarkDirty() noexcept;
    void ChangeMembership(const KORValue& before) noexcept;  ///< after its container slot has changed

    KORValue& Stored(KORSlot slot) { return const_cast<KORValue&>(At(slot)); }
    KORValue* Slots() { return reinterpret_cast<KORValue*>(this + 1); }
    const KORValue* Slots() const { return reinterpret_cast<const KORValue*>(this + 1); }

    void WriteAs(KORAttributeKind kind, KORISpecAttrKey* key, KORValue&& value);

    /// Write, into a slot that was looked up. In every setter anew, where the value's kind is known.
    [[gnu::always_inline]] inline void WriteTo(KORValue& stored, KORSlot slot, KORValue&& value);

    KORFeatureType* type_;  ///< counted
    std::uint32_t number_;
    bool hasUndeclared_ = false;  ///< the document keeps a table for it
    bool dirty_ = true;           ///< its registry knows that it has changed; new features have
    bool takenAway_ = false;      ///< out of its container by undo, redo or a rollback
};

template <class Visitor>
void KORFeature::ForEachUndeclared(Visitor&& visit) const {
    const KORUndeclaredAttributes* undeclared = Undeclared();
    for (std::size_t index = 0; undeclared && index < undeclared->Size(); ++index) {
        const auto slot = static_cast<KORSlot>(KORLayout::kFirstUndeclared + index);
        const KORValue& value = undeclared->At(slot);
        if (value.State() != KORValueState::Absent) visit(undeclared->Name(slot), value);
    }
}

template <class Visitor>
void KORFeature::ForEachSlot(Visitor&& visit) const {
    for (KORSlot slot = KORLayout::kFirstAttribute; slot < Layout().SlotCount(); ++slot) visit(slot);
    const KORUndeclaredAttributes* undeclared = Undeclared();
    for (std::size_t index = 0; undeclared && index < undeclared->Size(); ++index) {
        visit(static_cast<KORSlot>(KORLayout::kFirstUndeclared + index));
    }
}

template <class Visitor>
void KORFeature::ForEachComponent(Visitor&& visit) const {
    ForEachSlot([&](KORSlot slot) {
        const KORValue& value = At(slot);
        if (value.State() != KORValueState::Valued || slot == Layout().FatherSlot()) return;
        if (value.Kind() == KORAttributeKind::Component) {
            visit(*value.Component());
        } else if (value.Kind() == KORAttributeKind::ListOfComponents) {
            for (int position = 1; position <= value.ListSize(); ++position) {
                if (const KORBaseUnknown_var entry = value.ComponentAt(position); entry) visit(*entry);
            }
        }
    });
}
