#pragma once

#include <string>
#include <vector>

#include "platform/document/KORUpgradeRun.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// The hyperelastic coefficients that count in a document before an upgrade. An upgrade takes them along with
/// the material that it moves, and knows of no other material that has them, too.
class KeptCoefficients {
public:
    /// Looks at the materials as they are now, which are the features of that late type in a container.
    KeptCoefficients(const KORMemoryDocument& document, const KORName* materialType);

    /// Has every material as many rows after the run as before? A finding for each that has not.
    bool AreKept(KORMemoryDocument& document, const KORUpgradeReport& run, const std::string& file,
                 Findings& findings) const;

private:
    struct Kept {
        std::uint32_t material;  ///< number of its feature
        std::string name;
        std::size_t rows;
    };
    std::vector<Kept> before_;  ///< of behaviors that are switched on
};

}  // namespace zelmat
