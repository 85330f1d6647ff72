#pragma once

#include "zelmat/materials/MaterialCard.h"

class ZELIMaterial;

namespace zelmat {

/// Hyperelasticity: the potential's keyword on the behavior; its order and its coefficients on a feature of
/// their own. A material holds one potential; writing another takes its place.
struct HyperelasticAccess {
    static std::vector<WriteStatus> Write(ZELIMaterial& material, const CardData& data);
    static StoredBlock Read(ZELIMaterial& material, const CardBlock& block);
};

}  // namespace zelmat
