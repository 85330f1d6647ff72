#include "zelmat/commands/TextDocumentMaterials.h"

#include <nlohmann/json.hpp>

#include "platform/document/KORTextDocument.h"
#include "zelmat/commands/UpgradeReport.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/DocumentMaterials.h"
#include "zelmat/materials/HostPlatform.h"

namespace zelmat {

namespace {

/// False when the run was refused or failed.
bool BringUpToDate(KORMemoryDocument& document, const std::string& name, Findings& findings) {
    Findings own;
    const UpgradeReport report = [&] {
        const DiagnosticLines diagnostics(own, name, "upgrade");
        return UpgradeMaterials(document, name, own);
    }();
    ReportUpgrade(report, name, own);
    findings.Add(own);
    return !report.run.refused && !own.HasErrors();
}

}  // namespace

bool IsTextDocument(const std::string& text) {
    // Most texts are told without reading them as JSON.
    if (text.find("\"features\"") == std::string::npos) return false;
    const auto json = nlohmann::json::parse(text, nullptr, false);
    return json.is_object() && json.contains("format") && json.contains("features");
}

std::vector<Material> ReadTextDocument(const std::string& text, const std::string& name,
                                       const std::string& catalogs, Findings& findings) {
    HostPlatform host(catalogs);
    KORTextDocument form(host.Document());
    if (!host.OpenCatalog(findings)) return {};
    KORFileError error;
    if (!form.ReadText(text, name, error)) {
        findings.Add(UnreadableFile(name, error, "broken-document"));
        return {};
    }
    const KORStep looking(host.Document(), "look");  // never committed
    if (!BringUpToDate(host.Document(), name, findings)) return {};
    std::vector<Material> materials;
    for (const DocumentMaterial& material : MaterialsOf(host.Document())) {
        materials.push_back(ReadDocumentMaterial(material, name, findings));
    }
    return materials;
}

}  // namespace zelmat
