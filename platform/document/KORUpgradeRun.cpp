#include "platform/document/KORUpgradeRun.h"

#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/KORISamUpgrade.h"
#include "platform/document/KORUnlistedFeatures.h"

namespace {

/// What hangs in the place of a feature that an upgrade took out of its container; null when nothing does.
KORVar<KORFeature> ReplacementOf(const KORFeature& feature, const KORISpecObject_var& father,
                                 const KORUnicodeString& applicativeName) {
    const KORIMaterialFeature_var material(father);
    if (feature.LiesInContainer() || !material) return nullptr;
    return KORVar<KORFeature>(KORISpecObject_var::Adopt(material->GetApplicativeFeature(applicativeName)));
}

class Run {
public:
    Run(KORMemoryDocument& document, const KORUnicodeString& applicativeName, KORUpgradeWatch* watch)
        : document_(document), applicativeName_(applicativeName), watch_(watch) {}

    void Ask(KORFeature& feature) {
        const auto upgrade = KORISamUpgrade_var::Of(&feature);
        if (!upgrade) return;
        ++report_.asked;
        if (upgrade->IsUpgradeNeeded()) Upgrade(feature, *upgrade);
    }

    KORUpgradeReport Report() {
        if (report_.refused) {
            report_.upgraded.clear();
            return std::move(report_);
        }
        for (const auto& [feature, cause] : unlisted_.Find(document_)) {
            report_.upgraded[cause].unlisted.push_back(feature);
        }
        return std::move(report_);
    }

private:
    void Upgrade(KORFeature& feature, KORISamUpgrade& upgrade) {
        KORUpgradedFeature told;
        const auto father = KORISpecObject_var::Adopt(feature.GetFather());
        told.feature = feature.Number();
        told.name = KORUpgradeNameOf(feature);
        if (watch_ && !watch_->MayUpgrade(feature, told)) {
            report_.refused = true;
            return;
        }

        // A scope of its own, so that a slot two upgrades write is told with both.
        KORStep step(document_, "Upgrade");
        const std::size_t before = document_.Log().OpenEntries().size();
        told.status = upgrade.Upgrade();
        const auto changes = std::span(document_.Log().OpenEntries()).subspan(before);
        for (const KORUndoEntry& change : changes) {
            told.changes.push_back(
                {change.feature->Number(), change.feature->Layout().NameText(), change.AttributeName()});
        }
        unlisted_.Suspect(changes, static_cast<std::uint32_t>(report_.upgraded.size()));

        const KORVar<KORFeature> replacement = ReplacementOf(feature, father, applicativeName_);
        if (replacement) told.replacement = replacement->Number();
        const KORISamUpgrade_var replaced(replacement);
        told.stillNeeded = replaced ? replaced->IsUpgradeNeeded() : upgrade.IsUpgradeNeeded();
        step.Commit();
        if (watch_) watch_->Upgraded(replacement ? *replacement : feature, told);
        report_.upgraded.push_back(std::move(told));
    }

    KORMemoryDocument& document_;
    const KORUnicodeString& applicativeName_;
    KORUpgradeWatch* watch_;
    KORUpgradeReport report_;
    KORUnlistedFeatures unlisted_;
};

}  // namespace

KORUnicodeString KORUpgradeNameOf(KORFeature& feature) {
    if (KORUnicodeString alias = feature.GetAlias(); !alias.empty()) return alias;
    const KORIAlias_var father(KORISpecObject_var::Adopt(feature.GetFather()));
    const KORUnicodeString alias = father ? father->GetAlias() : KORUnicodeString();
    return alias.empty() ? feature.GetName() : alias;
}

KORUpgradeReport KORRunUpgrade(KORMemoryDocument& document, const KORUnicodeString& lateType,
                               const KORUnicodeString& applicativeName, KORUpgradeWatch* watch) {
    // Those there are now: what the upgrades create is up to date.
    std::vector<KORVar<KORFeature>> features;
    document.ForEachFeature(KORName::Intern(lateType.View()),
                            [&](KORFeature& feature) { features.emplace_back(&feature); });
    KORStep step(document, "Upgrade");
    Run run(document, applicativeName, watch);
    for (const auto& feature : features) run.Ask(*feature);
    KORUpgradeReport report = run.Report();
    if (!report.refused) step.Commit();
    return report;
}
