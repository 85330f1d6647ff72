#pragma once

#include "framework/KORBaseUnknown.h"

/// Base of a platform object that implements interfaces I... itself, without bindings: the operations of
/// KORIUnknown that every I brings along are forwarded once, here, to the one counted implementation.
template <class... I>
class KORImplements : public KORBaseUnknown, public I... {
public:
    HRESULT QueryInterface(KORIID iid, void** out) override {
        return KORBaseUnknown::QueryInterface(iid, out);
    }
    std::uint32_t AddRef() final { return KORBaseUnknown::AddRef(); }
    std::uint32_t Release() final { return KORBaseUnknown::Release(); }
    HRESULT GetTypeInfoCount(std::uint32_t* count) final { return KORBaseUnknown::GetTypeInfoCount(count); }
    HRESULT GetTypeInfo(std::uint32_t index, std::uint32_t locale, void** info) final {
        return KORBaseUnknown::GetTypeInfo(index, locale, info);
    }
    HRESULT GetIDsOfNames(const char* const* names, std::uint32_t count, std::int32_t* ids) final {
        return KORBaseUnknown::GetIDsOfNames(names, count, ids);
    }
    HRESULT Invoke(std::int32_t id, void* arguments, void* result) final {
        return KORBaseUnknown::Invoke(id, arguments, result);
    }

protected:
    /// QueryInterface for a class that always offers all of I...: a main object answers for itself what it
    /// implements, without a virtual call. Most queries ask for that.
    HRESULT QueryOwnFirst(KORIID iid, void** out) {
        if (IsMainObject()) {
            void* found = KORImplements::OwnInterface(iid);
            if (!found && iid == IID_KORBaseUnknown) found = static_cast<KORBaseUnknown*>(this);
            if (found) {
                KORBaseUnknown::AddRef();
                *out = found;
                return S_OK;
            }
        }
        return KORBaseUnknown::QueryInterface(iid, out);
    }

    void* OwnInterface(KORIID iid) override {
        void* found = nullptr;
        static_cast<void>(((iid == I::Iid() && (found = static_cast<I*>(this))) || ...));
        return found;
    }
};
