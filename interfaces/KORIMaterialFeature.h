#pragma once

#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORIMaterialFeature = KORName::Intern("KORIMaterialFeature");

/// A material of the CAD platform. Applications hang features of their own on it, each under a name.
class KORIMaterialFeature : public KORInterface<IID_KORIMaterialFeature> {
public:
    /// The applicative feature of that name with one reference for the caller; null when there is none.
    virtual KORISpecObject* GetApplicativeFeature(const KORUnicodeString& name) = 0;

    /// Hangs a feature on the material under a name, in place of the one that was there; the feature's father
    /// is then this material. E_FAIL for null.
    [[nodiscard]] virtual HRESULT SetApplicativeFeature(const KORUnicodeString& name,
                                                        KORISpecObject* feature) = 0;

    /// Takes the applicative feature of that name off the material. The feature itself stays in its
    /// container. E_FAIL when there is none.
    [[nodiscard]] virtual HRESULT RemoveApplicativeFeature(const KORUnicodeString& name) = 0;

protected:
    ~KORIMaterialFeature() = default;
};

using KORIMaterialFeature_var = KORVar<KORIMaterialFeature>;
