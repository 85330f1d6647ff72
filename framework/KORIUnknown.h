#pragma once

#include <cstdint>

#include "framework/KORName.h"
#include "framework/KORStatus.h"

class KORBaseUnknown;
class KORMetaClass;

inline const KORIID IID_KORIUnknown = KORName::Intern("KORIUnknown");

/// Root of every interface: query, counting and the four dispatch operations. It holds no state;
/// KORBaseUnknown is its one counted implementation.
class KORIUnknown {
public:
    static KORIID Iid() { return IID_KORIUnknown; }

    /// Asks the component behind this object for another of its interfaces. On success *out is that interface
    /// with one reference for the caller; on failure the status is negative and *out is null.
    virtual HRESULT QueryInterface(KORIID iid, void** out) = 0;
    virtual std::uint32_t AddRef() = 0;   ///< the count after it
    virtual std::uint32_t Release() = 0;  ///< the count after it; the object is gone at 0

    /// Late-bound calls by name. No object of this platform offers any: 0 type infos, E_NOTIMPL for the rest.
    virtual HRESULT GetTypeInfoCount(std::uint32_t* count) = 0;
    virtual HRESULT GetTypeInfo(std::uint32_t index, std::uint32_t locale, void** info) = 0;
    virtual HRESULT GetIDsOfNames(const char* const* names, std::uint32_t count, std::int32_t* ids) = 0;
    virtual HRESULT Invoke(std::int32_t id, void* arguments, void* result) = 0;

protected:
    ~KORIUnknown() = default;  ///< destroyed by its counter only
};

/// The class record of an interface, made on first use.
const KORMetaClass& KORInterfaceMetaClass(KORIID iid);

/// Base of every interface: its identifier and its own meta-class. An interface adds its operations, all
/// pure, and a protected destructor, since objects are destroyed by their counter only. It holds no state.
template <const KORIID& iid>
class KORInterface : public KORIUnknown {
public:
    static KORIID Iid() { return iid; }
    static const KORMetaClass& MetaObject() { return KORInterfaceMetaClass(iid); }

protected:
    ~KORInterface() = default;
};
