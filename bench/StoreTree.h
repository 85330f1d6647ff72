#pragma once

#include <vector>

#include "platform/store/KORFeature.h"

namespace bench {

/// A tree of fifteen features with sixty-five attributes, all valued, as the store is used directly: layouts
/// and keys in hand. A root with fourteen references and eleven flags; below it twelve features of a flag, an
/// integer and a double, and two of a flag and a double.
class StoreTree {
public:
    StoreTree();

    static constexpr int kFeatures = 15;
    static constexpr int kAttributes = 65;

    /// Grows one in a container and answers its root. `value` is written to all numbers.
    KORVar<KORFeature> Grow(KORStoreDocument& document, KORBaseUnknown& container, double value) const;

private:
    static constexpr int kBranches = kFeatures - 1;
    static constexpr int kWideBranches = 12;

    KORLayoutHandle root_;
    KORLayoutHandle wide_;
    KORLayoutHandle narrow_;
    std::vector<const KORName*> references_;
    std::vector<const KORName*> flags_;
    const KORName* flag_;
    const KORName* integer_;
    const KORName* number_;
};

}  // namespace bench
