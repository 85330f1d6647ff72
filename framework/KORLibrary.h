#pragma once

#include <memory>
#include <string>

#include "framework/KORModule.h"
#include "framework/KORStatus.h"

/// A module of the component framework, loaded as a shared library. Its classes register themselves while its
/// code comes into the process and take their records and dictionary entries away when the code goes. That is
/// when the last holder of the library lets go, be it another KORLibrary, a dlopen or a program that links
/// it.
class KORLibrary {
public:
    /// Loads the library at `path`, which holds the framework module `module`. On failure the result is null
    /// and `error` says which file could not be loaded, and why.
    [[nodiscard]] static std::unique_ptr<KORLibrary> Load(const std::string& path, const char* module,
                                                          std::string& error);

    /// Lets go of the library. E_FAIL, and it is kept, while any object of the module is alive; E_FAIL, too,
    /// when it was let go of already. What the module handed out and does not count (lists, strings, errors,
    /// tables) stays good.
    HRESULT Unload();

    /// An exported symbol, or null.
    void* Symbol(const char* name) const;

    ~KORLibrary();  ///< unloads if nothing of the module is alive; otherwise the library stays in the process
    KORLibrary(const KORLibrary&) = delete;
    KORLibrary& operator=(const KORLibrary&) = delete;

private:
    KORLibrary(void* handle, KORModule& module) : handle_(handle), module_(module) {}

    void* handle_;  ///< null once unloaded
    KORModule& module_;
};
