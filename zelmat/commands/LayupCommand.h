#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"

namespace zelmat {

/// `zelmat layup`: makes a layup from a stacking notation or from a card in a document in memory, reads it
/// back from there, checks it, prints it and draws it. Keeps nothing on disk but the drawing.
struct LayupCommand {
    std::string layup;      ///< a stacking notation, or the path of a card
    std::string material;   ///< of a notation: the one that all plies are of
    std::string thickness;  ///< of a notation: of each ply, with its unit
    std::string section;    ///< "composite", "homogeneous": one that references the layup; empty: none
    std::string drawing;    ///< where the SVG picture goes; empty: nowhere
    std::string catalogs;   ///< folder of the feature catalogs
    bool json = false;      ///< one JSON object on standard output, findings included

    ExitCode Run(std::ostream& out, std::ostream& err) const;

private:
    bool IsNotation() const;
    std::optional<LayupCard> Given(Findings& findings) const;
    std::optional<LayupCard> FromNotation(Findings& findings) const;
};

}  // namespace zelmat
