#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/mechanics/laminate/LaminateResponse.h"
#include "zelmat/properties/PlyOfMaterial.h"

namespace zelmat {

class Arguments;

/// The laminate that a command works with: `NOTATION|CARD|DOC [LAYUP]`, and of a notation what its plies
/// are.
class LaminateInput {
public:
    void Declare(Arguments& line);

    /// Nothing, and findings, when something is missing or cannot be.
    std::optional<LayupCard> Read(const PlyTemperature& at, CommandContext& context) const;

private:
    static void RefuseTemperature(Findings& findings);
    std::optional<LayupCard> FromDocument(DocumentToRead& document, const PlyTemperature& at,
                                          CommandContext& context) const;
    std::optional<LayupCard> FromNotation(const PlyTemperature& at, CommandContext& context) const;
    std::optional<PlyMaterial> Ply(const PlyTemperature& at, CommandContext& context) const;
    std::optional<PlyMaterial> PlyOfText(Findings& findings) const;

    std::string layup_;
    std::string wanted_;     // which layup of a document; empty: not said
    std::string material_;   // the path of a card
    std::string ply_;        // constants by name
    std::string thickness_;  // of each ply, with its unit
};

/// `--N`, `--M` and `--dT`.
class LoadOption {
public:
    void Declare(Arguments& line);

    bool IsGiven() const { return !force_.empty() || !moment_.empty() || !temperature_.empty(); }

    /// SI; findings for what is none.
    mechanics::LaminateLoad Read(Findings& findings) const;

private:
    std::string force_, moment_, temperature_;
};

}  // namespace zelmat
