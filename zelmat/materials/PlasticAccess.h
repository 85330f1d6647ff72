#pragma once

#include "zelmat/materials/MaterialCard.h"

class ZELIMaterial;

namespace zelmat {

/// Plasticity: a hardening type, which the card has in words of its own, and the table that belongs to it.
struct PlasticAccess {
    static std::vector<std::string> HardeningWords();  ///< on the card: "isotropic", ...

    static std::vector<WriteStatus> Write(ZELIMaterial& material, const CardData& data);
    static StoredBlock Read(ZELIMaterial& material, const CardBlock& block);
};

}  // namespace zelmat
