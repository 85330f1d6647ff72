#pragma once

#include "zelmat/materials/Material.h"

class ZELIMaterial;

namespace zelmat {

/// Plasticity: a hardening type, which the block has in words of its own, and the table that belongs to it.
struct PlasticAccess {
    static std::vector<std::string> HardeningWords();  ///< in the block: "isotropic", ...

    static std::vector<WriteStatus> Write(ZELIMaterial& material, const Block& block);
    static HRESULT Read(ZELIMaterial& material, Block& block);
};

}  // namespace zelmat
