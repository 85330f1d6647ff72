#pragma once

#include "framework/KORVar.h"

/// Creates a component by name, through its instance factory, and answers one of its interfaces in *out, with
/// one reference for the caller. E_FAIL when no loaded module has an instance factory of that name; otherwise
/// the factory's or the query's own failure. *out is null on failure.
[[nodiscard]] HRESULT KORInstantiateComponent(const char* component, KORIID iid, void** out);

/// The same, typed: the new component's Interface in `created`, an empty handle on failure.
template <class Interface>
[[nodiscard]] HRESULT KORInstantiate(const char* component, KORVar<Interface>& created) {
    void* found = nullptr;
    const HRESULT status = KORInstantiateComponent(component, Interface::Iid(), &found);
    created = KORVar<Interface>::Adopt(static_cast<Interface*>(found));
    return status;
}
