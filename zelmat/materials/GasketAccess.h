#pragma once

#include "zelmat/materials/Material.h"

class ZELIMaterial;

namespace zelmat {

/// The thickness behavior of a gasket: single values and three tables. An unloading table that is
/// left out is stored empty.
struct GasketAccess {
    static std::vector<std::string> YieldOnsetWords();  ///< in the block: "relative", "closure"

    static std::vector<WriteStatus> Write(ZELIMaterial& material, const Block& block);
    static HRESULT Read(ZELIMaterial& material, Block& block);
};

}  // namespace zelmat
