#pragma once

#include <string>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/Progress.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/report/ReportContent.h"

namespace zelmat {

/// Adds what a card, a document or a layup card holds to a report: read, checked, stored in a document in
/// memory and read back, so that a data sheet has what `show` prints. What cannot be read is a finding of the
/// command; what is wrong with a material is one of the command and of its data sheet, which is there all the
/// same.
class ReportGathering {
public:
    ReportGathering(CommandContext& context, const UnitChoice& units, ReportContent& content)
        : context_(context), units_(units), content_(content) {}

    void Add(const std::string& path) { Add(ReadGiven(path, context_.options, context_.findings)); }
    void Add(GivenContent given);

    /// Draws every picture of what was added; false, and a finding, when that fails.
    [[nodiscard]] bool Draw(Progress& progress);

    std::size_t Pictures() const { return pictures_; }

private:
    void AddMaterial(Material material);
    void AddLayup(LayupCard card);

    CommandContext& context_;
    const UnitChoice& units_;
    ReportContent& content_;
    std::size_t pictures_ = 0;
};

}  // namespace zelmat
