#pragma once

#include "interfaces/KORICatalog.h"

/// Opens the module's own catalog for instantiation in a container: AccessCatalog's status, `catalog` set on
/// success; E_FAIL also when the platform answers success and gives no catalog.
[[nodiscard]] HRESULT ZELOpenModuleCatalog(KORIContainer* container, KORICatalog_var& catalog);

/// Instantiates the start-up of a late type from a catalog, under a name, in a container. E_FAIL when the
/// catalog has no such start-up or no feature comes of it; `created` is null then.
[[nodiscard]] HRESULT ZELInstantiate(KORICatalog& catalog, const KORUnicodeString& lateType,
                                     const KORUnicodeString& name, KORIContainer* container,
                                     KORISpecObject_var& created);
