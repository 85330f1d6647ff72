#include "zelmat/commands/UpgradeCommand.h"

#include <optional>

#include "platform/document/KORTextDocument.h"
#include "zelmat/commands/JsonReport.h"
#include "zelmat/commands/UpgradeReport.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/HostPlatform.h"

namespace zelmat {

namespace {

bool ReadDocument(KORTextDocument& text, const std::string& path, Findings& findings) {
    KORJsonError error;
    if (text.Read(path, error)) return true;
    findings.Add(UnreadableFile(path, error, "broken-document"));
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

ExitCode UpgradeCommand::Run(std::ostream& out, std::ostream& err) const {
    Findings findings;
    std::optional<UpgradeReport> report;
    bool written = false;
    HostPlatform host(catalogs);
    KORTextDocument text(host.Document());
    if (host.OpenCatalog(findings) && ReadDocument(text, document, findings)) {
        {
            const DiagnosticLines diagnostics(findings, document, "upgrade");
            report = UpgradeMaterials(host.Document());
        }
        ReportUpgrade(*report, document, findings);
        if (!output.empty()) written = WriteDocument(text, output, document, findings);
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
