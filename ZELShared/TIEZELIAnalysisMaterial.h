#pragma once

#include "ZELShared/ZELIAnalysisMaterial.h"
#include "framework/KORTie.h"

/// Binding of ZELIAnalysisMaterial to an implementing class.
template <class Implementation>
class TIEZELIAnalysisMaterial final : public KORTie<ZELIAnalysisMaterial, Implementation> {
public:
    using KORTie<ZELIAnalysisMaterial, Implementation>::KORTie;
};
