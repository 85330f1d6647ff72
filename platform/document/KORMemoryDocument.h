#pragma once

#include <unordered_map>

#include "framework/KORImplements.h"
#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORIApplicativeContainers.h"
#include "platform/analysis/KORAnalysisModelFactory.h"
#include "platform/document/KORMemoryContainer.h"
#include "platform/document/KORPlatform.h"
#include "platform/store/KORStep.h"

inline const KORIID IID_KORMemoryDocument = KORName::Intern("KORMemoryDocument");

/// A document in memory: its own container, the named ones of applications, and an analysis model if its host
/// gives it one. It knows no file. Changes are undone by the steps that KORStep scopes made of them. Handles
/// of its features do not keep it alive: once it is closed they read as never valued.
class KORMemoryDocument final
    : public KORImplements<KORDocument, KORIApplicativeContainers, KORIAnalysisDocument>,
      public KORStoreDocument {
public:
    static KORIID Iid() { return IID_KORMemoryDocument; }

    /// A new, empty document. The platform outlives it.
    static KORVar<KORMemoryDocument> New(KORPlatform& platform);

    KORPlatform& Platform() { return platform_; }
    KORDocument* Document() override { return this; }
    KORBaseUnknown* GetFeatContainer() override;

    /// A new feature of a late type of the platform's own catalog or of those it shares; null for others, and
    /// once it is closed.
    KORVar<KORFeature> NewPlatformFeature(const char* lateType, const KORUnicodeString& name);

    /// The applicative container of that name; a new one when the document has none. Null for a name that is
    /// empty or begins with NUL, and once the document is closed. Containers are no change that can be
    /// undone; what lies in them is.
    KORVar<KORMemoryContainer> AddContainer(std::string_view name);
    KORBaseUnknown* FindContainer(const char* name) override;
    const std::vector<std::string>& ContainerNames() const { return containerNames_; }  ///< oldest first

    /// The catalog of that file name in the platform's catalog folder, and from then on one of the document's
    /// own. Null when it cannot be opened; the platform then says why on standard error.
    [[nodiscard]] std::shared_ptr<const KORCatalogFile> OpenCatalog(std::string_view fileName);
    const KORCatalogSet& Catalogs() const { return *catalogs_; }

    /// The analysis model, made if there is none; null once the document is closed.
    KORVar<KORFeature> AddAnalysisModel();
    [[nodiscard]] HRESULT LoadCatalog(const KORUnicodeString& catalog) override;
    KORISamAnalysisModelFactory* GetFactory() override;  ///< also without a model; null once it is closed
    KORISamAnalysisModel* GetAnalysisModel() override;

    /// Takes a feature out of its container. What still references it keeps it. E_FAIL when it lies in no
    /// container of this document.
    HRESULT Remove(KORISpecObject* feature);

    bool CanUndo() const { return Log().CanUndo(); }
    bool CanRedo() const { return Log().CanRedo(); }
    bool Undo() noexcept { return Log().Undo(); }  ///< false: nothing to undo, or a step stands open
    bool Redo() noexcept { return Log().Redo(); }
    std::uint32_t Generation() const override { return Log().Generation(); }

    /// The features that lie in its containers.
    std::size_t FeatureCount() const { return MemberCount(); }

    /// Visits those of a late type, in the order of their numbers; of all types when it is null. The visitor
    /// may change, create and remove features.
    template <class Visitor>
    void ForEachFeature(const KORName* lateType, Visitor&& visit) const {
        Features().ForEach([&](KORFeature& feature) {
            if (lateType && feature.Layout().Name() != lateType) return;
            if (!feature.LiesInContainer()) return;
            const KORVar<KORFeature> alive(&feature);
            visit(feature);
        });
    }

    /// Lets go of everything in it. Done by the last release, if not before.
    void Close() noexcept;

protected:
    void* OwnInterface(KORIID iid) override;

private:
    explicit KORMemoryDocument(KORPlatform& platform);
    ~KORMemoryDocument() override { Close(); }

    KORFeature* FindAnalysisModel();  ///< null when there is none

    KORPlatform& platform_;
    KORVar<KORMemoryContainer> container_;  ///< null once it is closed
    std::vector<KORVar<KORMemoryContainer>> applicativeContainers_;
    std::vector<std::string> containerNames_;  ///< of the applicative containers, in their order
    std::unordered_map<std::string, std::size_t> containerPlaces_;  ///< in both, by name
    const std::shared_ptr<KORCatalogSet> catalogs_;
    std::uint32_t analysisModel_ = 0;  ///< its number, when it was last seen
};
