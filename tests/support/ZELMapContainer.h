#pragma once

#include <map>
#include <vector>

#include "tests/support/ZELMapFeature.h"
#include "tests/support/ZELMapWorld.h"

#include "interfaces/KORDocument.h"
#include "interfaces/KORIApplicativeContainers.h"
#include "interfaces/KORICatalog.h"
#include "interfaces/KORICutAndPastable.h"

/// A container of the map store: holds its members, copies them and opens the one catalog that the store
/// knows.
class ZELMapContainer final : public ZELMapObject<KORIContainer, KORICatalogAccess, KORICutAndPastable> {
public:
    explicit ZELMapContainer(const std::shared_ptr<ZELMapWorld>& world,
                             const std::string& label = "Container")
        : ZELMapObject(world, label) {}

    /// A new member; null when the store lacks the late type or the document is closed.
    KORISpecObject_var MakeMember(const std::string& lateType, const KORUnicodeString& name);
    void RemoveAll();

    KORDocument* GetDocument() override;
    HRESULT OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString& client,
                        KORICatalog_var& opened) override;
    HRESULT Extract(const KORListValKORISpecObject_var& features,
                    KORListValKORISpecObject_var& extracted) override;
    HRESULT Paste(const KORListValKORISpecObject_var& extracted,
                  KORListValKORISpecObject_var& copies) override;
    HRESULT Remove(KORISpecObject* feature) override;

private:
    bool Holds(const KORISpecObject* feature) const;

    std::vector<KORVar<ZELMapFeature>> members_;
};

/// The catalog "ZELMaterialPropertiesCatalog.KORfct" of a map store: start-ups of the types it knows.
class ZELMapCatalog final : public ZELMapObject<KORICatalog> {
public:
    explicit ZELMapCatalog(const std::shared_ptr<ZELMapWorld>& world) : ZELMapObject(world, "Catalog") {
        ++world->openCatalogs;
    }
    ~ZELMapCatalog() override { --World()->openCatalogs; }

    HRESULT RetrieveStartUp(const KORUnicodeString& lateType, const char* interfaceName, void** out) override;
};

/// The map store's document, with its own container, and the applicative ones and the analysis model that a
/// test adds.
class ZELMapDocument final
    : public ZELMapObject<KORDocument, KORIApplicativeContainers, KORIAnalysisDocument> {
public:
    explicit ZELMapDocument(const std::shared_ptr<ZELMapWorld>& world);
    ~ZELMapDocument() override;

    const KORVar<ZELMapContainer>& Container() const { return container_; }
    KORVar<ZELMapContainer> AddContainer(const std::string& name);
    /// Empties all features of the document, so that nothing keeps anything else alive. Who still holds one
    /// of its objects may go on calling it: nothing is found and nothing is made any more.
    void Close();

    KORBaseUnknown* GetFeatContainer() override;
    KORBaseUnknown* FindContainer(const char* name) override;

    void SetAnalysisModel(const KORISpecObject_var& model) { model_ = model; }
    const KORISpecObject_var& AnalysisModel() const { return model_; }  ///< null when there is none
    HRESULT LoadCatalog(const KORUnicodeString& catalog) override;
    KORISamAnalysisModelFactory* GetFactory() override;
    KORISamAnalysisModel* GetAnalysisModel() override;

private:
    KORVar<ZELMapContainer> container_;  ///< null once closed
    KORISpecObject_var model_;
    std::map<std::string, KORVar<ZELMapContainer>> applicative_;
};
