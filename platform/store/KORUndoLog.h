#pragma once

#include <string>
#include <vector>

#include "framework/KORUndoCount.h"
#include "platform/store/KORUndoEntries.h"

/// A committed step: its entries undo it when they are applied backwards and redo it forwards.
struct KORUndoStep {
    std::string name;
    KORUndoEntries entries;    ///< at most one per slot and scope
    std::uint32_t number = 0;  ///< in its document, from 1 on: never another step's
    bool changed = true;       ///< committed, undone or redone since it was saved last
};

/// The changes of one document that can be undone and redone. A step stands open while a KORStep scope lives;
/// writes outside any are not logged. Undo, redo and rollback move values and copy none; their cost is that
/// of the change. They raise the generation: what extensions know of their features is out of date.
class KORUndoLog {
public:
    /// The committed steps, oldest first. The first Done() can be undone, the others redone.
    const std::vector<KORUndoStep>& Steps() const { return steps_; }
    std::size_t Done() const { return done_; }

    /// What the open scopes have changed so far, oldest first.
    const KORUndoEntries& OpenEntries() const { return open_; }

    bool CanUndo() const { return !IsOpen() && done_ > 0; }
    bool CanRedo() const { return !IsOpen() && done_ < steps_.size(); }
    bool Undo() noexcept;  ///< false: there is nothing to undo, or a step stands open
    bool Redo() noexcept;

    std::uint32_t Generation() const { return generation_; }

    /// Forgets the committed steps; what is done stays done. An open step keeps its changes, to roll them
    /// back or to be the first one remembered.
    void Clear() noexcept;

    /// Forgets the open step's changes, too: the document is being closed.
    void Drop() noexcept;

    /// For whoever keeps the steps in a file.
    /// Takes over the steps that a document brings along, in place of those there are. `lastNumber` is the
    /// highest that its document has ever given to one. No step is open.
    void Restore(std::vector<KORUndoStep> steps, std::size_t done, std::uint32_t lastNumber) noexcept;
    void DropOldest(std::size_t count) noexcept;  ///< no more than Done()
    void Saved() noexcept;                        ///< no step has changed from here on
    std::uint32_t LastNumber() const { return lastNumber_; }

    bool IsOpen() const { return stamp_ != 0; }

    /// Identifies the innermost open scope; 0 when there is none. Counts up with every scope, so a slot takes
    /// a stale one for its own only if it was left alone for exactly 2^32 scopes.
    std::uint32_t Stamp() const { return stamp_; }

    /// Room for what is kept next, so that keeping it needs no memory.
    void MakeRoom() { open_.MakeRoom(); }

    /// Keeps what a slot held before it was written: what is needed to go back. There is room for it.
    const KORValue& Keep(KORFeature& feature, KORValue&& before) noexcept {
        return open_.Put(feature, std::move(before));
    }

private:
    friend class KORStep;

    void Open();
    void Commit(std::string&& name, std::uint32_t outerStamp);
    void RollBack(std::size_t begin, std::uint32_t outerStamp) noexcept;
    void RaiseGeneration() noexcept {
        ++generation_;
        KORCountUndo();
    }

    std::vector<KORUndoStep> steps_;
    std::size_t done_ = 0;
    std::uint32_t lastNumber_ = 0;  ///< given to a step
    KORUndoEntries open_;
    std::uint32_t stamp_ = 0;
    std::uint32_t lastStamp_ = 0;
    std::uint32_t generation_ = 0;
};
