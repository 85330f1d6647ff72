#include "zelmat/materials/StoredMeaning.h"

#include "zelmat/materials/HardeningMeaning.h"
#include "zelmat/materials/OgdenMeaning.h"

namespace zelmat {

bool IsInStoredMeaning(const Block& block) {
    return !IsOtherHardening(block) && !IsOtherOgden(block);
}

std::optional<Block> ToStoredMeaning(const Block& block, const Material& material, Findings& findings) {
    if (IsOtherHardening(block)) return ToTrueOverPlastic(block, material, findings);
    if (IsOtherOgden(block)) return ToStoredOgden(block, material, findings);
    return block;
}

}  // namespace zelmat
