#pragma once

#include <optional>
#include <string>

#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/layups/StoredLayup.h"
#include "zelmat/materials/HostPlatform.h"

namespace zelmat {

/// A document in memory with an analysis model in which one layup is made: by the module's factory, of
/// materials of the platform.
class LayupHost {
public:
    /// `catalogs`: the folder of the feature catalogs.
    explicit LayupHost(const std::string& catalogs) : platform_(catalogs) {}

    /// Makes the card's layup with its materials and layers. False, and a finding, when that fails.
    [[nodiscard]] bool Make(const LayupCard& card, Findings& findings);

    /// Puts a shell section that references the layup beside it into the property set. False when the
    /// document has no layup.
    [[nodiscard]] bool AddSection(int sectionType);

    /// The layup, looked up in the analysis model and read layer by layer. Nothing when there is none, or a
    /// layer cannot be read.
    std::optional<StoredLayup> Read();

private:
    HRESULT MakeLayup(const LayupCard& card);
    KORISpecObject_var NewMaterial(const std::string& name);
    KORISpecObject_var FindInModel(const char* lateType);  ///< the first one; null when there is none

    HostPlatform platform_;
};

}  // namespace zelmat
