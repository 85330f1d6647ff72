#include "platform/store/KORUndoLog.h"

#include <algorithm>

bool KORUndoLog::Undo() noexcept {
    if (!CanUndo()) return false;
    RaiseGeneration();
    KORUndoStep& step = steps_[--done_];
    step.changed = true;
    for (KORUndoEntry* entry = step.entries.end(); entry != step.entries.begin();) (--entry)->Apply();
    return true;
}

bool KORUndoLog::Redo() noexcept {
    if (!CanRedo()) return false;
    RaiseGeneration();
    KORUndoStep& step = steps_[done_++];
    step.changed = true;
    for (KORUndoEntry& entry : step.entries) entry.Apply();
    return true;
}

void KORUndoLog::Clear() noexcept {
    done_ = 0;
    steps_.clear();
}

void KORUndoLog::Drop() noexcept {
    Clear();
    open_.Clear();
}

void KORUndoLog::Restore(std::vector<KORUndoStep> steps, std::size_t done,
                         std::uint32_t lastNumber) noexcept {
    steps_ = std::move(steps);
    done_ = done;
    lastNumber_ = lastNumber;
}

void KORUndoLog::DropOldest(std::size_t count) noexcept {
    steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(count));
    done_ -= count;
}

void KORUndoLog::Saved() noexcept {
    for (KORUndoStep& step : steps_) step.changed = false;
}

void KORUndoLog::Open() {
    // Room for the step, so that a commit cannot fail halfway.
    if (steps_.size() == steps_.capacity()) steps_.reserve(std::max<std::size_t>(16, 2 * steps_.size()));
    if (++lastStamp_ == 0) lastStamp_ = 1;
    stamp_ = lastStamp_;
}

void KORUndoLog::Commit(std::string&& name, std::uint32_t outerStamp) {
    if (outerStamp == 0 && !open_.empty()) {
        // What is kept takes no more room than it needs.
        KORUndoEntries entries = open_.TakeAll();
        steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
        steps_.push_back({std::move(name), std::move(entries), ++lastNumber_});
        ++done_;
    }
    stamp_ = outerStamp;  // an outer scope has the entries already
}

void KORUndoLog::RollBack(std::size_t begin, std::uint32_t outerStamp) noexcept {
    if (open_.size() > begin) RaiseGeneration();
    while (open_.size() > begin) {
        KORUndoEntry last = open_.TakeLast();
        last.Apply();
    }
    stamp_ = outerStamp;
}
