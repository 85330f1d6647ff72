#include "platform/disk/KORReachedFeatures.h"

KORReachedFeatures::KORReachedFeatures(const KORMemoryDocument& document)
    : reached_(document.Features().Size()) {
    document.ForEachFeature(nullptr, [&](KORFeature& feature) { Reach(&feature); });
    for (const KORUndoStep& step : document.Log().Steps()) {
        for (const KORUndoEntry& entry : step.entries) {
            Reach(entry.feature.Get());
            ReachFrom(entry.other);
        }
    }
    Follow();
}

void KORReachedFeatures::Reach(KORBaseUnknown* object) {
    const auto feature = KORVar<KORFeature>::Of(object);
    if (feature && reached_.Add(feature.Get(), 0)) next_.push_back(feature.Get());
}

void KORReachedFeatures::ReachFrom(const KORValue& value) {
    if (value.Kind() == KORAttributeKind::Component) Reach(value.Component());
    if (value.Kind() != KORAttributeKind::ListOfComponents) return;
    for (int position = 1; position <= value.ListSize(); ++position) Reach(value.ComponentAt(position).Get());
}

void KORReachedFeatures::Follow() {
    while (!next_.empty()) {
        const KORFeature& feature = *next_.back();
        next_.pop_back();
        feature.ForEachSlot([&](KORSlot slot) { ReachFrom(feature.At(slot)); });
    }
}
