#include "zelmat/materials/MaterialWriter.h"

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "framework/KORError.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/BrokenRules.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

namespace {

/// The warnings that a behavior can answer, in words. Their own texts lie with the dialogs, not with the
/// module.
Finding Warning(const std::string& name, const CardTable& table, const Place& place,
                const KORInputError& error) {
    if (error.MessageCatalog() == "ZELMaterialPropertiesElasticDlg" &&
        error.MessageKey() == "Elastic.TempetarureIndepndent.Warning.Message") {
        return {FindingKind::WARNING,
                place,
                "table-cut",
                name + " is not temperature dependent: only the first row was kept",
                {std::to_string(table.rows.size()) + " rows given", "1 kept",
                 "make it temperature dependent or give one row"}};
    }
    return {FindingKind::WARNING,
            place,
            "module-warning",
            std::string(error.MessageCatalog().c_str()) + ": " + error.MessageKey().c_str(),
            {}};
}

void ReportTable(const CardData& data, const WriteStatus& answer, const std::string& file,
                 Findings& findings) {
    const CardTable& table = *answer.table;
    const std::string name = data.block->TableName(*table.kind);
    const Place place{file, table.line};
    if (SUCCEEDED(answer.status)) {
        const KORErrorRecords::Entry* warning = KORError::Find(answer.status);
        if (warning) findings.Add(Warning(name, table, place, *warning->error));
        return;
    }
    const auto broken = BrokenRules(*data.block, table, file);
    for (const Finding& finding : broken) findings.Add(finding);
    if (!broken.empty()) return;
    findings.Add({FindingKind::ERROR,
                  place,
                  "not-written",
                  name + " could not be written",
                  {StatusText(answer.status)}});
}

void Report(const CardData& data, const WriteStatus& answer, const std::string& file, Findings& findings) {
    if (answer.table) {
        ReportTable(data, answer, file, findings);
        return;
    }
    findings.Add({FindingKind::ERROR,
                  {file, data.line},
                  "not-written",
                  "the settings of " + data.block->name + " could not be written",
                  {StatusText(answer.status)}});
}

}  // namespace

void WriteMaterial(KORISpecObject* material, const MaterialCard& card,
                   const std::vector<const CardData*>& data, Findings& findings) {
    const DiagnosticLines diagnostics(findings, card.file, card.name);
    const auto behaviors = ZELIMaterial_var::Of(material);
    if (!behaviors) {
        findings.Add({FindingKind::ERROR,
                      {card.file, 0},
                      "no-material-interface",
                      card.name + " offers no material properties to write to",
                      {}});
        return;
    }
    for (const CardData* block : data) {
        for (const WriteStatus& answer : block->block->write(*behaviors, *block)) {
            Report(*block, answer, card.file, findings);
        }
    }
}

}  // namespace zelmat
