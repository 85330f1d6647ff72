#include "tests/support/ZELMapStore.h"

#include <set>
#include <stdexcept>
#include <utility>

#include "tests/support/ZELCatalogText.h"
#include "tests/support/ZELMapMaterial.h"

ZELMapStore::ZELMapStore() : document_(KORVar<ZELMapDocument>::Adopt(new ZELMapDocument(world_))) {
    world_->types = ZELModuleTypes();
    DefineType("KORAnalysisModelLT", {{"Children", ZELKind::ListOfComponents}});
    DefineType("ZELZelmarPropertySetLT", {{"Children", ZELKind::ListOfComponents}});
    DefineType("ZELShellSectionEnhLT", {{"SectionType", ZELKind::Integer, 0}, {"Layup", ZELKind::Component}});
}

ZELMapStore::~ZELMapStore() {
    const ZELUnrecorded unrecorded;
    document_->Close();
}

KORISpecObject_var ZELMapStore::Make(const char* lateType) {
    return MakeIn(Container(), lateType);
}

KORIContainer_var ZELMapStore::AddContainer(const char* name) {
    return KORIContainer_var(static_cast<KORIContainer*>(document_->AddContainer(name).Get()));
}

KORISpecObject_var ZELMapStore::MakeIn(const KORIContainer_var& container, const char* lateType) {
    const ZELUnrecorded unrecorded;
    if (!container) return nullptr;
    return dynamic_cast<ZELMapContainer&>(*container).MakeMember(lateType, lateType);
}

KORISpecObject_var ZELMapStore::MakePlatformMaterial(const KORIContainer_var& container) {
    return KORISpecObject_var::Adopt(new ZELMapMaterial(container, world_));
}

KORIContainer_var ZELMapStore::Container() {
    return KORIContainer_var(static_cast<KORIContainer*>(document_->Container().Get()));
}

KORDocument* ZELMapStore::Document() {
    return document_.Get();
}

KORISpecObject_var ZELMapStore::AddAnalysisModel() {
    if (!document_->AnalysisModel()) document_->SetAnalysisModel(Make("KORAnalysisModelLT"));
    return document_->AnalysisModel();
}

void ZELMapStore::Remove(const KORISpecObject_var& feature) {
    const ZELUnrecorded unrecorded;
    if (FAILED(document_->Container()->Remove(feature.Get()))) throw std::runtime_error("no member");
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
