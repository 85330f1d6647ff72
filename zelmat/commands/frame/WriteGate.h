#pragma once

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

class Arguments;

/// Stands before whatever a command writes of a material or layup: it runs the checks, and errors stop the
/// write unless the user wants it all the same.
class WriteGate {
public:
    void Declare(Arguments& line);  ///< --keep-going

    /// Adds what the checks find. False: nothing of the material is to be written.
    bool Passes(const Material& material, Findings& findings) const;
    /// The same of a layup, without what its own validity is to say.
    bool Passes(const LayupCard& layup, Findings& findings) const;

    /// The same for a material that was there before: what was wrong with it already is neither told again
    /// nor stops the write.
    bool PassesChange(const Material& before, const Material& now, Findings& findings) const;

    bool KeepsGoing() const { return keepGoing_; }

private:
    bool keepGoing_ = false;
};

}  // namespace zelmat
