#pragma once

#include <optional>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/Result.h"

namespace zelmat {

/// A command that computes and shows what came of it, and writes nothing.
class Calculation : public Command {
public:
    void Work(CommandContext& context) final;
    void Print(std::ostream& out) const final;
    nlohmann::ordered_json Json() const final;

protected:
    /// Fills the result. False, with findings, when there is nothing to show.
    virtual bool Compute(CommandContext& context, Result& result) = 0;

private:
    std::optional<Result> result_;
    bool csv_ = false;
};

}  // namespace zelmat
