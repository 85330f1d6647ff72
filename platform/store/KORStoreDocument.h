#pragma once

#include <unordered_map>

#include "platform/store/KORFeatureRegistry.h"
#include "platform/store/KORFeatureType.h"
#include "platform/store/KORUndeclaredAttributes.h"
#include "platform/store/KORUndoLog.h"

class KORDocument;

/// What the store knows of a document: its living features, its changes, its types. Documents derive from it.
class KORStoreDocument {
public:
    KORStoreDocument(const KORStoreDocument&) = delete;
    KORStoreDocument& operator=(const KORStoreDocument&) = delete;

    virtual KORDocument* Document() = 0;  ///< the document itself, no reference

    KORUndoLog& Log() { return log_; }
    const KORUndoLog& Log() const { return log_; }

    /// All that are alive, also those only a handle, a list or the log holds.
    KORFeatureRegistry& Features() { return features_; }
    const KORFeatureRegistry& Features() const { return features_; }

    /// How many features lie in the document's containers.
    std::size_t MemberCount() const { return members_; }
    void MemberEntered() { ++members_; }
    void MemberLeft() { --members_; }

    KORFeatureType& TypeOf(const KORLayoutHandle& layout) {
        const std::uint32_t ordinal = layout->Ordinal();
        return ordinal < types_.size() && types_[ordinal] ? *types_[ordinal] : MakeType(layout);
    }

    /// The undeclared attributes of a living feature, by its number; an empty table is made when it has none.
    KORUndeclaredAttributes& UndeclaredOf(std::uint32_t number) { return undeclared_[number]; }
    void DropUndeclaredOf(std::uint32_t number) noexcept;

protected:
    KORStoreDocument() = default;
    virtual ~KORStoreDocument();

    /// Lets go of all features. Their slots are emptied first, so that features that reference each other
    /// vanish too; those that callers still hold belong to no document from then on.
    void CloseStore() noexcept;

private:
    KORFeatureType& MakeType(const KORLayoutHandle& layout);

    KORFeatureRegistry features_;
    KORUndoLog log_;
    std::unordered_map<std::uint32_t, KORUndeclaredAttributes> undeclared_;  ///< of the few that have any
    std::vector<KORFeatureType*> types_;  ///< by the layout's ordinal; one reference each
    std::size_t members_ = 0;
};
