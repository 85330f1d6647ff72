#include "tests/support/ZELMapStore.h"

#include <set>
#include <utility>

#include "tests/support/ZELCatalogText.h"

ZELMapStore::ZELMapStore() : document_(KORVar<ZELMapDocument>::Adopt(new ZELMapDocument(world_))) {
    world_->types = ZELModuleTypes();
}

ZELMapStore::~ZELMapStore() {
    const ZELUnrecorded unrecorded;
    document_->Close();
}

KORISpecObject_var ZELMapStore::Make(const char* lateType) {
    const ZELUnrecorded unrecorded;
    return document_->Container()->MakeMember(lateType, lateType);
}

KORIContainer_var ZELMapStore::Container() {
    return KORIContainer_var(static_cast<KORIContainer*>(document_->Container().Get()));
}

KORDocument* ZELMapStore::Document() {
    return document_.Get();
}

void ZELMapStore::Remove(const KORISpecObject_var& feature) {
    document_->Container()->Remove(feature.Get());
}

long ZELMapStore::LiveFeatures() const {
    return static_cast<long>(world_->features.size());
}

void ZELMapStore::DefineType(const char* lateType, std::vector<ZELAttribute> attributes) {
    world_->types.Define(lateType, std::move(attributes));
}

void ZELMapStore::OmitAttribute(const char* lateType, const char* attribute) {
    world_->types.OmitAttribute(lateType, attribute);
}

void ZELMapStore::OmitType(const char* lateType) {
    world_->types.OmitType(lateType);
}

long ZELMapStore::KeyReferences() const {
    std::set<const KORName*> keys;
    for (const auto& [lateType, attributes] : world_->types.All()) {
        for (const ZELAttribute& attribute : attributes) keys.insert(KORName::Intern(attribute.name));
    }
    long references = 0;
    for (const KORName* key : keys) references += key->References();
    return references;
}
