#include "zelmat/materials/MaterialWriter.h"

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORError.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/AnalysisData.h"
#include "zelmat/materials/BrokenRules.h"
#include "zelmat/materials/StatusText.h"
#include "zelmat/materials/StoredMeaning.h"

namespace zelmat {

namespace {

/// The warnings that a behavior can answer, in words. Their own texts lie with the dialogs, not with the
/// module.
Finding Warning(const std::string& name, const Table& table, const Place& place, const KORInputError& error) {
    if (error.MessageCatalog() == "ZELMaterialPropertiesElasticDlg" &&
        error.MessageKey() == "Elastic.TempetarureIndepndent.Warning.Message") {
        return {FindingKind::WARNING,
                place,
                "table-cut",
                name + " is not temperature dependent: only the first row was kept",
                {std::to_string(table.Rows()) + " rows given", "1 kept",
                 "make it temperature dependent or give one row"}};
    }
    return {FindingKind::WARNING,
            place,
            "module-warning",
            std::string(error.MessageCatalog().c_str()) + ": " + error.MessageKey().c_str(),
            {}};
}

void ReportTable(const Block& block, const WriteStatus& answer, const std::string& file, Findings& findings) {
    const Table& table = *answer.table;
    const std::string name = block.kind->TableName(*table.kind);
    if (SUCCEEDED(answer.status)) {
        const KORErrorRecords::Entry* warning = KORError::Find(answer.status);
        if (warning) findings.Add(Warning(name, table, {file, table.origin.Line()}, *warning->error));
        return;
    }
    const auto broken = BrokenRules(*block.kind, table, file);
    for (const Finding& finding : broken) findings.Add(finding);
    if (!broken.empty()) return;
    findings.Add({FindingKind::ERROR,
                  {file, table.origin.Line()},
                  "not-written",
                  name + " could not be written",
                  {StatusText(answer.status)}});
}

void Report(const Block& block, const WriteStatus& answer, const std::string& file, Findings& findings) {
    if (answer.table) {
        ReportTable(block, answer, file, findings);
        return;
    }
    findings.Add({FindingKind::ERROR,
                  {file, block.origin.Line()},
                  "not-written",
                  "the settings of " + block.kind->name + " could not be written",
                  {StatusText(answer.status)}});
}

void WriteBlock(ZELIMaterial& behaviors, const Block& block, const std::string& file, Findings& findings) {
    for (const WriteStatus& answer : block.kind->write(behaviors, block)) {
        Report(block, answer, file, findings);
    }
}

void WriteHeatGeneration(ZELIMaterial& behaviors, const Material& material, Findings& findings) {
    if (!material.heatGeneration) return;
    const auto data = KORGetImplementation<ZELMaterial>(&behaviors);
    const HRESULT status = data ? data->SetHeatGenerationEnabled(*material.heatGeneration) : E_NOINTERFACE;
    if (SUCCEEDED(status)) return;
    findings.Add({FindingKind::ERROR,
                  {material.file, 0},
                  "not-written",
                  "the heat generation of " + material.name + " could not be written",
                  {StatusText(status)}});
}

}  // namespace

void WriteBlocks(KORISpecObject* feature, const Material& material, const std::vector<const Block*>& blocks,
                 Findings& findings) {
    const DiagnosticLines diagnostics(findings, material.file, material.name);
    const auto behaviors = AnalysisDataOf(feature);
    if (!behaviors) {
        findings.Add({FindingKind::ERROR,
                      {material.file, 0},
                      "no-material-interface",
                      material.name + " offers no material properties to write to",
                      {}});
        return;
    }
    WriteHeatGeneration(*behaviors, material, findings);
    for (const Block* block : blocks) {
        if (IsInStoredMeaning(*block)) {
            WriteBlock(*behaviors, *block, material.file, findings);
        } else if (const auto stored = ToStoredMeaning(*block, material, findings)) {
            WriteBlock(*behaviors, *stored, material.file, findings);
        }
    }
}

}  // namespace zelmat
