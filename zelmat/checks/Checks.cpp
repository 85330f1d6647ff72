#include "zelmat/checks/Checks.h"

#include "zelmat/checks/CheckRules.h"

namespace zelmat {

namespace {

Findings Sorted(const Findings& found) {
    Findings sorted;
    for (const Finding& finding : found.ByLine()) sorted.Add(finding);
    return sorted;
}

}  // namespace

Findings CheckMaterial(const Material& material) {
    Findings found;
    for (const CheckTopic& topic : CheckRules()) {
        for (const CheckRule& rule : topic.rules) {
            if (!rule.look) continue;
            CheckReport report(rule, material.file, found);
            rule.look(material, report);
        }
    }
    return Sorted(found);
}

Findings CheckLayup(const LayupCard& layup) {
    Findings found;
    for (const CheckTopic& topic : CheckRules()) {
        for (const CheckRule& rule : topic.rules) {
            if (!rule.lookAtLayup) continue;
            CheckReport report(rule, layup.file, found);
            rule.lookAtLayup(layup, report);
        }
    }
    return Sorted(found);
}

}  // namespace zelmat
