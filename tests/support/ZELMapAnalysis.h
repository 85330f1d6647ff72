#pragma once

#include "interfaces/KORIAlias.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORILinkableObject.h"
#include "interfaces/KORISamAnalysisEntity.h"
#include "interfaces/KORISamAnalysisSet.h"
#include "interfaces/KORISpecAttrAccess.h"
#include "tests/support/ZELMapWorld.h"

/// What a feature of the map store is in an analysis model, by its late type: the model with its scan, a
/// property set, or a layup, which is an entity. Children lie in the list "Children" of models and sets.
class ZELMapAnalysisFeature : public ZELMapObject<KORISpecObject, KORISpecAttrAccess, KORILinkableObject,
                                                  KORIAlias, KORISamAnalysisModel, KORISamAnalysisScan,
                                                  KORISamAnalysisSet, KORISamAnalysisEntity> {
public:
    KORListValKORISpecObject_var Scan(const KORUnicodeString& lateType, int mode) override;
    void AddChild(const KORISpecObject_var& child) override;
    KORListValKORISpecObject_var GetFeatures(const KORUnicodeString& lateType) override;
    KORListValKORBaseUnknown_var GetParentSets() override;

protected:
    using ZELMapObject::ZELMapObject;

    virtual const std::string& LateType() const = 0;
    const KORName* DictionaryKey() const final { return KORName::Intern(LateType()); }
    bool Offers(KORIID iid) const final;
};

/// Makes the entities of the map store's analysis model, in the container of the model.
class ZELMapModelFactory final : public ZELMapObject<KORISamAnalysisModelFactory> {
public:
    explicit ZELMapModelFactory(const std::shared_ptr<ZELMapWorld>& world)
        : ZELMapObject(world, "ModelFactory") {}

    KORBaseUnknown* CreateEntity(const KORUnicodeString& lateType, const KORUnicodeString& name,
                                 KORISpecObject* model) override;
};
