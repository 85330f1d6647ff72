#pragma once

#include <initializer_list>
#include <vector>

#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORISamAnalysisSet.h"
#include "tests/support/ZELPlatformCalls.h"
#include "tests/support/ZELTestStore.h"

inline KORListValKORISpecObject_var ZELListOf(std::initializer_list<KORISpecObject_var> features) {
    KORListValKORISpecObject_var list;
    for (const auto& feature : features) list.Append(feature);
    return list;
}

inline std::vector<KORISpecObject_var> ZELEntriesOf(const KORListValKORISpecObject_var& list) {
    std::vector<KORISpecObject_var> entries;
    for (int position = 1; position <= list.Size(); ++position) entries.push_back(list[position]);
    return entries;
}

/// A new entity of the store's analysis model, which is made if there is none; unseen by the store's log.
inline KORISpecObject_var ZELMakeEntity(ZELTestStore& store, const char* lateType) {
    const ZELUnrecorded unrecorded;
    const auto model = store.AddAnalysisModel();
    const auto document = KORIAnalysisDocument_var::Of(store.Document());
    if (FAILED(document->LoadCatalog("ZELMaterialPropertiesCatalog.KORfct"))) return nullptr;
    const auto factory = KORISamAnalysisModelFactory_var::Adopt(document->GetFactory());
    return KORISpecObject_var(
        KORBaseUnknown_var::Adopt(factory->CreateEntity(lateType, lateType, model.Get())));
}

/// A new entity in a set.
inline KORISpecObject_var ZELMakeInSet(ZELTestStore& store, const KORISpecObject_var& set,
                                       const char* lateType) {
    const ZELUnrecorded unrecorded;
    auto entity = ZELMakeEntity(store, lateType);
    KORISamAnalysisSet_var(set)->AddChild(entity);
    return entity;
}

/// What an analysis model or a set holds directly.
inline std::vector<KORISpecObject_var> ZELChildrenOf(const KORISpecObject_var& parent) {
    return Components(parent, "Children").value_or(std::vector<KORISpecObject_var>());
}
