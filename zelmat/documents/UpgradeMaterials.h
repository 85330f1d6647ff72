#pragma once

#include <map>
#include <string>
#include <unordered_map>

#include "platform/document/KORUpgradeRun.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/CoefficientWatch.h"

namespace zelmat {

/// What an upgrade run did to a document, ready to be told.
struct UpgradeReport {
    KORUpgradeReport run;
    std::uint32_t lastBefore = 0;  ///< the highest feature number there was before the run
    /// Late types by feature number, of the features that lie in the document after the run.
    std::unordered_map<std::uint32_t, std::string> lateTypes = {};
    /// What the conversion of units did, by the number of the material that was upgraded.
    std::map<std::uint32_t, ConvertedCoefficients> converted = {};
};

/// Runs the upgrade of the document's materials, unless it would have to guess or a material would lose
/// coefficients: then the run is refused, and `findings` say why. Otherwise the platform's unit of pressure
/// is the stored one afterwards, as all coefficients are in it. `file` is what findings call the document.
/// Diagnostic lines of the module become findings.
UpgradeReport UpgradeMaterials(KORMemoryDocument& document, const std::string& file, Findings& findings);

/// A finding for each material whose upgrade failed or that needs one still.
void ReportUpgrade(const UpgradeReport& report, const std::string& file, Findings& findings);

/// The platform's current unit of pressure: its symbol; empty where nobody has chosen one. On a platform that
/// is one document's alone it is the one that the document names.
std::string ChosenPressureUnit(KORMemoryDocument& document);
void ChoosePressureUnit(KORMemoryDocument& document, const std::string& symbol);

/// Keeps the unit of pressure that a document names through an upgrade, at the end of its scope. With the
/// upgrade undone the older coefficients are in it again; converted ones say so themselves.
class KeptPressureUnit {
public:
    explicit KeptPressureUnit(KORMemoryDocument& document)
        : document_(document), named_(ChosenPressureUnit(document)) {}
    ~KeptPressureUnit() {
        if (!named_.empty()) ChoosePressureUnit(document_, named_);
    }
    KeptPressureUnit(const KeptPressureUnit&) = delete;
    KeptPressureUnit& operator=(const KeptPressureUnit&) = delete;

private:
    KORMemoryDocument& document_;
    const std::string named_;
};

/// Coefficients in this document are in the stored unit of pressure.
void SetStoredPressureUnit(KORMemoryDocument& document);

}  // namespace zelmat
