#pragma once

#include "zelmat/materials/MaterialCard.h"

class ZELIMaterial;

namespace zelmat {

/// User material: what a routine of the analyst's own is given.
struct UserMaterialAccess {
    static std::vector<WriteStatus> Write(ZELIMaterial& material, const CardData& data);
    static StoredBlock Read(ZELIMaterial& material, const CardBlock& block);
};

}  // namespace zelmat
