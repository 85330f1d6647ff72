#pragma once

#include "zelmat/materials/Material.h"

class ZELIMaterial;

namespace zelmat {

/// User material: what a routine of the analyst's own is given.
struct UserMaterialAccess {
    static std::vector<WriteStatus> Write(ZELIMaterial& material, const Block& block);
    static HRESULT Read(ZELIMaterial& material, Block& block);
};

}  // namespace zelmat
