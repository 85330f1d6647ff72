#pragma once

#include <string>
#include <vector>

#include "zelmat/materials/CardBlocks.h"
#include "zelmat/materials/CardValues.h"

namespace zelmat {

/// One table, as the card gives it: checked for form, not for physical sense.
struct CardTable {
    const CardTableKind* kind = nullptr;
    CardTableForm form = {};
    bool temperatureDependent = false;
    /// SI; the columns in the order of form.ColumnsOf(temperatureDependent).
    std::vector<std::vector<double>> rows = {};
    std::vector<int> lines = {};  ///< of each row
    std::string source = {};      ///< where the values were published; may be empty
    int line = 0;                 ///< of the rows as a whole
};

/// What a card gives for one block.
struct CardData {
    const CardBlock* block = nullptr;
    CardValues values = {};
    std::vector<CardTable> tables = {};  ///< in the order of the block's kinds; those the card has
    int line = 0;

    const CardTable* Table(const CardTableKind* kind) const;  ///< null when the card does not have it
    const CardTable* Table(const std::string& name) const;
};

/// A material card: the published properties of one material. Plain data, made by MaterialCardReader.
struct MaterialCard {
    std::string file;
    std::string name;
    std::string description;
    std::vector<std::string> sources;
    bool illustrative = false;          ///< the values are made up
    std::vector<CardData> data;         ///< for behaviors, in the order of CardBlocks()
    std::vector<CardData> fits;         ///< alternative hyperelastic models; a material takes one
    std::vector<CardData> information;  ///< for no behavior
};

/// One table, as the store has it.
struct StoredTable {
    const CardTableKind* kind = nullptr;
    bool temperatureDependent = false;
    std::vector<CardColumn> columns = {};
    std::vector<std::vector<double>> rows = {};  ///< as wide as the columns
};

/// The data of one block's behavior, as the store has them.
struct StoredBlock {
    const CardBlock* block = nullptr;
    HRESULT status = S_OK;  ///< the first read that failed; what follows is incomplete then
    bool enabled = false;
    CardValues values = {};
    std::vector<StoredTable> tables = {};  ///< those with rows
    const CardData* given = nullptr;       ///< what the card gave for it, if anything

    void AddTable(const CardTableKind& kind, bool temperatureDependent,
                  std::vector<std::vector<double>> rows);
};

}  // namespace zelmat
