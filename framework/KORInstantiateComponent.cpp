#include "framework/KORInstantiateComponent.h"

#include "framework/KORBaseUnknown.h"
#include "framework/KORDictionary.h"
#include "framework/KORICreateInstance.h"

HRESULT KORInstantiateComponent(const char* component, KORIID iid, void** out) {
    *out = nullptr;
    const KORFillDictionary* entry =
        KORFillDictionary::Find(KORName::Find(component), IID_KORICreateInstance);
    if (!entry) return E_FAIL;
    auto binding = KORVar<KORIUnknown>::Adopt(entry->Creator()(nullptr, nullptr));
    if (!binding) return E_OUTOFMEMORY;
    if (!KORBaseUnknown_var::Of(binding.Get())) return E_FAIL;  // the factory could not be created
    void* created = nullptr;
    const HRESULT status = static_cast<KORICreateInstance*>(binding.Get())->CreateInstance(&created);
    if (FAILED(status)) return status;
    const auto instance = KORBaseUnknown_var::Adopt(static_cast<KORBaseUnknown*>(created));
    return instance ? instance->QueryInterface(iid, out) : E_FAIL;
}
