#pragma once

#include "zelmat/materials/MaterialCard.h"

class ZELIMaterial;

namespace zelmat {

/// The thickness behavior of a gasket: single values and three tables. An unloading table that the card
/// leaves out is stored empty.
struct GasketAccess {
    static std::vector<std::string> YieldOnsetWords();  ///< on the card: "relative", "closure"

    static std::vector<WriteStatus> Write(ZELIMaterial& material, const CardData& data);
    static StoredBlock Read(ZELIMaterial& material, const CardBlock& block);
};

}  // namespace zelmat
