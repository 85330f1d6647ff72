#pragma once

#include "framework/KORExport.h"

/// Base of every object whose code lies in this module. It counts them, so that the library is not unloaded
/// under objects that somebody still holds; it holds nothing itself.
class KOR_EXPORT ZELModuleObject {
protected:
    ZELModuleObject();
    ZELModuleObject(const ZELModuleObject&);
    ZELModuleObject& operator=(const ZELModuleObject&) = default;
    ~ZELModuleObject();
};
