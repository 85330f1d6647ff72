#include "platform/store/KORFeature.h"

#include <memory>
#include <new>

#include "platform/store/KORStoreDocument.h"

void KORFeature::WriteTo(KORValue& stored, KORSlot slot, KORValue&& value) {
    KORStoreDocument* document = StoreDocument();
    if (!document || stored.SameAs(value) || (takenAway_ && slot != KORLayout::kContainer)) return;
    KORUndoLog& log = document->Log();
    const bool logged = log.IsOpen() && stored.Stamp() != log.Stamp();
    if (logged) log.MakeRoom();  // first of all: without memory the value stays
    value.SetStamp(log.Stamp());
    value.SetSlot(slot);
    stored.Swap(value);
    Changed(slot, logged ? log.Keep(*this, std::move(value)) : value);
}

void KORFeature::Write(KORSlot slot, KORValue&& value) {
    WriteTo(Stored(slot), slot, std::move(value));
}

void KORFeature::WriteAs(KORAttributeKind kind, KORISpecAttrKey* key, KORValue&& value) {
    const KORLayout::Place place = PlaceOf(key);
    if (place.slot == 0 || place.kind != kind) return;
    WriteTo(Slots()[place.slot], place.slot, std::move(value));
}

KORVar<KORFeature> KORFeature::New(KORStoreDocument& document, const KORLayoutHandle& layout,
                                   const KORUnicodeString& name, KORBaseUnknown& container) {
    KORFeatureType& type = document.TypeOf(layout);
    const std::uint32_t number = document.Features().NextNumber();
    auto feature = KORVar<KORFeature>::Adopt(new (SlotCount{layout->SlotCount()})
                                                 KORFeature(type, number, document.Log().Stamp(), nullptr));
    if (name != layout->NameText()) {
        feature->MakeUndeclared(document).At(KORLayout::kName) = KORValue::OfString(name);
    }
    feature->Enter(container);
    return feature;
}

KORVar<KORFeature> KORFeature::NewCopy(const KORFeature& original, KORBaseUnknown& container) {
    KORStoreDocument& document = *original.StoreDocument();
    const SlotCount slots{original.Layout().SlotCount()};
    const std::uint32_t number = document.Features().NextNumber();
    auto copy = KORVar<KORFeature>::Adopt(
        new (slots) KORFeature(*original.type_, number, document.Log().Stamp(), &original));
    if (original.hasUndeclared_) copy->CopyUndeclared(document, original);
    copy->Enter(container);
    return copy;
}

void* KORFeature::operator new(std::size_t size, SlotCount slots) {
    return KORSmallBlocks::Take(size + slots.count * sizeof(KORValue));
}

void KORFeature::operator delete(void* memory, SlotCount slots) {
    KORSmallBlocks::Give(memory, sizeof(KORFeature) + slots.count * sizeof(KORValue));
}

void KORFeature::operator delete(KORFeature* feature, std::destroying_delete_t) {
    const SlotCount slots{feature->Layout().SlotCount()};
    feature->~KORFeature();
    operator delete(feature, slots);
}

KORFeature::KORFeature(KORFeatureType& type, std::uint32_t number, std::uint32_t stamp,
                       const KORFeature* original)
    : type_(&type), number_(number) {
    KORValue* const slots = Slots();
    new (slots + KORLayout::kContainer) KORValue(KORAttributeKind::Component);
    const KORValue* const values = original ? original->Slots() : type.Layout().Initials();
    const KORSlot count = type.Layout().SlotCount();
    std::uninitialized_copy(values + KORLayout::kFirstAttribute, values + count,
                            slots + KORLayout::kFirstAttribute);  // all of them, or none and no memory
    // As if logged: undoing the creation takes the values along.
    for (KORSlot slot = KORLayout::kFirstAttribute; slot < count; ++slot) slots[slot].SetStamp(stamp);
    type.AddRef();
    type.Document()->Features().Add(number, *this);
}

KORFeature::~KORFeature() {
    DropUndeclared();
    if (KORStoreDocument* document = StoreDocument()) document->Features().Remove(number_);
    KORValue* slots = Slots();
    for (KORSlot slot = 0; slot < Layout().SlotCount(); ++slot) slots[slot].~KORValue();
    type_->Release();
}

void KORFeature::Enter(KORBaseUnknown& container) {
    KORUndoLog& log = StoreDocument()->Log();
    if (log.IsOpen()) log.MakeRoom();
    KORValue value = KORValue::OfComponent(&container);
    value.SetStamp(log.Stamp());
    Slots()[KORLayout::kContainer].Swap(value);
    if (log.IsOpen()) log.Keep(*this, std::move(value));
    AddRef();
    StoreDocument()->MemberEntered();
}

void* KORFeature::OwnInterface(KORIID iid) {
    return iid == IID_KORFeature ? this : KORImplements::OwnInterface(iid);
}

std::uint32_t KORFeature::Generation() const {
    const KORStoreDocument* document = StoreDocument();
    return document ? document->Log().Generation() : type_->LastGeneration();
}

KORDocument* KORFeature::GetDocument() {
    KORStoreDocument* document = StoreDocument();
    return document ? document->Document() : nullptr;
}

KORUnicodeString KORFeature::GetName() {
    const KORValue& name = At(KORLayout::kName);
    return name.State() == KORValueState::NeverValued ? Layout().NameText() : name.String();
}

KORBaseUnknown* KORFeature::GetFeatContainer() {
    return KORBaseUnknown_var(At(KORLayout::kContainer).Component()).Detach();
}

KORISpecObject* KORFeature::GetFather() {
    const KORSlot slot = Layout().FatherSlot();
    return slot != 0 ? KORISpecObject_var::Of(At(slot).Component()).Detach() : nullptr;
}

void KORFeature::SetContainer(KORBaseUnknown* container) {
    const KORVar<KORFeature> alive(this);
    Write(KORLayout::kContainer, KORValue::OfComponent(container));
}

void KORFeature::SetAlias(const KORUnicodeString& alias) {
    KORStoreDocument* document = StoreDocument();
    if (!document) return;
    MakeUndeclared(*document);
    Write(KORLayout::kAlias, KORValue::OfString(alias));
}

void KORFeature::SetDouble(KORISpecAttrKey* key, double value, int) {
    WriteAs(KORAttributeKind::Double, key, KORValue::OfDouble(value));
}

void KORFeature::SetBoolean(KORISpecAttrKey* key, bool value, int) {
    WriteAs(KORAttributeKind::Boolean, key, KORValue::OfBoolean(value));
}

void KORFeature::SetInteger(KORISpecAttrKey* key, int value, int) {
    WriteAs(KORAttributeKind::Integer, key, KORValue::OfInteger(value));
}

void KORFeature::SetString(KORISpecAttrKey* key, const KORUnicodeString& value, int) {
    WriteAs(KORAttributeKind::String, key, KORValue::OfString(value));
}

void KORFeature::SetListOfDouble(KORISpecAttrKey* key, const KORRawColldouble& values) {
    WriteAs(KORAttributeKind::ListOfDoubles, key, KORValue::OfListOfDoubles(values));
}

void KORFeature::SetComponent(KORISpecAttrKey* key, KORBaseUnknown* component, int) {
    WriteAs(KORAttributeKind::Component, key, KORValue::OfComponent(component));
}

void KORFeature::AppendComponent(KORISpecAttrKey* key, KORBaseUnknown* component) {
    const KORLayout::Place place = PlaceOf(key);
    KORStoreDocument* document = StoreDocument();
    if (!document || takenAway_ || place.kind != KORAttributeKind::ListOfComponents || place.slot == 0) {
        return;
    }
    KORValue& list = Slots()[place.slot];
    if (list.Stamp() == document->Log().Stamp()) {
        // The list before this step is kept, or no step is open: a long list grows in place.
        list.Append(component);
        if (!dirty_) MarkDirty();
        return;
    }
    KORValue longer(list);
    longer.Append(component);
    Write(place.slot, std::move(longer));
}

void KORFeature::RemoveAllValues(KORISpecAttrKey* key) {
    const KORLayout::Place place = PlaceOf(key);
    if (place.slot == 0 || !KORIsList(place.kind)) return;
    Write(place.slot, KORValue::EmptyList(place.kind));
}

void KORFeature::RemoveValue(KORISpecAttrKey* key) {
    const KORLayout::Place place = PlaceOf(key);
    if (place.slot == 0) return;
    Write(place.slot, KORValue(place.kind));
}

void KORFeature::SetUndeclared(const KORUnicodeString& name, KORValue&& value) {
    KORStoreDocument* document = StoreDocument();
    if (!document) return;
    Write(UndeclaredSlot(name), std::move(value));
}

void KORFeature::RemoveUndeclared(const KORUnicodeString& name) {
    const KORUndeclaredAttributes* undeclared = Undeclared();
    const KORSlot slot = undeclared ? undeclared->Find(name.View()) : KORSlot{0};
    if (slot != 0) Write(slot, KORValue::Absent());
}

KORUndeclaredAttributes* KORFeature::Undeclared() const {
    return hasUndeclared_ ? &StoreDocument()->UndeclaredOf(number_) : nullptr;
}

KORUndeclaredAttributes& KORFeature::MakeUndeclared(KORStoreDocument& document) {
    KORUndeclaredAttributes& undeclared = document.UndeclaredOf(number_);
    hasUndeclared_ = true;
    return undeclared;
}

void KORFeature::CopyUndeclared(KORStoreDocument& document, const KORFeature& original) {
    KORUndeclaredAttributes& copy = MakeUndeclared(document);
    const auto put = [&](KORSlot slot, const KORValue& value) {
        copy.At(slot) = value;
        copy.At(slot).SetStamp(
            document.Log().Stamp());  // as if logged, like the values that its type declares
    };
    put(KORLayout::kName, original.At(KORLayout::kName));
    put(KORLayout::kAlias, original.At(KORLayout::kAlias));
    original.ForEachUndeclared(
        [&](const KORUnicodeString& name, const KORValue& value) { put(copy.SlotOf(name), value); });
}

const KORValue& KORFeature::UndeclaredAt(KORSlot slot) const {
    static const KORValue noText(KORAttributeKind::String);
    static const KORValue absent = KORValue::Absent();
    if (const KORUndeclaredAttributes* undeclared = Undeclared()) return undeclared->At(slot);
    return slot < KORLayout::kFirstUndeclared ? noText : absent;
}

void KORFeature::DropUndeclared() noexcept {
    if (std::exchange(hasUndeclared_, false)) StoreDocument()->DropUndeclaredOf(number_);
}

const char* KORFeature::SlotName(KORSlot slot) const {
    if (slot < KORLayout::kFirstUndeclared) return Layout().SlotName(slot);
    const KORUndeclaredAttributes* undeclared = Undeclared();
    return undeclared ? undeclared->Name(slot).c_str() : "";
}

std::string_view KORFeature::SlotText(KORSlot slot) const {
    if (slot - KORLayout::kFirstAttribute < static_cast<int>(Layout().Attributes().size()) && slot != 0) {
        return Layout().Attributes()[slot - KORLayout::kFirstAttribute].name->Text();
    }
    if (slot < KORLayout::kFirstUndeclared) return Layout().SlotName(slot);
    const KORUndeclaredAttributes* undeclared = Undeclared();
    return undeclared ? undeclared->Name(slot).View() : std::string_view();
}

void KORFeature::MarkDirty() noexcept {
    dirty_ = true;
    StoreDocument()->Features().MarkDirty(number_);
}

void KORFeature::ChangeMembership(const KORValue& before) noexcept {
    const bool lies = LiesInContainer();
    const bool lay = before.Component() != nullptr;
    if (lies && !lay) {
        takenAway_ = false;
        AddRef();
        StoreDocument()->MemberEntered();
    } else if (lay && !lies) {
        StoreDocument()->MemberLeft();
        Release();
    }
}

void KORFeature::Clear() noexcept {
    const bool lay = LiesInContainer();
    DropUndeclared();
    KORValue* slots = Slots();
    for (KORSlot slot = 0; slot < Layout().SlotCount(); ++slot) slots[slot] = KORValue(slots[slot].Kind());
    if (!lay) return;
    StoreDocument()->MemberLeft();
    Release();
}
