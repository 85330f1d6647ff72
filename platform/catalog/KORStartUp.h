#pragma once

#include "platform/store/KORAttributeReads.h"

/// The start-up of a late type: reads as its initial values, and makes features that begin with them. It is
/// no feature: it lies in no document and container, has no extensions, and ignores writes. Nothing ever
/// changes in it, so one per late type serves everybody.
class KORStartUp final : public KORAttributeReads<KORStartUp> {
public:
    explicit KORStartUp(const KORLayoutHandle& layout) : layout_(layout) {}

    const KORLayout& Layout() const { return *layout_; }
    const KORValue& Declared(KORSlot slot) const { return layout_->Initial(slot); }

    KORUnicodeString GetName() override { return layout_->NameText(); }
    KORBaseUnknown* GetFeatContainer() override { return nullptr; }
    [[nodiscard]] KORISpecObject* Instantiate(const KORUnicodeString& name,
                                              KORIContainer* container) override;

    void SetDouble(KORISpecAttrKey*, double, int) override {}
    void SetBoolean(KORISpecAttrKey*, bool, int) override {}
    void SetString(KORISpecAttrKey*, const KORUnicodeString&, int) override {}
    void SetListOfDouble(KORISpecAttrKey*, const KORRawColldouble&) override {}
    void SetInteger(KORISpecAttrKey*, int, int) override {}
    void SetComponent(KORISpecAttrKey*, KORBaseUnknown*, int) override {}
    void AppendComponent(KORISpecAttrKey*, KORBaseUnknown*) override {}
    void RemoveAllValues(KORISpecAttrKey*) override {}
    void RemoveValue(KORISpecAttrKey*) override {}

private:
    KORLayoutHandle layout_;
};
