#include "framework/KORTrace.h"

namespace {

/// The module's trace channel, there from load to unload. No operation writes to it; the platform's trace
/// settings expect to find it.
const KORTrace trace("KORZELMaterialPropertiesModelTrace", "Traces for module ZELMaterialPropertiesModel", 1,
                     "STDERR", 1024);

}  // namespace
