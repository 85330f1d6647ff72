#pragma once

#include "framework/KORName.h"
#include "framework/KORStatus.h"

/// Creates a component by name, through its instance factory, and answers one of its interfaces in *out, with
/// one reference for the caller. E_FAIL when no loaded module has an instance factory of that name; otherwise
/// the factory's or the query's own failure. *out is null on failure.
[[nodiscard]] HRESULT KORInstantiateComponent(const char* component, KORIID iid, void** out);
