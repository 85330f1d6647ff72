#pragma once

#include <ostream>
#include <string>

#include "zelmat/cards/FitChoice.h"

namespace zelmat {

/// `zelmat show CARD.json`: reads a card, writes it into a document in memory, reads it back from there and
/// prints what the document holds. Keeps nothing on disk.
struct ShowCommand {
    std::string card;      ///< path of the card
    std::string catalogs;  ///< folder of the feature catalogs
    FitChoice fit;         ///< of several hyperelastic fits
    bool allFits = false;  ///< show each in turn
    bool json = false;     ///< one JSON object on standard output, findings included
    bool trace = false;    ///< every interface call on standard error

    ExitCode Run(std::ostream& out, std::ostream& err) const;
};

}  // namespace zelmat
