#pragma once

#include <functional>
#include <utility>

#include "framework/KORImplements.h"
#include "interfaces/KORISpecObject.h"

/// A spec object without attributes, which may stand where the module expects a feature. It tells when it is
/// destroyed.
class ZELBareFeature final : public KORImplements<KORISpecObject> {
public:
    explicit ZELBareFeature(std::function<void()> destroyed = {}) : destroyed_(std::move(destroyed)) {}
    ~ZELBareFeature() override {
        if (destroyed_) destroyed_();
    }

    KORUnicodeString GetType() override { return "BareLT"; }
    KORUnicodeString GetName() override { return "Bare"; }
    KORBaseUnknown* GetFeatContainer() override { return nullptr; }
    KORISpecObject* Instantiate(const KORUnicodeString&, KORIContainer*) override { return nullptr; }

private:
    std::function<void()> destroyed_;
};

inline KORISpecObject_var ZELMakeBareFeature(std::function<void()> destroyed = {}) {
    return KORISpecObject_var::Adopt(new ZELBareFeature(std::move(destroyed)));
}
