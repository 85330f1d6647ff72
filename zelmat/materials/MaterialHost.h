#pragma once

#include <string>

#include "interfaces/KORISpecObject.h"
#include "zelmat/materials/HostPlatform.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A document in memory in which materials are made: materials of the platform, with the analysis data that
/// the module's factory makes for each.
class MaterialHost {
public:
    /// `catalogs`: the folder of the feature catalogs.
    explicit MaterialHost(const std::string& catalogs) : platform_(catalogs) {}

    /// A new material of the platform, of that name, with analysis data hung on it; answers the
    /// latter. Null, and a finding, when that cannot be made.
    KORISpecObject_var NewMaterial(const Material& material, Findings& findings);

    std::size_t FeatureCount() { return platform_.Document().FeatureCount(); }  ///< in the document

private:
    HostPlatform platform_;
};

}  // namespace zelmat
