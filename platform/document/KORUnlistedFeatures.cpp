#include "platform/document/KORUnlistedFeatures.h"

void KORUnlistedFeatures::Suspect(std::span<const KORUndoEntry> changes, std::uint32_t cause) {
    for (const KORUndoEntry& change : changes) {
        const KORValue& before = change.other;
        if (change.Slot() == KORLayout::kContainer) {
            Add(change.feature.Get(), cause);
        } else if (change.Slot() == change.feature->Layout().FatherSlot()) {
            continue;  // hanging on it lists nothing
        } else if (before.Kind() == KORAttributeKind::Component) {
            Add(before.Component(), cause);
        } else if (before.Kind() == KORAttributeKind::ListOfComponents) {
            for (int position = 1; position <= before.ListSize(); ++position) {
                Add(before.ComponentAt(position).Get(), cause);
            }
        }
    }
}

void KORUnlistedFeatures::Add(KORBaseUnknown* object, std::uint32_t cause) {
    auto feature = KORVar<KORFeature>::Of(object);
    if (!feature || !places_.Add(feature.Get(), static_cast<std::uint32_t>(suspects_.size()))) return;
    suspects_.push_back({std::move(feature), cause});
}

void KORUnlistedFeatures::FollowSuspects() {
    for (std::size_t next = 0; next < suspects_.size(); ++next) {
        const KORVar<KORFeature> feature = suspects_[next].feature;
        const std::uint32_t cause = suspects_[next].cause;
        feature->ForEachComponent([&](KORBaseUnknown& component) { Add(&component, cause); });
    }
}

std::vector<KORUnlistedFeatures::Unlisted> KORUnlistedFeatures::Find(const KORMemoryDocument& document) {
    FollowSuspects();
    std::vector<KORFeature*> listed;
    const auto list = [&](KORBaseUnknown& component) {
        const auto feature = KORVar<KORFeature>::Of(&component);
        const auto place = feature ? places_.Find(feature.Get()) : std::nullopt;
        if (!place || suspects_[*place].listed) return;
        suspects_[*place].listed = true;
        listed.push_back(feature.Get());
    };
    document.ForEachFeature(nullptr, [&](KORFeature& feature) {
        if (!places_.Contains(&feature)) feature.ForEachComponent(list);
    });
    while (!listed.empty()) {
        KORFeature* feature = listed.back();
        listed.pop_back();
        feature->ForEachComponent(list);
    }
    std::vector<Unlisted> found;
    for (const Entry& suspect : suspects_) {
        if (suspect.listed || !suspect.feature->LiesInContainer()) continue;
        found.push_back({suspect.feature->Number(), suspect.cause});
    }
    return found;
}
