#include "tests/support/ZELMapAnalysis.h"

#include <algorithm>

#include "tests/support/ZELFeatureValues.h"
#include "tests/support/ZELMapContainer.h"

namespace {

constexpr const char* kChildren = "Children";
constexpr const char* kModel = "KORAnalysisModelLT";
constexpr const char* kSet = "ZELZelmarPropertySetLT";

enum ScanMode { kOwnChildren = 1, kChildrenOfSets = 2, kEverything = 3 };

std::string TypeOf(const KORISpecObject_var& feature) {
    const ZELUnrecorded unrecorded;
    return feature ? std::string(feature->GetType().View()) : "null";
}

/// Null when there is none, and once the document is closed.
KORISpecObject_var ModelOf(const ZELMapWorld& world) {
    return world.document ? world.document->AnalysisModel() : nullptr;
}

/// None of no feature.
std::vector<KORISpecObject_var> ChildrenOf(const KORISpecObject_var& parent) {
    if (!parent) return {};
    return Components(parent, kChildren).value_or(std::vector<KORISpecObject_var>());
}

void TakeAway(const KORISpecObject_var& parent, const KORISpecObject_var& child) {
    const auto children = ChildrenOf(parent);
    const auto access = Access(parent);
    KORISpecAttrKey* key = access->GetAttrKey(kChildren);
    access->RemoveAllValues(key);
    key->Release();
    for (const auto& other : children) {
        if (other != child) AppendComponent(parent, kChildren, other);
    }
}

/// Those of a late type below a parent; the children of sets, too, when it goes deeper.
void Collect(const KORISpecObject_var& parent, const KORUnicodeString& lateType, bool own, bool deeper,
             KORListValKORISpecObject_var& found) {
    for (const auto& child : ChildrenOf(parent)) {
        if (!child) continue;
        if (own && child->GetType() == lateType) found.Append(child);
        if (deeper && child->GetType() == kSet) Collect(child, lateType, true, true, found);
    }
}

}  // namespace

bool ZELMapAnalysisFeature::Offers(KORIID iid) const {
    if (iid == IID_KORISamAnalysisModel || iid == IID_KORISamAnalysisScan) return LateType() == kModel;
    if (iid == IID_KORISamAnalysisSet) return LateType() == kSet;
    return iid != IID_KORISamAnalysisEntity || LateType() == "ZELLayupLT";
}

KORListValKORISpecObject_var ZELMapAnalysisFeature::Scan(const KORUnicodeString& lateType, int mode) {
    const std::string details = std::string(lateType.View()) + " " + std::to_string(mode);
    KORListValKORISpecObject_var found;
    if (Calls().Record("Scan", details, true) != ZELVerdict::Answer) return found;
    if (mode < kOwnChildren || mode > kEverything) return found;
    const ZELUnrecorded unrecorded;
    Collect(KORISpecObject_var(this), lateType, mode != kChildrenOfSets, mode != kOwnChildren, found);
    return found;
}

void ZELMapAnalysisFeature::AddChild(const KORISpecObject_var& child) {
    Calls().Record("AddChild", Label() + " " + TypeOf(child), false);
    const ZELUnrecorded unrecorded;
    if (const KORISpecObject_var model = ModelOf(*World()); model) TakeAway(model, child);
    ::AppendComponent(KORISpecObject_var(this), kChildren, child);
}

KORListValKORISpecObject_var ZELMapAnalysisFeature::GetFeatures(const KORUnicodeString& lateType) {
    const std::string details = Label() + " " + std::string(lateType.View());
    KORListValKORISpecObject_var found;
    if (Calls().Record("GetFeatures", details, true) != ZELVerdict::Answer) return found;
    const ZELUnrecorded unrecorded;
    Collect(KORISpecObject_var(this), lateType, true, false, found);
    return found;
}

KORListValKORBaseUnknown_var ZELMapAnalysisFeature::GetParentSets() {
    KORListValKORBaseUnknown_var parents;
    if (Calls().Record("GetParentSets", Label(), true) != ZELVerdict::Answer) return parents;
    const ZELUnrecorded unrecorded;
    const KORISpecObject_var own(this);
    KORListValKORISpecObject_var sets;
    Collect(ModelOf(*World()), kSet, true, true, sets);
    for (int position = 1; position <= sets.Size(); ++position) {
        const auto children = ChildrenOf(sets[position]);
        if (std::ranges::find(children, own) != children.end()) parents.Append(sets[position]);
    }
    return parents;
}

KORBaseUnknown* ZELMapModelFactory::CreateEntity(const KORUnicodeString& lateType,
                                                 const KORUnicodeString& name, KORISpecObject* model) {
    const std::string details =
        std::string(lateType.View()) + " \"" + std::string(name.View()) + "\" in " + TypeOf(model);
    if (Calls().Record("CreateEntity", details, true) != ZELVerdict::Answer || !model) return nullptr;
    if (!World()->document) return nullptr;
    const ZELUnrecorded unrecorded;
    auto entity = World()->document->Container()->MakeMember(std::string(lateType.View()), name);
    if (entity) ::AppendComponent(KORISpecObject_var(model), kChildren, entity);
    return KORBaseUnknown_var(entity).Detach();
}
