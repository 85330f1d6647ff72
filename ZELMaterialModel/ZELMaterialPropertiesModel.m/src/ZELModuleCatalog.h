#pragma once

#include "interfaces/KORICatalog.h"

/// Opens the module's own catalog for instantiation in a container: AccessCatalog's status, `catalog` set on
/// success; E_FAIL also when the platform answers success and gives no catalog.
[[nodiscard]] HRESULT ZELOpenModuleCatalog(KORIContainer* container, KORICatalog_var& catalog);

/// The start-up of a late type; empty when the catalog has none that is a spec object.
KORISpecObject_var ZELRetrieveStartUp(KORICatalog& catalog, const KORUnicodeString& lateType);

/// Instantiates the start-up of a late type from a catalog, under a name, in a container. E_FAIL when the
/// catalog has no such start-up, `created` untouched, or no feature comes of it, `created` empty.
[[nodiscard]] HRESULT ZELInstantiate(KORICatalog& catalog, const KORUnicodeString& lateType,
                                     const KORUnicodeString& name, KORIContainer* container,
                                     KORISpecObject_var& created);

/// The same for one single feature, with the module's own catalog: it is opened for the start-up alone and
/// let go before the feature is made. E_FAIL, whatever could not be had.
[[nodiscard]] HRESULT ZELInstantiateAlone(const KORUnicodeString& lateType, const KORUnicodeString& name,
                                          KORIContainer* container, KORISpecObject_var& created);
