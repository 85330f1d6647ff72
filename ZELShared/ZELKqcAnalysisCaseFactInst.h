#pragma once

#include "framework/KORBaseUnknown.h"

/// The instance factory of the analysis-case factory, as a code extension of the component's name.
class ZELKqcAnalysisCaseFactInst final : public KORBaseUnknown {
    KORDeclareClass

    [[nodiscard]] HRESULT CreateInstance(void** out);
};
