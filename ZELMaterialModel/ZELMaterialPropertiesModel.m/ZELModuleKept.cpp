// Compiled into every program that links the module. Its classes register themselves as it loads, so a
// program may well name nothing of it, and a linker that leaves out what nobody names would leave out the
// module. This names one of its exported creators.

class KORBaseUnknown;
class KORIUnknown;

extern "C" KORIUnknown* CreateTIEZELIMaterialZELMaterial(KORBaseUnknown* implementation,
                                                         KORBaseUnknown* outer);

namespace {

[[gnu::used]] KORIUnknown* (*const kModuleKept)(KORBaseUnknown*,
                                                KORBaseUnknown*) = CreateTIEZELIMaterialZELMaterial;

}  // namespace
