#pragma once

#include "interfaces/KORIContainer.h"
#include "interfaces/KORISpecObject.h"

inline const KORIID IID_KORICatalog = KORName::Intern("KORICatalog");
inline const KORIID IID_KORICatalogAccess = KORName::Intern("KORICatalogAccess");

/// An open catalog: the start-ups of late types.
class KORICatalog : public KORInterface<IID_KORICatalog> {
public:
    /// The start-up of a late type, as the interface of that name ("KORISpecObject"), with one reference
    /// for the caller. E_FAIL when the catalog lacks the type or the start-up lacks the interface; *out
    /// is null then.
    [[nodiscard]] virtual HRESULT RetrieveStartUp(const KORUnicodeString& lateType, const char* interfaceName,
                                                  void** out) = 0;

protected:
    ~KORICatalog() = default;
};

using KORICatalog_var = KORVar<KORICatalog>;

/// Offered by containers in which catalogs can be opened; used through AccessCatalog.
class KORICatalogAccess : public KORInterface<IID_KORICatalogAccess> {
public:
    /// Opens the catalog of that file name. `client` says which application asks, for platforms that license
    /// their catalogs. A failure when there is no such catalog or it is broken; `opened` is untouched then.
    [[nodiscard]] virtual HRESULT OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString& client,
                                              KORICatalog_var& opened) = 0;

protected:
    ~KORICatalogAccess() = default;
};

using KORICatalogAccess_var = KORVar<KORICatalogAccess>;

/// Opens a catalog by file name and client identifier, for instantiation in a container. The container's
/// platform decides where catalogs lie. E_FAIL for a null container or one that opens no catalogs; otherwise
/// the platform's own status. `opened` is set on success only.
[[nodiscard]] inline HRESULT AccessCatalog(const KORUnicodeString& catalog, const KORUnicodeString& client,
                                           KORIContainer* container, KORICatalog_var& opened) {
    const auto access = KORICatalogAccess_var::Of(container);
    return access ? access->OpenCatalog(catalog, client, opened) : E_FAIL;
}
