#pragma once

#include <string>

#include "platform/document/KORMemoryDocument.h"
#include "tests/support/ZELTestStore.h"

/// The stand-alone platform as a store under test, with a catalog folder of its own. Catalog files are read
/// once per process: what is defined or omitted after somebody opened the catalog by name shows only in what
/// Make makes.
class ZELPlatformStore final : public ZELTestStore {
public:
    ZELPlatformStore();
    ~ZELPlatformStore() override;  ///< closes the document; handles on its features stay safe
    ZELPlatformStore(const ZELPlatformStore&) = delete;
    ZELPlatformStore& operator=(const ZELPlatformStore&) = delete;

    KORISpecObject_var Make(const char* lateType) override;
    KORIContainer_var Container() override;
    KORDocument* Document() override;
    KORISpecObject_var AddAnalysisModel() override;
    KORIContainer_var AddContainer(const char* name) override;
    KORISpecObject_var MakeIn(const KORIContainer_var& container, const char* lateType) override;
    KORISpecObject_var MakePlatformMaterial(const KORIContainer_var& container) override;
    void Remove(const KORISpecObject_var& feature) override;
    long LiveFeatures() const override;
    void DefineType(const char* lateType, std::vector<ZELAttribute> attributes) override;
    void OmitAttribute(const char* lateType, const char* attribute) override;
    void OmitType(const char* lateType) override;

    KORMemoryDocument& MemoryDocument() { return *document_; }  ///< for undo and steps
    KORPlatform& Platform() { return *platform_; }

private:
    void WriteCatalog();

    std::string folder_;
    ZELLateTypes types_;
    std::shared_ptr<const KORCatalogFile> catalog_;  ///< what Make makes features of; always as types_ says
    std::unique_ptr<KORPlatform> platform_;
    KORVar<KORMemoryDocument> document_;
};
