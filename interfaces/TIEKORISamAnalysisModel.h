#pragma once

#include "framework/KORTie.h"
#include "interfaces/KORISamAnalysisModel.h"

/// Binding of KORISamAnalysisModel to an implementing class.
template <class Implementation>
class TIEKORISamAnalysisModel final : public KORTie<KORISamAnalysisModel, Implementation> {
public:
    using KORTie<KORISamAnalysisModel, Implementation>::KORTie;
};
