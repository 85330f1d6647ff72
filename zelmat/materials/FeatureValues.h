#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interfaces/KORISpecAttrAccess.h"

namespace zelmat {

/// The attributes of one feature by name, as plain values. What its late type lacks reads as never valued,
/// and is not written.
class FeatureValues {
public:
    explicit FeatureValues(KORISpecObject* feature) : access_(KORISpecAttrAccess_var::Of(feature)) {}

    std::string Text(const char* name) const;
    bool Flag(const char* name) const;
    std::optional<std::vector<double>> Numbers(const char* name) const;  ///< nothing: never valued
    std::vector<KORISpecObject_var> Features(const char* name) const;    ///< without empty entries
    KORISpecObject_var Feature(const char* name) const;                  ///< null: none

    void SetText(const char* name, std::string_view text) const;
    void SetFlag(const char* name, bool flag) const;
    void SetNumbers(const char* name, const std::vector<double>& numbers) const;
    void SetFeature(const char* name, KORISpecObject* feature) const;  ///< null: none
    void Append(const char* name, KORISpecObject* feature) const;
    /// The whole list; one that is the same already is left alone.
    void SetFeatures(const char* name, const std::vector<KORISpecObject_var>& features) const;
    void Empty(const char* name) const;  ///< a list

private:
    KORISpecAttrKey* Key(const char* name) const;  ///< null when there is none

    KORISpecAttrAccess_var access_;
};

}  // namespace zelmat
