#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/document/KORUpgradeRun.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/SharedCoefficients.h"
#include "zelmat/materials/TableKind.h"

namespace zelmat {

/// A coefficient before and after the conversion to the stored unit of pressure.
struct ConvertedCoefficient {
    std::string name;  ///< of its column: "C10"; "column 5" beyond what its model names
    double before = 0.0;
    double after = 0.0;
    double factor = 1.0;
};

/// What the upgrade of units did to one material.
struct ConvertedCoefficients {
    std::string model;
    int order = 0;
    std::string from, to;  ///< units of pressure
    std::vector<std::vector<ConvertedCoefficient>> rows;
};

/// Watches the coefficients while older materials are upgraded. The module scales what it finds by what the
/// document says; this tells what it did, number by number, and refuses what would be a guess: a unit of
/// pressure that nobody named, a model that is not known, an order that its model cannot have. It refuses,
/// too, what would come out wrong because several materials have the same coefficients: those would be scaled
/// twice, or not at all. Where the factor is 1, or nothing is to be converted, nothing is refused.
class CoefficientWatch final : public KORUpgradeWatch {
public:
    /// The platform's current unit of pressure is the document's; while none is chosen, it names none.
    CoefficientWatch(const KORUnitsService& units, std::string file, Findings& findings);

    bool MayUpgrade(KORFeature& feature, const KORUpgradedFeature& told) override;
    void Upgraded(KORFeature& now, const KORUpgradedFeature& told) override;

    /// By the number of the feature that was upgraded.
    const std::map<std::uint32_t, ConvertedCoefficients>& Converted() const { return converted_; }

private:
    bool IsNoGuess(const std::string& material);
    bool MayStay(const std::string& material);
    bool IsOnceOnly(const std::string& material);
    void CheckWidths(const std::string& material);
    void CheckResults(const std::string& material, const ConvertedCoefficients& converted);
    double FactorOf(const ColumnKind& column) const;
    std::vector<ColumnKind> Columns() const;  ///< of the older rows' model; none when it is not known
    void Add(FindingKind kind, const char* code, std::string text, std::vector<std::string> details);

    const std::string file_;
    Findings& findings_;
    const bool unitNamed_;
    const std::string unit_;
    const std::string stored_;
    const double factor_;
    std::optional<OlderCoefficients>
        older_;  ///< of the feature that is being upgraded, if it has rows to convert
    std::optional<SharedCoefficients> shared_;  ///< of the document, once it had rows to convert
    std::map<std::uint32_t, ConvertedCoefficients> converted_;
};

}  // namespace zelmat
