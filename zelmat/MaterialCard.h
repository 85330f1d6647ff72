#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/CardBlocks.h"

namespace zelmat {

/// The table of one block, as the card gives it: checked for form, not for physical sense.
struct CardTable {
    const CardBlock* block = nullptr;
    const CardTableForm* form = nullptr;
    bool temperatureDependent = false;
    /// SI; the columns in the order of form->ColumnsOf(temperatureDependent).
    std::vector<std::vector<double>> rows;
    std::optional<double> referenceTemperature;  ///< K
    std::string source;                          ///< where the values were published; may be empty
    int line = 0;                                ///< of the rows
};

/// A material card: the published properties of one material. Plain data, made by MaterialCardReader.
struct MaterialCard {
    std::string file;
    std::string name;
    std::string description;
    std::vector<std::string> sources;
    bool illustrative = false;               ///< the values are made up
    std::vector<CardTable> tables;           ///< of the blocks that are shown, in the order of CardBlocks()
    std::vector<const CardBlock*> notShown;  ///< the card's other blocks, in that order too
};

/// The data of one behavior, as the store has them.
struct StoredTable {
    const CardBlock* block = nullptr;
    HRESULT status = S_OK;  ///< the first read that failed; what follows is incomplete then
    bool enabled = false;
    bool temperatureDependent = false;
    std::vector<std::vector<double>> rows;       ///< as wide as the block's columns
    std::optional<double> referenceTemperature;  ///< K
};

}  // namespace zelmat
