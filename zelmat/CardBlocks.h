#pragma once

#include <string>
#include <vector>

#include "framework/KORStatus.h"

class ZELIMaterial;

namespace zelmat {

struct CardTable;
struct StoredTable;

/// A quantity of a table, as the card and the report name it.
struct CardColumn {
    std::string name;   ///< on the card: "youngs_modulus"
    std::string title;  ///< in the report: "Young's modulus"
    std::string unit;   ///< SI, the unit both of the card and of the store; "-" for pure numbers
};

/// Whether a table carries a temperature column, which then is its last one.
enum class TemperatureRule {
    AS_FLAGGED,  ///< exactly when the table is temperature dependent
    ALWAYS,      ///< also when it is not, as a plain fact about the rows
    NEVER,
};

/// One shape that the rows of a block can have.
struct CardTableForm {
    std::string hardening;  ///< the block's `hardening` that selects this form; empty when it has none
    std::vector<CardColumn> columns;
    TemperatureRule temperature = TemperatureRule::AS_FLAGGED;

    /// The columns of a table of this form, the temperature column included.
    std::vector<CardColumn> ColumnsOf(bool temperatureDependent) const;
};

/// What becomes of a block that a card may have.
enum class CardUse {
    SHOWN,            ///< goes through a behavior of the material
    NOT_SHOWN_YET,    ///< the program does not handle it so far
    FOR_INFORMATION,  ///< no behavior uses it
};

/// All that tells one block of a card from the next. A new block is a new entry in CardBlocks.cpp.
struct CardBlock {
    std::string name;
    std::string title;
    CardUse use = CardUse::SHOWN;
    /// Empty when the block is no single table; its contents are not read then.
    std::vector<CardTableForm> forms = {};
    /// The key `reference_temperature` (K) is required, and `kind` allowed.
    bool referenceTemperature = false;

    /// Writes a table through the block's behavior; null unless the block is shown.
    HRESULT (*write)(ZELIMaterial& material, const CardTable& table) = nullptr;
    /// Has the block's behavior read its data from the store again and answers them; null unless shown.
    StoredTable (*read)(ZELIMaterial& material) = nullptr;
};

/// Every block a card may have, in the order of the report.
const std::vector<CardBlock>& CardBlocks();

/// Null when there is no block of that name.
const CardBlock* FindCardBlock(const std::string& name);

/// The column that closes every table with temperatures.
const CardColumn& TemperatureColumn();

}  // namespace zelmat
