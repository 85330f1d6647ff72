#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORICutAndPastable = KORName::Intern("KORICutAndPastable");

/// Copying and removal of features, offered by containers. Copying is extracting from one container, then
/// pasting into another (or the same).
class KORICutAndPastable : public KORInterface<IID_KORICutAndPastable> {
public:
    /// What a copy of these features takes along: `extracted` receives the features themselves, in their
    /// order, and after them what they reference in this container, directly or through others.
    /// References to features of other containers stay references. E_FAIL when one of them does not lie
    /// in this container.
    [[nodiscard]] virtual HRESULT Extract(const KORListValKORISpecObject_var& features,
                                          KORListValKORISpecObject_var& extracted) = 0;

    /// Makes a copy of each extracted feature in this container; `copies` receives them in the same order.
    /// References among the extracted features become references among the copies.
    [[nodiscard]] virtual HRESULT Paste(const KORListValKORISpecObject_var& extracted,
                                        KORListValKORISpecObject_var& copies) = 0;

    /// Takes a feature out of this container. What it references stays. E_FAIL when it does not lie here.
    [[nodiscard]] virtual HRESULT Remove(KORISpecObject* feature) = 0;

protected:
    ~KORICutAndPastable() = default;
};

using KORICutAndPastable_var = KORVar<KORICutAndPastable>;
