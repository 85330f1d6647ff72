#include "zelmat/MaterialWriter.h"

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "framework/KORError.h"
#include "zelmat/DiagnosticLines.h"
#include "zelmat/StatusText.h"

namespace zelmat {

namespace {

/// The warnings that a behavior can answer, in words. Their own texts lie with the dialogs, not with the
/// module.
Finding Warning(const CardTable& table, const Place& place, const KORInputError& error) {
    if (error.MessageCatalog() == "ZELMaterialPropertiesElasticDlg" &&
        error.MessageKey() == "Elastic.TempetarureIndepndent.Warning.Message") {
        return {FindingKind::WARNING,
                place,
                "table-cut",
                table.block->name + " is not temperature dependent: only the first row was kept",
                {std::to_string(table.rows.size()) + " rows given", "1 kept",
                 "make it temperature dependent or give one row"}};
    }
    return {FindingKind::WARNING,
            place,
            "module-warning",
            std::string(error.MessageCatalog().c_str()) + ": " + error.MessageKey().c_str(),
            {}};
}

void ReportStatus(HRESULT status, const CardTable& table, const std::string& file, Findings& findings) {
    const Place place{file, table.line};
    if (FAILED(status)) {
        findings.Add({FindingKind::ERROR,
                      place,
                      "not-written",
                      table.block->name + " could not be written",
                      {StatusText(status)}});
    } else if (const KORErrorRecords::Entry* warning = KORError::Find(status)) {
        findings.Add(Warning(table, place, *warning->error));
    }
}

}  // namespace

void WriteMaterial(KORISpecObject* material, const MaterialCard& card, Findings& findings) {
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
    for (const CardTable& table : card.tables) {
        ReportStatus(table.block->write(*behaviors, table), table, card.file, findings);
    }
}

}  // namespace zelmat
