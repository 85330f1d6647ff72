#pragma once

#include <optional>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

class Arguments;

/// `--model` and `--variant`: which of a material's hyperelastic fits a command works with.
class FitOption {
public:
    void Declare(Arguments& line);
    bool IsMade() const { return choice_.IsMade(); }

    /// The fit in the stored meaning; of several that would do the first, which is told as a note where
    /// nothing was chosen. Nothing, and a finding, when there is none.
    std::optional<Block> Choose(const Material& material, Findings& findings) const;

private:
    FitChoice choice_;
};

}  // namespace zelmat
