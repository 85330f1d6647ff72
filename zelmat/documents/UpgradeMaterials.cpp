#include "zelmat/documents/UpgradeMaterials.h"

#include <algorithm>

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "platform/analysis/KORUnitsService.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/KeptCoefficients.h"
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
    const KeptCoefficients coefficients(document, KORName::Intern(kMaterialType));
    KORStep step(document, "Upgrade");
    report.run = KORRunUpgrade(document, kMaterialType, ZELMaterial::GetApplicativeSpecName(), &watch);
    if (report.run.refused) return report;
    if (!report.run.upgraded.empty() && !coefficients.AreKept(document, report.run, file, findings)) {
        report.run.refused = true;
        report.run.upgraded.clear();
        return report;  // and the step is left without commit
    }
    step.Commit();
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

std::string ChosenPressureUnit(KORMemoryDocument& document) {
    const KORUnitsService& units = document.Platform().Units();
    const KORUnitType& type = *KORFindUnitType(kPressure);
    return units.IsChosen(type) ? std::string(units.CurrentUnit(type).symbol) : std::string();
}

void ChoosePressureUnit(KORMemoryDocument& document, const std::string& symbol) {
    KORUnitsService& units = document.Platform().Units();
    units.ForgetCurrentUnit(*KORFindUnitType(kPressure));
    if (!symbol.empty()) units.SetCurrentUnit(kPressure, symbol);
}

void SetStoredPressureUnit(KORMemoryDocument& document) {
    ChoosePressureUnit(document, std::string(KORFindUnitType(kPressure)->units.front().symbol));
}

}  // namespace zelmat
