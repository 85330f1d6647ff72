#pragma once

#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "interfaces/KORISpecObject.h"

/// The operations of a caller of the module: a library that links it, as the dialogs do, and is loaded after
/// it and unloaded before it. Found by their names.
extern "C" {

/// Stores one density and reads it back through an extension of its own; the density read, or -1.
using ZELStoreDensity = double (*)(KORISpecObject* material, double density);

/// Keeps a proxy on the material's density behavior, and lets it go. The count of its holders.
using ZELHoldDensity = int (*)(KORISpecObject* material);
using ZELDropDensity = void (*)();

/// Gives an enabled, temperature-independent elastic behavior two rows. The result code carries the warning
/// that the table was cut.
using ZELCutElasticTable = HRESULT (*)(KORISpecObject* material);

/// A copy of the elastic table in memory, which the caller of this deletes.
using ZELTakeElasticTable = ZELCftArrayZELCftArrayDouble* (*)(KORISpecObject* material);
}
