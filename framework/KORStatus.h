#pragma once

#include <cstdint>

/// Result of every operation that can fail: one signed 32-bit status, wherever a "long" or a status is meant.
/// (A 64-bit long would make 0x80004005 positive.) Negative values are failures.
using HRESULT = std::int32_t;

constexpr HRESULT S_OK = 0;
constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001u);  ///< the four dispatch operations
constexpr HRESULT E_NOINTERFACE =
    static_cast<HRESULT>(0x80004002u);  ///< the object does not offer the interface
constexpr HRESULT E_FAIL =
    static_cast<HRESULT>(0x80004005u);  ///< missing key, failed step, inconsistent data
constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);  ///< instance creators only

constexpr bool SUCCEEDED(HRESULT status) {
    return status >= 0;
}
constexpr bool FAILED(HRESULT status) {
    return status < 0;
}
