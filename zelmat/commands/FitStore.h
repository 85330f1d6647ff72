#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/store/KORStep.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/Result.h"
#include "zelmat/commands/WriteGate.h"
#include "zelmat/documents/DocumentToChange.h"
#include "zelmat/materials/DocumentMaterials.h"
#include "zelmat/mechanics/fit/HyperelasticFit.h"

namespace zelmat {

/// `fit --store`: puts a fitted potential into the material of a document whose tests it was fitted to, as
/// one step that undo takes back. The document is open for change from before it is read, so that nobody
/// changes it in between. The fit that was stored before stays among the material's fits.
class FitStore {
public:
    void Declare(CLI::App& line);
    bool IsWanted() const { return wanted_; }

    /// The material as it stands in the document. Nothing, and findings, when it cannot be changed.
    std::optional<Material> Open(const std::string& path, const std::string& material,
                                 CommandContext& context);

    /// False, and findings: the document is as it was.
    bool Store(const mechanics::HyperelasticFit& fit, CommandContext& context, Result& result);

private:
    bool wanted_ = false;
    WriteGate gate_;
    std::unique_ptr<DocumentToChange> document_;
    std::optional<KORStep> step_;  ///< let go of before the document
    std::optional<DocumentMaterial> target_;
    std::optional<Material> before_;
};

}  // namespace zelmat
