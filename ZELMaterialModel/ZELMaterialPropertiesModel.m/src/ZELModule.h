#pragma once

/// The framework module to which every registered class belongs.
inline constexpr const char* kZELModule = "ZELMaterialModel";
