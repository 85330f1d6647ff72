#pragma once

#include "platform/disk/KORDiskFile.h"
#include "platform/disk/KORDiskIndex.h"
#include "platform/disk/KORDiskWriter.h"

/// A document that lies in a file: the document in memory, and what keeps the two together. Its undo history
/// lies in the file, too: undo and redo go on where an earlier program stopped. docs/document.md describes
/// the file.
///
/// It is no live view: what another program saves later is not seen. Nothing is saved but by Save.
class KORDiskDocument {
public:
    /// How much of the history is read: the names of its steps, or also what they changed, so that they can
    /// be undone and redone.
    enum class History { Names, Steps };

    /// A new, empty document. The file is made at once and becomes a document with the first Save; without
    /// one it goes again. Null, and `error` filled, when there is such a file already; one that is empty, as
    /// an interrupted making leaves it, is taken. The platform outlives the document.
    [[nodiscard]] static std::unique_ptr<KORDiskDocument> Create(KORPlatform& platform,
                                                                 const std::string& path,
                                                                 KORFileError& error);

    /// Reads a document. The file is free for others again when this answers.
    [[nodiscard]] static std::unique_ptr<KORDiskDocument> OpenToRead(KORPlatform& platform,
                                                                     const std::string& path,
                                                                     KORFileError& error,
                                                                     History history = History::Names);

    /// Locks a document for changes, then reads it. Others can read it meanwhile; whoever wants to change it
    /// waits for up to KORSqlite::kPatience. The lock goes with the next Save, or with this object. Refused:
    /// a file of a newer format, one that cannot be written, and one with several names (hard links).
    [[nodiscard]] static std::unique_ptr<KORDiskDocument> OpenToChange(KORPlatform& platform,
                                                                       const std::string& path,
                                                                       KORFileError& error);

    ~KORDiskDocument();  ///< what was not saved is lost
    KORDiskDocument(const KORDiskDocument&) = delete;
    KORDiskDocument& operator=(const KORDiskDocument&) = delete;

    /// The document in memory. Another one after a Save that failed.
    KORMemoryDocument& Document() { return *document_; }
    const std::string& Path() const { return file_.Path(); }

    /// Saves all that has changed, in one transaction: durable when this answers true, with the cost of the
    /// change. The steps that are new are kept as the origin's.
    ///
    /// False, and `error` filled: the file is as it was saved last. Document() is another one then, read from
    /// it anew, and handles of the old one's features read as never valued; only when a step is open, or
    /// another program has the lock, all stays as it is, to be tried again. So it does, for good, in what was
    /// opened to be read only.
    ///
    /// The first Save lets go of the lock; one more takes it again, and fails when another program has
    /// changed the file in between.
    [[nodiscard]] bool Save(const KORHistoryOrigin& origin, KORFileError& error);

    bool CanSave() const { return use_ == KORDiskFile::Use::Change; }
    /// A feature or a step has changed since the last Save, or there was none yet. Settings (the history's
    /// bounds, the unit of pressure), containers and catalogs are saved, too, but do not count here.
    bool IsModified() const;

    /// The steps that are kept, oldest first, the undone ones last. Those that are not saved yet have no
    /// time, user and command.
    std::vector<KORHistoryStep> Steps() const;

    /// Undoes and redoes, in memory, until the step of that number is the last one done; 0: all are undone.
    /// False, and nothing happens, when no such step is kept, or the history's steps were not read.
    [[nodiscard]] bool GoToStep(std::uint32_t number);

    /// How much history is kept, from the next Save on: no more steps and bytes than these, oldest going
    /// first. The step made last stays, however large it is, unless the number of steps is 0.
    void SetHistoryBounds(std::int64_t steps, std::int64_t bytes);
    std::int64_t MostSteps() const { return index_.head.mostSteps; }
    std::int64_t MostBytes() const { return index_.head.mostBytes; }

    /// Symbol of the unit of pressure that numbers of older releases in the document are in; empty: nobody
    /// said. It is the document's alone: the platform's current unit, of which there is one for all documents
    /// that are open, neither becomes it nor is saved.
    const std::string& PressureUnit() const { return index_.head.pressureUnit; }
    /// From the next Save on. False, and nothing changes, when that is no unit of pressure.
    [[nodiscard]] bool SetPressureUnit(const std::string& symbol);

    /// What users should know and is no error: a newer format, catalogs that cannot be opened. Sentences
    /// without the file's name.
    const std::vector<std::string>& Notes() const { return notes_; }

private:
    KORDiskDocument(KORPlatform& platform, const std::string& path, KORDiskFile::Use use);

    bool Load(History history, KORFileError& error);
    bool WriteAll(const KORHistoryOrigin& origin, KORFileError& error);
    void Reread();

    KORPlatform& platform_;
    KORDiskFile file_;
    const KORDiskFile::Use use_;
    KORVar<KORMemoryDocument> document_;
    KORDiskIndex index_;
    std::vector<std::uint32_t> vanished_;  ///< numbers of features in the file to which nothing leads
    std::vector<std::string> notes_;
    bool hasSteps_ = true;  ///< the undo log is the file's history
    bool made_ = false;     ///< the file is no document yet
    bool locked_ = false;   ///< a transaction stands open
    bool lost_ = false;     ///< a save failed, and then the file could not be read
};
