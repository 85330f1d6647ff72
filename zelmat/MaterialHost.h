#pragma once

#include <memory>
#include <string>

#include "interfaces/KORISpecObject.h"
#include "zelmat/Findings.h"
#include "zelmat/MaterialCard.h"

namespace zelmat {

/// The platform under the module: a document in memory, in which materials are made. The only place of the
/// program that knows both the platform and which late types the module brings.
class MaterialHost {
public:
    /// `catalogs`: the folder of the feature catalogs.
    explicit MaterialHost(const std::string& catalogs);
    ~MaterialHost();  ///< closes the document
    MaterialHost(const MaterialHost&) = delete;
    MaterialHost& operator=(const MaterialHost&) = delete;

    /// A new material feature with a sub-feature for each behavior, named as on the card. Null, and a
    /// finding, when the catalog cannot be opened or lacks one of the types.
    KORISpecObject_var NewMaterial(const MaterialCard& card, Findings& findings);

private:
    struct Ground;
    std::unique_ptr<Ground> ground_;
};

}  // namespace zelmat
