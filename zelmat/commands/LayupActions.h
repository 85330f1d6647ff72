#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/reports/ChangeReport.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/layups/WholeLayup.h"

namespace zelmat {

class Arguments;

/// What `zelmat layup` does with the layups that a document keeps: list, show, add, set, remove. Their plies
/// are links to materials of the document.
class LayupActions {
public:
    void Declare(Arguments& line);

    /// Whether an action was asked for.
    bool IsAsked() const { return !action_.empty(); }

    /// Makes a layup card of a stacking notation or of a card's path; nothing, and findings, when it is none.
    using ReadStack = std::function<std::optional<LayupCard>(const std::string& text, Findings& findings)>;

    void Work(CommandContext& context, const std::string& document, const ReadStack& read);

    void Print(std::ostream& out, const UnitChoice& units) const;
    nlohmann::ordered_json Json(const UnitChoice& units) const;

private:
    void List(CommandContext& context, const std::string& path);
    void Change(CommandContext& context, const std::string& path, const std::optional<LayupCard>& card);

    std::string action_;
    std::string name_;
    std::string stack_;  // a notation, or the path of a card
    std::vector<WholeLayup> layups_;
    bool read_ = false;
    std::optional<SavedChange> change_;
};

}  // namespace zelmat
