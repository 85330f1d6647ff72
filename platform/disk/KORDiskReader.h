#pragma once

#include <vector>

#include "platform/disk/KORDiskContainers.h"
#include "platform/disk/KORDiskIndex.h"
#include "platform/disk/KORPackedEntry.h"
#include "platform/disk/KORSqliteStatement.h"

/// Reads a document's file into a new document in memory, in the transaction that stands open. The first
/// thing that is wrong ends it. What the catalogs of today do not know, the features keep.
class KORDiskReader {
public:
    /// All of them outlive this object; `name` is what errors call the file.
    KORDiskReader(KORSqlite& file, std::string name, KORMemoryDocument& document, KORDiskIndex& index)
        : file_(file), name_(std::move(name)), document_(document), index_(index) {}

    // Both answer false when something is wrong; then `error` is filled, or the connection failed.
    /// Everything but the entries of the steps.
    [[nodiscard]] bool Read(KORFileError& error);

    /// The entries of the steps, as the document's undo log. After Read, once.
    [[nodiscard]] bool ReadHistory(KORFileError& error);

    /// Lets go of the features to which nothing leads, no container, no other feature and no step. After what
    /// is to be read; the document counts as saved from here on. Answers their numbers.
    std::vector<std::uint32_t> Finish();

    /// What was wrong, but does no harm: catalogs that cannot be opened.
    const std::vector<std::string>& Notes() const { return notes_; }

private:
    /// A reference that was read before its feature was made.
    struct Pending {
        KORFeature* feature;
        KORSlot slot;
        bool list;
        std::size_t first;  ///< in references_
        std::size_t count;
    };

    void ReadHead();
    void ReadNames();
    void ReadCatalogs();
    void ReadContainers();
    void ReadFeatures();
    void ReadSteps();
    void MakeFeature(const KORSqliteStatement& row, const KORDiskContainers& containers);
    void ReadAttributes(std::string_view packed, KORFeature& feature);
    void Resolve();
    KORValue ResolveList(const Pending& pending);
    KORFeature* Target(const Pending& pending, std::size_t entry);  ///< null for an empty entry
    const KORLayoutHandle& LayoutOf(std::uint64_t name);
    bool ReadEntries(std::string_view packed, const KORDiskContainers& containers, KORUndoStep& step);

    void Damaged(const std::string& what);  ///< only the first one counts
    bool Answer(KORFileError& error);
    bool Failed() const { return error_ || file_.Failed(); }

    KORSqlite& file_;
    const std::string name_;
    KORMemoryDocument& document_;
    KORDiskIndex& index_;
    std::optional<KORDiskSlots> slots_;
    std::vector<KORLayoutHandle> layouts_;  ///< by the type's number less 1, once a feature was of it
    std::vector<KORVar<KORFeature>>
        outside_;  ///< the features that lie in no container: nothing else may hold them
    std::vector<Pending> pending_;
    std::vector<std::uint32_t> references_;
    std::vector<std::string> notes_;
    std::optional<KORFileError> error_;
};
