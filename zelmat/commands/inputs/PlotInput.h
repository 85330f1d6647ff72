#pragma once

#include <string>
#include <vector>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/layups/LayupCard.h"

namespace zelmat {

class Arguments;

/// What is to be drawn.
struct PlotContent {
    std::vector<Material> materials;
    std::vector<LayupCard> layups;
};

/// `CARD|DOC [MATERIAL|LAYUP]`: what a command draws that draws materials and layups alike.
class PlotInput {
public:
    void Declare(Arguments& line);

    const std::string& Path() const { return path_; }

    /// What is drawn of it.
    struct Kinds {
        bool materials = true;
        bool layups = true;
    };

    /// All of the kinds wanted, or the one of them that is named; of a document "#number" counts its
    /// materials first, then its layups. None, or those without a mistake, and findings, when not all can be
    /// read.
    PlotContent Read(const CommandContext& context, const Kinds& kinds) const;

private:
    PlotContent OfLayupCard(Findings& findings) const;
    PlotContent OfCard(std::string text, Findings& findings) const;
    PlotContent OfDocument(DocumentToRead& document, const Kinds& kinds, Findings& findings) const;

    std::string path_;
    std::string wanted_;  // empty: not said
    CardReading how_;
};

}  // namespace zelmat
