#pragma once

#include "platform/disk/KORDiskContainers.h"
#include "platform/disk/KORDiskIndex.h"
#include "platform/disk/KORPackedBytes.h"
#include "platform/disk/KORSqliteStatement.h"

/// Who makes a change, for the history.
struct KORHistoryOrigin {
    std::string user = {};
    std::string command = {};
};

/// Writes what has changed in a document in memory to its file, in the transaction that stands open, and
/// nothing else: features that are dirty, steps that are new, undone or redone, names that are new. Forgets
/// the oldest steps beyond the document's bounds first, in memory too.
class KORDiskWriter {
public:
    /// All of them outlive this object. The index is brought up to date; it is that of the file once the
    /// transaction is committed.
    KORDiskWriter(KORSqlite& file, std::string name, KORMemoryDocument& document, KORDiskIndex& index)
        : file_(file), name_(std::move(name)), document_(document), index_(index), containers_(document) {}

    /// `vanished`: numbers of features that are in the file, but were not worth reading.
    /// False when it cannot be written; then `error` is filled, or the connection failed.
    [[nodiscard]] bool Write(const KORHistoryOrigin& origin, const std::vector<std::uint32_t>& vanished,
                             KORFileError& error);

private:
    /// The numbers of the names of a late type and its attributes.
    struct Type {
        std::uint32_t name;
        std::vector<std::uint32_t> attributes;
    };

    void PackSteps(const KORHistoryOrigin& origin);
    bool PackStep(const KORUndoStep& step);
    std::int64_t BytesBehind(const KORUndoEntry& entry);  ///< of the feature that it creates or removes
    void KeepBounds();
    void WriteSteps();
    void WriteFeatures(const std::vector<std::uint32_t>& vanished);
    void WriteFeature(KORSqliteStatement& row, const KORFeature& feature);
    void PackAttributes(const KORFeature& feature);
    void WriteNames();
    void WriteHead();
    const Type& TypeOf(const KORLayout& layout);
    void Fail(std::string message);  ///< only the first one counts

    KORSqlite& file_;
    const std::string name_;
    KORMemoryDocument& document_;
    KORDiskIndex& index_;
    const KORDiskContainers containers_;
    std::unordered_map<const KORLayout*, Type> types_;
    KORPacker packed_;
    std::vector<KORHistoryStep> steps_;                       ///< as they are to be
    std::unordered_map<std::uint32_t, std::string> entries_;  ///< of those that have changed, by number
    std::optional<KORFileError> error_;
};
