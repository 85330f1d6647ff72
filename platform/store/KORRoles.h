#pragma once

/// What a late type can be to an analysis model, whatever it is called; its catalog says so. A role is a name
/// of the dictionary's: the platform binds its interfaces to it as to a late type, and a feature that does
/// not find an interface under its late type finds it under its role.
inline constexpr const char* kKORModelRole = "KORAnalysisModelRole";    ///< the root of an analysis model
inline constexpr const char* kKORSetRole = "KORAnalysisSetRole";        ///< holds entities and other sets
inline constexpr const char* kKOREntityRole = "KORAnalysisEntityRole";  ///< can tell which sets hold it
