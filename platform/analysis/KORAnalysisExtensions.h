#pragma once

#include <span>

#include "framework/KORDictionary.h"

/// Every interface that the platform implements on features, by late type or role, registered in the
/// dictionary by the first call. Whoever sets up a platform calls it: nothing else names these classes, and a
/// linker leaves out what nobody names.
std::span<const KORFillDictionary> KORAnalysisExtensions();
