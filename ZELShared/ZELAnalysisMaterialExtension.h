#pragma once

#include "framework/KORBaseUnknown.h"

/// Marks the platform's materials ("KORMaterialLT") with ZELIAnalysisMaterial: each of them can have analysis
/// data.
class ZELAnalysisMaterialExtension final : public KORBaseUnknown {
    KORDeclareClass
};
