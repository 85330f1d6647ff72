#pragma once

#include "framework/KORImplements.h"
#include "interfaces/KORISpecAttrAccess.h"
#include "platform/store/KORLayout.h"

/// The reading half of attribute access, for whatever holds values laid out by a late type: features and
/// start-ups. Object offers `const KORLayout& Layout() const` and `const KORValue& Declared(KORSlot) const`.
template <class Object, class... I>
class KORAttributeReads : public KORImplements<KORISpecObject, KORISpecAttrAccess, I...> {
public:
    HRESULT QueryInterface(KORIID iid, void** out) final { return this->QueryOwnFirst(iid, out); }

    KORUnicodeString GetType() final { return Layout().NameText(); }

    KORISpecAttrKey* GetAttrKey(const char* name) final {
        const KORName* key = KORName::Find(name);
        if (!key || Layout().Find(key).slot == 0) return nullptr;
        key->AddRef();
        return key;
    }

    double GetDouble(KORISpecAttrKey* key, int) final {
        const KORValue* value = Find(key, KORAttributeKind::Double);
        return value ? value->Double() : 0.0;
    }
    bool GetBoolean(KORISpecAttrKey* key, int) final {
        const KORValue* value = Find(key, KORAttributeKind::Boolean);
        return value && value->Boolean();
    }
    int GetInteger(KORISpecAttrKey* key, int) final {
        const KORValue* value = Find(key, KORAttributeKind::Integer);
        return value ? value->Integer() : 0;
    }
    KORUnicodeString GetString(KORISpecAttrKey* key, int) final {
        const KORValue* value = Find(key, KORAttributeKind::String);
        return value ? value->String() : KORUnicodeString();
    }

    KORISpecObject* GetSpecObject(const char* name, int) final {
        const KORValue* value = Find(KORName::Find(name), KORAttributeKind::Component);
        return value ? KORISpecObject_var::Of(value->Component()).Detach() : nullptr;
    }

    KORRawColldouble* GetListOfDouble(KORISpecAttrKey* key) final {
        const KORValue* value = Find(key, KORAttributeKind::ListOfDoubles);
        if (!value || value->State() == KORValueState::NeverValued) return nullptr;
        return new KORRawColldouble(value->ListOfDoubles());
    }

    KORBaseUnknown* GetComponent(KORISpecAttrKey* key, int index) final {
        if (const KORValue* list = Find(key, KORAttributeKind::ListOfComponents)) {
            return list->ComponentAt(index).Detach();
        }
        const KORValue* value = Find(key, KORAttributeKind::Component);
        return value && index == 0 ? KORBaseUnknown_var(value->Component()).Detach() : nullptr;
    }

    KORListValKORISpecObject_var* GetListOfComponents(KORISpecAttrKey* key) final {
        const KORValue* value = Find(key, KORAttributeKind::ListOfComponents);
        if (!value || value->State() == KORValueState::NeverValued) return nullptr;
        return new KORListValKORISpecObject_var(value->Features());
    }

    int GetListSize(KORISpecAttrKey* key) final {
        const KORLayout::Place place = PlaceOf(key);
        return place.slot != 0 && KORIsList(place.kind) ? Self().Declared(place.slot).ListSize() : 0;
    }

protected:
    ~KORAttributeReads() override = default;

    KORLayout::Place PlaceOf(KORISpecAttrKey* key) const {
        return key ? Layout().Find(key) : KORLayout::Place{};
    }

private:
    const Object& Self() const { return static_cast<const Object&>(*this); }
    const KORLayout& Layout() const { return Self().Layout(); }

    /// The value under a key; null when the type has no attribute of that name and kind.
    const KORValue* Find(KORISpecAttrKey* key, KORAttributeKind kind) const {
        const KORLayout::Place place = PlaceOf(key);
        return place.slot != 0 && place.kind == kind ? &Self().Declared(place.slot) : nullptr;
    }
};
