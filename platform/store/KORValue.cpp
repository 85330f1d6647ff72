#include "platform/store/KORValue.h"

#include <memory>

namespace {

std::uint64_t AddressOf(const void* object) {
    return reinterpret_cast<std::uintptr_t>(object);
}

}  // namespace

KORValue KORValue::OfString(const KORUnicodeString& text) {
    return {KORAttributeKind::String, AddressOf(KORUnicodeString::BareCopyOf(text))};
}

KORValue KORValue::OfListOfDoubles(const KORRawColldouble& list) noexcept {
    if (list.Size() == 0) return EmptyList(KORAttributeKind::ListOfDoubles);
    return {KORAttributeKind::ListOfDoubles, AddressOf(KORSharedBuffer<double>(list.Buffer()).Detach())};
}

KORValue KORValue::OfComponent(KORBaseUnknown* component) noexcept {
    if (!component) return KORValue(KORAttributeKind::Component);
    component = component->MainObject();
    component->AddRef();
    return {KORAttributeKind::Component, AddressOf(component)};
}

KORValue KORValue::EmptyList(KORAttributeKind kind) noexcept {
    KORValue empty(kind);
    empty.SetState(KORValueState::Empty);
    return empty;
}

std::uint64_t KORValue::CopyOwned() const {
    switch (Kind()) {
        case KORAttributeKind::Boolean:
        case KORAttributeKind::Integer:
        case KORAttributeKind::Double:
            return bits_;
        case KORAttributeKind::String:
            KORSharedBuffer<char>::Share(Pointer<char>());
            return bits_;
        case KORAttributeKind::ListOfDoubles:
            KORSharedBuffer<double>::Share(Pointer<double>());
            return bits_;
        case KORAttributeKind::Component:
            Referenced()->AddRef();
            return bits_;
        case KORAttributeKind::ListOfComponents:
            return AddressOf(new KORComponentList(*Components()));
    }
    return 0;
}

void KORValue::DropOwned() noexcept {
    switch (Kind()) {
        case KORAttributeKind::Boolean:
        case KORAttributeKind::Integer:
        case KORAttributeKind::Double:
            return;
        case KORAttributeKind::String:
            KORSharedBuffer<char>::Drop(Pointer<char>());
            return;
        case KORAttributeKind::ListOfDoubles:
            KORSharedBuffer<double>::Drop(Pointer<double>());
            return;
        case KORAttributeKind::Component:
            Referenced()->Release();
            return;
        case KORAttributeKind::ListOfComponents:
            delete Components();
            return;
    }
}

bool KORValue::OwnsSameAs(const KORValue& other) const {
    switch (Kind()) {
        case KORAttributeKind::Boolean:
        case KORAttributeKind::Integer:
        case KORAttributeKind::Double:
        case KORAttributeKind::Component:
            return false;
        case KORAttributeKind::String:
            return KORSharedBuffer<char>::SameBytes(Pointer<char>(), other.Pointer<char>());
        case KORAttributeKind::ListOfDoubles:
            return KORSharedBuffer<double>::SameBytes(Pointer<double>(), other.Pointer<double>());
        case KORAttributeKind::ListOfComponents:
            return Components()->SameAs(*other.Components());
    }
    return false;
}

KORRawColldouble KORValue::ListOfDoubles() const {
    auto* const values = KORSharedBuffer<double>::Share(Pointer<double>());
    return KORRawColldouble(KORSharedBuffer<double>::Adopt(values));
}

KORListValKORISpecObject_var KORValue::Features() const {
    return bits_ ? Components()->Features() : KORListValKORISpecObject_var();
}

KORBaseUnknown_var KORValue::ComponentAt(int position) const {
    return bits_ ? Components()->At(position) : nullptr;
}

int KORValue::ListSize() const {
    if (bits_ == 0) return 0;
    return Kind() == KORAttributeKind::ListOfDoubles ? KORSharedBuffer<double>::SizeOf(Pointer<double>())
                                                     : Components()->Size();
}

void KORValue::Append(KORBaseUnknown* component) {
    if (bits_ != 0) return Components()->Append(component);
    auto list = std::make_unique<KORComponentList>();
    list->Append(component);
    bits_ = AddressOf(list.release());
    SetState(KORValueState::Valued);
}
