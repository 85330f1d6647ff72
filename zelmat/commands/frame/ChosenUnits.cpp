#include "zelmat/commands/frame/ChosenUnits.h"

#include "zelmat/settings/ConfigurationFile.h"

namespace zelmat {

namespace {

std::optional<UnitChoice> ConfiguredUnits(Findings& findings) {
    const auto settings = ConfigurationFile().Read(findings);
    return settings ? std::optional(settings->TextUnits()) : std::nullopt;
}

}  // namespace

std::optional<UnitChoice> ChosenUnits(const CommonOptions& options, Findings& findings) {
    const bool forPrograms = options.json || options.csv;
    auto base = forPrograms ? UnitChoice::Si() : ConfiguredUnits(findings);
    if (!base || options.units.empty()) return base;
    const auto chosen = UnitChoice::Read(options.units, *base);
    if (chosen) return *chosen;
    findings.Add({FindingKind::USAGE, {"--units", 0}, "wrong-units", chosen.Error().text, {}});
    return std::nullopt;
}

std::optional<UnitChoice> DrawnUnits(CommonOptions options, Findings& findings) {
    options.json = options.csv = false;
    return ChosenUnits(options, findings);
}

}  // namespace zelmat
