#pragma once

#include "framework/KORImplements.h"
#include "interfaces/KORDocument.h"
#include "platform/document/KORMemoryContainer.h"
#include "platform/document/KORPlatform.h"
#include "platform/store/KORStep.h"

inline const KORIID IID_KORMemoryDocument = KORName::Intern("KORMemoryDocument");

/// A document in memory, with one container. It knows no file. Changes are undone by the steps that KORStep
/// scopes made of them. Handles of its features do not keep it alive: once it is closed they read as never
/// valued.
class KORMemoryDocument final : public KORImplements<KORDocument>, public KORStoreDocument {
public:
    static KORIID Iid() { return IID_KORMemoryDocument; }

    /// A new, empty document. The platform outlives it.
    static KORVar<KORMemoryDocument> New(KORPlatform& platform);

    KORPlatform& Platform() { return platform_; }
    KORDocument* Document() override { return this; }
    KORBaseUnknown* GetFeatContainer() override;

    /// A new feature of a late type of the platform's own catalog; null for others, and once it is closed.
    KORVar<KORFeature> NewPlatformFeature(const char* lateType, const KORUnicodeString& name);

    /// Takes a feature out of its container. What still references it keeps it. E_FAIL when it lies in no
    /// container of this document.
    HRESULT Remove(KORISpecObject* feature);

    bool CanUndo() const { return Log().CanUndo(); }
    bool CanRedo() const { return Log().CanRedo(); }
    bool Undo() noexcept { return Log().Undo(); }  ///< false: nothing to undo, or a step stands open
    bool Redo() noexcept { return Log().Redo(); }
    std::uint32_t Generation() const { return Log().Generation(); }

    /// The features that lie in its container.
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

    KORPlatform& platform_;
    KORVar<KORMemoryContainer> container_;  ///< null once it is closed
};
