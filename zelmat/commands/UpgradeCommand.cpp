#include "zelmat/commands/UpgradeCommand.h"

#include <optional>

#include "platform/analysis/KORUnitsService.h"
#include "platform/document/KORTextDocument.h"
#include "zelmat/commands/JsonReport.h"
#include "zelmat/commands/UpgradeReport.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/HostPlatform.h"

namespace zelmat {

namespace {

constexpr const char* kPressure = "PRESSURE";

bool ReadDocument(KORTextDocument& text, const std::string& path, Findings& findings) {
    KORJsonError error;
    if (text.Read(path, error)) return true;
    findings.Add(UnreadableFile(path, error, "broken-document"));
    return false;
}

/// False, and a finding, when the document names another unit of pressure than the one that is given.
bool TakePressureUnit(KORUnitsService& units, const std::string& given, const std::string& path,
                      Findings& findings) {
    if (given.empty()) return true;
    const KORUnitType& type = *KORFindUnitType(kPressure);
    const std::string named(units.CurrentUnit(type).symbol);
    if (!units.IsChosen(type) || named == given) return units.SetCurrentUnit(kPressure, given);
    findings.Add({FindingKind::ERROR,
                  {path, 0},
                  "other-pressure-unit",
                  "the document names another unit of pressure than --pressure-unit",
                  {named + ", not " + given}});
    return false;
}

/// False, and a finding, when the document cannot be put there.
bool WriteDocument(const KORTextDocument& text, const std::string& path, const std::string& input,
                   Findings& findings) {
    std::string reason;
    const auto written = text.Write(reason);
    if (written) return WriteOutputFile(path, *written, {input}, findings).has_value();
    findings.Add({FindingKind::UNREADABLE, {path, 0}, "not-written", "cannot be written: " + reason, {}});
    return false;
}

}  // namespace

std::vector<std::string> UpgradeCommand::PressureUnits() {
    std::vector<std::string> symbols;
    for (const KORUnit& unit : KORFindUnitType(kPressure)->units) symbols.emplace_back(unit.symbol);
    return symbols;
}

ExitCode UpgradeCommand::Run(std::ostream& out, std::ostream& err) const {
    Findings findings;
    std::optional<UpgradeReport> report;
    bool written = false;
    HostPlatform host(catalogs);
    KORTextDocument text(host.Document());
    KORUnitsService& units = host.Document().Platform().Units();
    if (host.OpenCatalog(findings) && ReadDocument(text, document, findings) &&
        TakePressureUnit(units, pressureUnit, document, findings)) {
        {
            const DiagnosticLines diagnostics(findings, document, "upgrade");
            report = UpgradeMaterials(host.Document(), document, findings);
        }
        ReportUpgrade(*report, document, findings);
        const bool wanted = !output.empty() && !report->run.refused;
        if (wanted) written = WriteDocument(text, output, document, findings);
    }

    if (json) {
        nlohmann::ordered_json told = {{"upgrade", nullptr}, {"written", nullptr}};
        if (report) told["upgrade"] = ToJson(*report);
        if (written) told["written"] = output;
        told["findings"] = ToJson(findings);
        out << told.dump(2) << '\n';
        return findings.Exit();
    }
    if (report) PrintUpgrade(out, *report);
    if (written) out << "\nwritten: " << output << '\n';
    for (const Finding& finding : findings.All()) err << FindingLine(finding) << '\n';
    return findings.Exit();
}

}  // namespace zelmat
