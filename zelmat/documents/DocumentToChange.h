#pragma once

#include <memory>
#include <string>

#include "platform/disk/KORDiskDocument.h"
#include "zelmat/documents/UpgradeMaterials.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/HostPlatform.h"
#include "zelmat/settings/Settings.h"

namespace zelmat {

/// A document in a file that a command changes. Others can read the file meanwhile, and whoever wants to
/// change it waits. While it lives its platform's services are the current ones.
class DocumentToChange {
public:
    /// What opening does with materials of an older release: undo and redo leave them alone.
    enum class Older { UPGRADED, LEFT };

    /// Null, and findings, when it cannot be changed: a document in its text form, one of a newer release,
    /// one that somebody else changes, a file that is none. Materials of an older release are brought up to
    /// date in a step of their own, told as a note; it is saved with the first change. Also none when the
    /// user's settings cannot be read: they say how much history is kept.
    static std::unique_ptr<DocumentToChange> Open(const std::string& path, const std::string& catalogs,
                                                  Findings& findings, Older older = Older::UPGRADED);

    /// A new, empty document in a file that is not there yet. It is one with the first Save. It names no unit
    /// of pressure: whoever fills it does.
    static std::unique_ptr<DocumentToChange> Create(const std::string& path, const std::string& catalogs,
                                                    Findings& findings);

    const std::string& Path() const { return path_; }
    KORMemoryDocument& Document() { return file_->Document(); }
    KORDiskDocument& File() { return *file_; }
    const UpgradeReport& Upgrade() const { return upgrade_; }  ///< by opening it

    /// Saves what has changed. False, and a finding: the file is as it was.
    [[nodiscard]] bool Save(const KORHistoryOrigin& origin, Findings& findings);

private:
    DocumentToChange(const std::string& path, const std::string& catalogs) : path_(path), host_(catalogs) {}

    bool BringUpToDate(Findings& findings);
    void KeepHistoryBounds();

    const std::string path_;
    HostPlatform host_;
    std::unique_ptr<KORDiskDocument> file_;
    std::optional<Settings> settings_;  // always there once it is opened
    UpgradeReport upgrade_;
};

}  // namespace zelmat
