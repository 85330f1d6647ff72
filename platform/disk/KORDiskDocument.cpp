#include "platform/disk/KORDiskDocument.h"

#include <algorithm>

#include "platform/analysis/KORUnitTypes.h"
#include "platform/disk/KORDiskReader.h"
#include "platform/disk/KORDiskSchema.h"

KORDiskDocument::KORDiskDocument(KORPlatform& platform, const std::string& path, KORDiskFile::Use use)
    : platform_(platform), file_(path), use_(use), document_(KORMemoryDocument::New(platform)) {}

KORDiskDocument::~KORDiskDocument() {
    document_->Close();
    if (!made_) return;
    file_.Unmake();  // while the lock keeps others from taking it
    file_.Connection().RollBack();
}

std::unique_ptr<KORDiskDocument> KORDiskDocument::Create(KORPlatform& platform, const std::string& path,
                                                         KORFileError& error) {
    std::unique_ptr<KORDiskDocument> made(new KORDiskDocument(platform, path, KORDiskFile::Use::Change));
    made->made_ = true;
    if (!made->file_.Make(error)) return nullptr;
    made->locked_ = true;
    return made;
}

std::unique_ptr<KORDiskDocument> KORDiskDocument::OpenToRead(KORPlatform& platform, const std::string& path,
                                                             KORFileError& error, History history) {
    std::unique_ptr<KORDiskDocument> opened(new KORDiskDocument(platform, path, KORDiskFile::Use::Read));
    bool newer = false;
    if (!opened->file_.Open(KORDiskFile::Use::Read, newer, error)) return nullptr;
    if (!opened->Load(history, error)) {
        if (newer) error.message = "its format is newer than this program, which cannot read it";
        return nullptr;
    }
    if (newer) opened->notes_.push_back("its format is newer than this program: it can be read only");
    opened->file_.Connection().RollBack();
    opened->file_.Connection().Close();
    return opened;
}

std::unique_ptr<KORDiskDocument> KORDiskDocument::OpenToChange(KORPlatform& platform, const std::string& path,
                                                               KORFileError& error) {
    std::unique_ptr<KORDiskDocument> opened(new KORDiskDocument(platform, path, KORDiskFile::Use::Change));
    bool newer = false;
    if (!opened->file_.Open(KORDiskFile::Use::Change, newer, error)) return nullptr;
    if (newer) {
        error = {path, 0, 0, "its format is newer than this program: it can be read, not changed"};
        return nullptr;
    }
    if (!opened->Load(History::Steps, error)) return nullptr;
    opened->locked_ = true;
    return opened;
}

bool KORDiskDocument::Load(History history, KORFileError& error) {
    KORDiskReader reader(file_.Connection(), file_.Path(), *document_, index_);
    if (!reader.Read(error) || (history == History::Steps && !reader.ReadHistory(error))) {
        if (file_.Connection().Failed()) error = file_.Error("cannot be read");
        return false;
    }
    hasSteps_ = history == History::Steps;
    vanished_ = reader.Finish();
    notes_ = reader.Notes();
    return true;
}

bool KORDiskDocument::Save(const KORHistoryOrigin& origin, KORFileError& error) {
    if (!CanSave() || lost_) {
        error = {file_.Path(), 0, 0,
                 lost_ ? "could not be read after a failed save" : "was opened to be read only"};
        return false;
    }
    if (document_->Log().IsOpen()) {
        error = {file_.Path(), 0, 0, "cannot be saved in the middle of a step"};
        return false;
    }
    if (!locked_ && !file_.Lock(error)) {
        if (!file_.Connection().IsBusy()) Reread();
        return false;
    }
    if (WriteAll(origin, error)) return true;
    Reread();
    return false;
}

bool KORDiskDocument::WriteAll(const KORHistoryOrigin& origin, KORFileError& error) {
    KORSqlite& connection = file_.Connection();
    if (made_) KORDiskSchema::Make(connection);
    KORDiskWriter writer(connection, file_.Path(), *document_, index_);
    if (!writer.Write(origin, vanished_, error) || !connection.Run("COMMIT")) {
        if (connection.Failed()) error = file_.Error("cannot be saved");
        return false;
    }
    locked_ = false;
    made_ = false;
    vanished_.clear();
    document_->Features().Clean();
    document_->Log().Saved();
    file_.NoteVersion();
    return true;
}

void KORDiskDocument::Reread() {
    file_.Connection().RollBack();
    file_.Connection().ClearFailure();
    locked_ = false;
    document_->Close();
    document_ = KORMemoryDocument::New(platform_);
    index_ = {};
    KORFileError problem;
    // Of a file that is no document yet, nothing but the lock is lost.
    lost_ = !made_ && (!file_.Connection().Run("BEGIN") || !Load(History::Steps, problem));
    file_.Connection().RollBack();
    file_.Connection().ClearFailure();
    file_.NoteVersion();
}

bool KORDiskDocument::IsModified() const {
    const auto isNew = [](const KORUndoStep& step) { return step.changed; };
    const KORUndoLog& log = document_->Log();
    return made_ || !document_->Features().Dirty().empty() || std::ranges::any_of(log.Steps(), isNew);
}

std::vector<KORHistoryStep> KORDiskDocument::Steps() const {
    if (!hasSteps_) return index_.steps;
    std::vector<KORHistoryStep> steps;
    auto known = index_.steps.begin();
    for (const KORUndoStep& step : document_->Log().Steps()) {
        while (known != index_.steps.end() && known->number < step.number) ++known;
        const bool isKnown = known != index_.steps.end() && known->number == step.number;
        steps.push_back(isKnown ? *known : KORHistoryStep{step.number, step.name});
        steps.back().done = steps.size() <= document_->Log().Done();
    }
    return steps;
}

bool KORDiskDocument::GoToStep(std::uint32_t number) {
    const KORUndoLog& log = document_->Log();
    const auto& steps = log.Steps();
    const auto found = std::ranges::find(steps, number, &KORUndoStep::number);
    if (log.IsOpen() || (number != 0 && found == steps.end())) return false;
    const std::size_t done = number == 0 ? 0 : static_cast<std::size_t>(found - steps.begin()) + 1;
    while (log.Done() > done) document_->Undo();
    while (log.Done() < done) document_->Redo();
    return true;
}

void KORDiskDocument::SetHistoryBounds(std::int64_t steps, std::int64_t bytes) {
    index_.head.mostSteps = steps;
    index_.head.mostBytes = bytes;
}

bool KORDiskDocument::SetPressureUnit(const std::string& symbol) {
    if (!symbol.empty() && !KORFindUnit(*KORFindUnitType("PRESSURE"), symbol)) return false;
    index_.head.pressureUnit = symbol;
    return true;
}
