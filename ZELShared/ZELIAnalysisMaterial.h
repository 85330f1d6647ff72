#pragma once

#include "framework/KORVar.h"

inline const KORIID IID_ZELIAnalysisMaterial = KORName::Intern("ZELIAnalysisMaterial");

/// Marks the platform materials for which there can be analysis data.
class ZELIAnalysisMaterial : public KORInterface<IID_ZELIAnalysisMaterial> {
protected:
    ~ZELIAnalysisMaterial() = default;
};

using ZELIAnalysisMaterial_var = KORVar<ZELIAnalysisMaterial>;
