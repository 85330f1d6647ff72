#pragma once

#include <vector>

#include "interfaces/KORDocument.h"
#include "interfaces/KORICatalog.h"
#include "tests/support/ZELMapFeature.h"
#include "tests/support/ZELMapWorld.h"

/// The map store's container: holds its members and opens the one catalog that the store knows.
class ZELMapContainer final : public ZELMapObject<KORIContainer, KORICatalogAccess> {
public:
    explicit ZELMapContainer(const std::shared_ptr<ZELMapWorld>& world) : ZELMapObject(world, "Container") {}

    /// A new member; null when the store lacks the late type or the document is closed.
    KORISpecObject_var MakeMember(const std::string& lateType, const KORUnicodeString& name);
    void Remove(KORISpecObject* feature);  ///< a member
    void RemoveAll();

    KORDocument* GetDocument() override;
    HRESULT OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString& client,
                        KORICatalog_var& opened) override;

private:
    std::vector<KORVar<ZELMapFeature>> members_;
};

/// The catalog "ZELMaterialPropertiesCatalog.KORfct" of a map store: start-ups of the types it knows.
class ZELMapCatalog final : public ZELMapObject<KORICatalog> {
public:
    explicit ZELMapCatalog(const std::shared_ptr<ZELMapWorld>& world) : ZELMapObject(world, "Catalog") {}

    HRESULT RetrieveStartUp(const KORUnicodeString& lateType, const char* interfaceName, void** out) override;
};

/// The map store's document, with its one container.
class ZELMapDocument final : public ZELMapObject<KORDocument> {
public:
    explicit ZELMapDocument(const std::shared_ptr<ZELMapWorld>& world);

    const KORVar<ZELMapContainer>& Container() const { return container_; }
    void Close();  ///< empties all features of the document, so that nothing keeps anything else alive

    KORBaseUnknown* GetFeatContainer() override;

private:
    KORVar<ZELMapContainer> container_;  ///< null once closed
};
