#pragma once

#include "platform/store/KORStoreDocument.h"

/// Scope of an undoable step: what is written while it lives is undone and redone as one. Leaving it without
/// Commit rolls its writes back. Scopes nest: a committed inner one hands its changes to the outer one, and
/// only the outermost becomes a step under its name. A step in which nothing changed is not kept, and neither
/// it nor one that is rolled back costs the steps that can be redone. Does not outlive its document.
class KORStep {
public:
    KORStep(KORStoreDocument& document, std::string name)
        : log_(document.Log()),
          name_(std::move(name)),
          begin_(log_.OpenEntries().size()),
          outerStamp_(log_.Stamp()) {
        log_.Open();
    }
    KORStep(const KORStep&) = delete;
    KORStep& operator=(const KORStep&) = delete;
    ~KORStep() {
        if (!committed_) log_.RollBack(begin_, outerStamp_);
    }

    /// Keeps the changes. Once, as the scope's last act. Throws without memory; the scope then rolls back.
    void Commit() {
        log_.Commit(std::move(name_), outerStamp_);
        committed_ = true;
    }

private:
    KORUndoLog& log_;
    std::string name_;
    std::size_t begin_;  ///< of its entries among the open ones
    std::uint32_t outerStamp_;
    bool committed_ = false;
};
