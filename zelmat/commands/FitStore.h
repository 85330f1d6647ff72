#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/store/KORStep.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/Result.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/inputs/FitInput.h"
#include "zelmat/documents/DocumentToChange.h"
#include "zelmat/materials/DocumentMaterials.h"
#include "zelmat/mechanics/fit/HardeningFit.h"
#include "zelmat/mechanics/fit/HyperelasticFit.h"

namespace zelmat {

class Arguments;

/// `fit --store`: puts a fitted potential or hardening law into a material of a document, as one step that
/// undo takes back. The document is open for change from before it is read, so that nobody changes it in
/// between. A potential that was stored before stays among the material's fits; a law takes the place of the
/// plastic block.
class FitStore {
public:
    void Declare(Arguments& line);
    bool IsWanted() const { return wanted_; }

    /// The material as it stands in the document. Nothing, and findings, when it cannot be changed.
    std::optional<Material> Open(const std::string& path, const std::string& material,
                                 CommandContext& context);

    /// False, and findings: the document is as it was.
    bool Store(const mechanics::HyperelasticFit& fit, CommandContext& context, Result& result);
    bool Store(const mechanics::HardeningFit& fit, const HardeningCurve& curve, CommandContext& context,
               Result& result);

private:
    /// `changed`: the block of `now` that a behavior is given.
    bool Write(const Material& now, const Block& changed, CommandContext& context, Result& result);

    bool wanted_ = false;
    WriteGate gate_;
    std::unique_ptr<DocumentToChange> document_;
    std::optional<KORStep> step_;  ///< let go of before the document
    std::optional<DocumentMaterial> target_;
    std::optional<Material> before_;
};

}  // namespace zelmat
