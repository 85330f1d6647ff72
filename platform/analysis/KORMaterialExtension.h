#pragma once

#include "platform/store/KORFeature.h"

/// Implements KORIMaterialFeature, KORIMaterialSupport and KORIApplicativeHolder on "KORMaterialLT", the
/// platform's materials. A material is its own support. What applications hang on it lies in attributes: a
/// list of features "KORApplicativeDataLT", each a name and the application's feature. It holds nothing
/// itself.
class KORMaterialExtension final : public KORBaseUnknown {
    KORDeclareClass

    KORISpecObject* GetApplicativeFeature(const KORUnicodeString& name);

    /// Replaces what hung under that name; that one then hangs nowhere. E_FAIL, and nothing changes, for
    /// null, and for a new name on a material that lies in no container of this platform.
    [[nodiscard]] HRESULT SetApplicativeFeature(const KORUnicodeString& name, KORISpecObject* feature);

    [[nodiscard]] HRESULT RemoveApplicativeFeature(const KORUnicodeString& name);

    KORBaseUnknown* GetSupport();
    KORBaseUnknown* FindApplicative(const KORUnicodeString& name);

private:
    KORVar<KORFeature> Material() { return KORVar<KORFeature>::Of(this); }
    KORVar<KORFeature> EntryOf(const KORUnicodeString& name);  ///< null when nothing hangs under it
    KORVar<KORFeature> NewEntry(const KORUnicodeString& name);
    void LetGoOf(KORBaseUnknown* data);
};
