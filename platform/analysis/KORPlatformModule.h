#pragma once

/// The framework module to which the platform's own extensions belong.
inline constexpr const char* kKORPlatformModule = "KORPlatform";
