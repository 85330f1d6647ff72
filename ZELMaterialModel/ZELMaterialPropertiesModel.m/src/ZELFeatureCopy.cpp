#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"

#include <map>
#include <set>
#include <vector>

namespace {

/// Features that lie together.
struct Group {
    KORBaseUnknown_var container;
    KORListValKORISpecObject_var features;
};

/// Each feature once, in the order in which its container turns up first; none when a feature lies nowhere.
std::vector<Group> GroupsOf(const KORListValKORISpecObject_var& features) {
    std::vector<Group> groups;
    std::map<KORBaseUnknown*, std::size_t> places;
    std::set<KORISpecObject*> seen;
    for (int position = 1; position <= features.Size(); ++position) {
        const KORBaseUnknown_var container = ZELContainerOf(features[position]);
        if (!container) return {};
        if (!seen.insert(features[position].Get()).second) continue;
        const auto [place, isNew] = places.emplace(container.Get(), groups.size());
        if (isNew) groups.push_back({container, {}});
        groups[place->second].features.Append(features[position]);
    }
    return groups;
}

}  // namespace

KORBaseUnknown_var ZELContainerOf(const KORISpecObject_var& feature) {
    return feature ? KORBaseUnknown_var::Adopt(feature->GetFeatContainer()) : KORBaseUnknown_var();
}

KORListValKORISpecObject_var ZELCopyInto(const KORICutAndPastable_var& source,
                                         const KORICutAndPastable_var& target,
                                         const KORListValKORISpecObject_var& features) {
    KORListValKORISpecObject_var extracted;
    KORListValKORISpecObject_var copies;
    if (!source || !target || FAILED(source->Extract(features, extracted)) ||
        FAILED(target->Paste(extracted, copies))) {
        return {};
    }
    while (copies.Size() > features.Size()) copies.RemovePosition(copies.Size());
    return copies;
}

KORListValKORISpecObject_var ZELCopyAllInto(const KORICutAndPastable_var& target,
                                            const KORListValKORISpecObject_var& features) {
    KORListValKORISpecObject_var all;
    for (const Group& group : GroupsOf(features)) {
        const KORICutAndPastable_var source(group.container);
        KORListValKORISpecObject_var extracted;
        if (!source || FAILED(source->Extract(group.features, extracted))) return {};
        for (int position = 1; position <= extracted.Size(); ++position) all.Append(extracted[position]);
    }
    std::map<KORISpecObject*, int> places;
    for (int position = 1; position <= all.Size(); ++position) places.emplace(all[position].Get(), position);
    for (int position = 1; position <= features.Size(); ++position) {
        if (!places.contains(features[position].Get())) return {};
    }
    KORListValKORISpecObject_var pasted;
    if (!target || FAILED(target->Paste(all, pasted)) || pasted.Size() < all.Size()) return {};
    KORListValKORISpecObject_var copies;
    for (int position = 1; position <= features.Size(); ++position) {
        copies.Append(pasted[places[features[position].Get()]]);
    }
    return copies;
}
