#include "platform/store/KORUndoLog.h"

#include <algorithm>

void KORUndoLog::Log(KORFeature& feature, KORSlot slot, KORValue&& value) {
    open_.push_back({KORVar<KORFeature>(&feature), slot, std::move(value)});
    open_.back().Apply();
}

bool KORUndoLog::Undo() noexcept {
    if (!CanUndo()) return false;
    RaiseGeneration();
    KORUndoStep& step = steps_[--done_];
    step.changed = true;
    auto& entries = step.entries;
    std::for_each(entries.rbegin(), entries.rend(), [](KORUndoEntry& entry) { entry.Apply(); });
    return true;
}

bool KORUndoLog::Redo() noexcept {
    if (!CanRedo()) return false;
    RaiseGeneration();
    KORUndoStep& step = steps_[done_++];
    step.changed = true;
    auto& entries = step.entries;
    std::for_each(entries.begin(), entries.end(), [](KORUndoEntry& entry) { entry.Apply(); });
    return true;
}

void KORUndoLog::Clear() noexcept {
    done_ = 0;
    steps_.clear();
}

void KORUndoLog::Drop() noexcept {
    Clear();
    open_.clear();
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
        // The open entries' room is used again by the next step; what is kept takes no more than it needs.
        const auto begin = std::make_move_iterator(open_.begin());
        std::vector<KORUndoEntry> entries(begin, begin + static_cast<std::ptrdiff_t>(open_.size()));
        open_.clear();
        steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
        steps_.push_back({std::move(name), std::move(entries), ++lastNumber_});
        ++done_;
    }
    stamp_ = outerStamp;  // an outer scope has the entries already
}

void KORUndoLog::RollBack(std::size_t begin, std::uint32_t outerStamp) noexcept {
    if (open_.size() > begin) RaiseGeneration();
    while (open_.size() > begin) {
        KORUndoEntry last = std::move(open_.back());
        open_.pop_back();
        last.Apply();
    }
    stamp_ = outerStamp;
}
