#pragma once

/// The framework module to which the add-on's shared extensions and components belong.
inline constexpr const char* kZELSharedModule = "ZELShared";
