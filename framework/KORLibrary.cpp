#include "framework/KORLibrary.h"

#include <dlfcn.h>

std::unique_ptr<KORLibrary> KORLibrary::Load(const std::string& path, const char* module,
                                             std::string& error) {
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        error = dlerror();
        return nullptr;
    }
    return std::unique_ptr<KORLibrary>(new KORLibrary(handle, KORModule::Of(module)));
}

HRESULT KORLibrary::Unload() {
    if (!handle_ || module_.LiveObjects() != 0) return E_FAIL;
    dlclose(handle_);
    handle_ = nullptr;
    return S_OK;
}

void* KORLibrary::Symbol(const char* name) const {
    return handle_ ? dlsym(handle_, name) : nullptr;
}

KORLibrary::~KORLibrary() {
    Unload();
}
