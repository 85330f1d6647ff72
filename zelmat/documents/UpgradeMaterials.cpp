#include "zelmat/documents/UpgradeMaterials.h"

#include <algorithm>

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "platform/analysis/KORUnitsService.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/StatusText.h"

namespace zelmat {

namespace {

constexpr const char* kMaterialType = "ZELMaterialLT";
constexpr const char* kPressure = "PRESSURE";

}  // namespace

UpgradeReport UpgradeMaterials(KORMemoryDocument& document, const std::string& file, Findings& findings) {
    UpgradeReport report;
    document.ForEachFeature(nullptr, [&](const KORFeature& feature) {
        report.lastBefore = std::max(report.lastBefore, feature.Number());
    });
    const KORUnitsService& units = document.Platform().Units();
    const DiagnosticLines diagnostics(findings, file, "upgrade");
    CoefficientWatch watch(units, file, findings);
    report.run = KORRunUpgrade(document, kMaterialType, ZELMaterial::GetApplicativeSpecName(), &watch);
    if (report.run.refused) return report;
    SetStoredPressureUnit(document);
    report.converted = watch.Converted();
    document.ForEachFeature(nullptr, [&](const KORFeature& feature) {
        report.lateTypes.emplace(feature.Number(), feature.Layout().NameText().c_str());
    });
    return report;
}

void ReportUpgrade(const UpgradeReport& report, const std::string& file, Findings& findings) {
    for (const KORUpgradedFeature& material : report.run.upgraded) {
        const std::string name = material.name.c_str();
        if (FAILED(material.status)) {
            findings.Add({FindingKind::ERROR,
                          {file, 0},
                          "upgrade-failed",
                          "the upgrade of " + name + " failed",
                          {StatusText(material.status), "what it did before stays done"}});
        }
        if (material.stillNeeded) {
            findings.Add({FindingKind::WARNING,
                          {file, 0},
                          "upgrade-needed",
                          name + " still needs an upgrade",
                          {"run it again once the cause is away"}});
        }
    }
}

KeptPressureUnit::KeptPressureUnit(KORMemoryDocument& document) : units_(document.Platform().Units()) {
    const KORUnitType& type = *KORFindUnitType(kPressure);
    if (units_.IsChosen(type)) named_ = units_.CurrentUnit(type).symbol;
}

KeptPressureUnit::~KeptPressureUnit() {
    if (!named_.empty()) units_.SetCurrentUnit(kPressure, named_);
}

void SetStoredPressureUnit(KORMemoryDocument& document) {
    document.Platform().Units().SetCurrentUnit(kPressure, KORFindUnitType(kPressure)->units.front().symbol);
}

}  // namespace zelmat
