#pragma once

#include "tests/support/ZELMapContainer.h"
#include "tests/support/ZELTestStore.h"

/// The second store: slow and simple, with a log of every call and with calls that can be made to fail. It
/// knows no undo, no dirty marks and no files.
class ZELMapStore final : public ZELTestStore {
public:
    ZELMapStore();
    ~ZELMapStore() override;  ///< closes the document; handles on its features stay safe
    ZELMapStore(const ZELMapStore&) = delete;
    ZELMapStore& operator=(const ZELMapStore&) = delete;

    KORISpecObject_var Make(const char* lateType) override;
    KORIContainer_var Container() override;
    KORDocument* Document() override;
    KORISpecObject_var AddAnalysisModel() override;
    KORIContainer_var AddContainer(const char* name) override;  ///< its name shows in the log
    KORISpecObject_var MakeIn(const KORIContainer_var& container, const char* lateType) override;
    KORISpecObject_var MakePlatformMaterial(const KORIContainer_var& container) override;
    void Remove(const KORISpecObject_var& feature) override;
    long LiveFeatures() const override;
    void DefineType(const char* lateType, std::vector<ZELAttribute> attributes) override;
    void OmitAttribute(const char* lateType, const char* attribute) override;
    void OmitType(const char* lateType) override;

    const std::shared_ptr<ZELMapWorld>& World() const { return world_; }

    ZELPlatformCalls& Calls() { return world_->calls; }

    /// Attribute keys of the known types that were handed out and not given back, in the whole process.
    long KeyReferences() const;

private:
    std::shared_ptr<ZELMapWorld> world_ = std::make_shared<ZELMapWorld>();
    KORVar<ZELMapDocument> document_;
};
