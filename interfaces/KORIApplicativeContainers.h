#pragma once

#include "framework/KORBaseUnknown.h"
#include "interfaces/KORDocument.h"

inline const KORIID IID_KORIApplicativeContainers = KORName::Intern("KORIApplicativeContainers");

/// The named containers that applications keep in a document beside its own. Offered by documents; used
/// through KORGetApplicativeContainer.
class KORIApplicativeContainers : public KORInterface<IID_KORIApplicativeContainers> {
public:
    /// The container of that name with one reference for the caller; null when the document has none.
    virtual KORBaseUnknown* FindContainer(const char* name) = 0;

protected:
    ~KORIApplicativeContainers() = default;
};

using KORIApplicativeContainers_var = KORVar<KORIApplicativeContainers>;

/// An interface of the document's applicative container of that name, in *out with one reference for the
/// caller. E_FAIL, and null, when there is no document or no such container; E_NOINTERFACE when it lacks the
/// interface.
[[nodiscard]] inline HRESULT KORGetApplicativeContainer(KORDocument* document, KORIID iid, const char* name,
                                                        void** out) {
    *out = nullptr;
    const auto containers = KORIApplicativeContainers_var::Of(document);
    if (!containers) return E_FAIL;
    const auto container = KORBaseUnknown_var::Adopt(containers->FindContainer(name));
    return container ? container->QueryInterface(iid, out) : E_FAIL;
}
