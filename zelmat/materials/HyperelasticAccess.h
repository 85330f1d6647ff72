#pragma once

#include "zelmat/materials/Material.h"

class ZELIMaterial;

namespace zelmat {

/// Hyperelasticity: the potential's keyword on the behavior; its order and its coefficients on a feature of
/// their own. A material holds one potential; writing another takes its place.
struct HyperelasticAccess {
    static std::vector<WriteStatus> Write(ZELIMaterial& material, const Block& block);
    static HRESULT Read(ZELIMaterial& material, Block& block);
};

}  // namespace zelmat
