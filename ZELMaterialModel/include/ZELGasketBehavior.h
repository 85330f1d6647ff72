#pragma once

#include <array>

#include "ZELMaterialModel/include/ZELModuleObject.h"
#include "ZELMaterialModel/include/ZELRememberedFeature.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "interfaces/KORISpecAttrAccess.h"

/// What the gasket behaviors share: they bind to their features, and resolve their keys, once, when they are
/// built, and keep no value: every getter reads the store and every setter writes it. What could not be bound
/// answers E_FAIL, and so do setters whose feature undo took away.
///
/// Copying copies handles as counted references, but the material and the keys as plain pointers without a
/// reference, although every destructor releases them. Behaviors are therefore shared through their proxy and
/// never copied.
class KOR_EXPORT ZELGasketBehavior : private ZELModuleObject {
protected:
    static constexpr std::size_t kMostKeys = 24;

    explicit ZELGasketBehavior(
        KORISpecObject* material);  ///< takes a reference of its own; null is tolerated
    ZELGasketBehavior(const ZELGasketBehavior&) = default;
    ZELGasketBehavior& operator=(const ZELGasketBehavior&) = default;
    virtual ~ZELGasketBehavior();

    /// The material's attribute access; empty, and reported, when there is no material or it offers none.
    KORISpecAttrAccess_var OpenMaterial() const;

    /// What a component attribute holds, by name; empty when the feature lacks the attribute or nothing is
    /// stored.
    static KORBaseUnknown_var Held(KORISpecAttrAccess& feature, const KORUnicodeString& name);

    /// Access to one of the behavior's features for writing: empty once the feature was taken away.
    static const KORISpecAttrAccess_var& ForWriting(const ZELRememberedFeature& feature,
                                                    const KORISpecAttrAccess_var& access);

    /// Resolves the next key of the behavior, one of kMostKeys; false when the feature lacks it or is not
    /// there.
    bool TakeKey(const KORISpecAttrAccess_var& feature, const KORUnicodeString& name);

    /// The key taken as the `index`-th, from 0; null when the binding stopped before it.
    KORISpecAttrKey* Key(std::size_t index) const { return keys_[index]; }

private:
    KORISpecObject* material_;
    std::array<KORISpecAttrKey*, kMostKeys> keys_{};  ///< null behind those that were taken
    std::size_t taken_ = 0;
};
