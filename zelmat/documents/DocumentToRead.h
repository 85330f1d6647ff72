#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/disk/KORDiskDocument.h"
#include "platform/store/KORStep.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/DocumentMaterials.h"
#include "zelmat/materials/HostPlatform.h"

namespace zelmat {

/// A document that somebody looks at, from a file or in its text form. Reading can create features and bring
/// older ones up to date; all that happens in memory, in a step that is never committed, and nothing is
/// written. While it lives its platform's services are the current ones.
class DocumentToRead {
public:
    /// Null, and findings, when it cannot be read, or a material of an older release cannot be brought up to
    /// date without a guess. `step`: not the document as it is, but as it was after the step of that number;
    /// 0: before the first that is kept.
    static std::unique_ptr<DocumentToRead> Open(const std::string& path, const std::string& catalogs,
                                                Findings& findings,
                                                std::optional<std::uint32_t> step = std::nullopt);

    /// The same as it is, with what its steps changed read, too: for GoTo.
    static std::unique_ptr<DocumentToRead> OpenWithSteps(const std::string& path, const std::string& catalogs,
                                                         Findings& findings);

    /// The same of a text that was read already; `name` is what findings call it.
    static std::unique_ptr<DocumentToRead> OpenText(const std::string& text, const std::string& name,
                                                    const std::string& catalogs, Findings& findings);

    const std::string& Name() const { return name_; }  ///< what findings call it
    KORMemoryDocument& Document();

    /// Looks at it as it was after the step of that number; handles of its features are good no more. False,
    /// and findings, when there is no such step, or a material cannot be brought up to date.
    [[nodiscard]] bool GoTo(std::uint32_t step, Findings& findings);

    /// In the shape in which cards give them.
    std::vector<Material> Materials(Findings& findings);

    /// What the file tells of its steps, oldest first; none in the text form.
    std::vector<KORHistoryStep> Steps() const {
        return file_ ? file_->Steps() : std::vector<KORHistoryStep>();
    }

private:
    DocumentToRead(std::string name, const std::string& catalogs) : name_(std::move(name)), host_(catalogs) {}

    static std::unique_ptr<DocumentToRead> OpenFile(const std::string& path, const std::string& catalogs,
                                                    KORDiskDocument::History history, Findings& findings);
    bool GoToStep(std::uint32_t step, Findings& findings);
    /// Begins the step and brings the materials up to date. False, and findings, when that cannot be done.
    bool Begin(Findings& findings);

    const std::string name_;
    HostPlatform host_;
    std::unique_ptr<KORDiskDocument> file_;  // null: the document is the host's own
    std::optional<KORStep> looking_;         // let go of first
};

}  // namespace zelmat
