#pragma once

#include <string>
#include <vector>

#include "framework/KORStatus.h"
#include "zelmat/materials/CardTableKind.h"

class ZELIMaterial;

namespace zelmat {

struct CardData;
struct CardTable;
struct StoredBlock;

/// What a setting's value is.
enum class SettingKind {
    FLAG,
    COUNT,   ///< a whole number
    NUMBER,  ///< in the setting's unit
    TEXT,
    UNREAD,  ///< anything; the program does not look at it
};

/// A single value of a block, beside its tables.
struct CardSetting {
    std::string name;  ///< on the card; "yield_onset.method" is the key `method` inside `yield_onset`
    std::string title;
    std::string unit = {};
    SettingKind kind = SettingKind::TEXT;
    bool required = false;
    bool stored = true;                     ///< false: a note, for the reader of the card
    std::vector<std::string> choices = {};  ///< of a text; empty when any will do
    int least = 0;                          ///< of a whole number
    int most = 1'000'000;
};

/// What becomes of a block that a card may have.
enum class CardUse {
    BEHAVIOR,         ///< goes through a behavior of the material
    FOR_INFORMATION,  ///< no behavior uses it
};

/// What a behavior answered when it was given a table; or other values, when `table` is null.
struct WriteStatus {
    const CardTable* table = nullptr;
    HRESULT status = S_OK;
};

/// All that tells one block of a card from the next. A new block is a new entry in CardBlocks.cpp.
struct CardBlock {
    std::string name;
    std::string title;
    CardUse use = CardUse::BEHAVIOR;
    bool alternatives = false;  ///< a list of blocks, of which a material takes one
    std::vector<CardSetting> settings = {};
    std::vector<CardTableKind> tables = {};

    /// Switches the block's behavior on and gives it the data. Tells every answer that is not plain S_OK;
    /// null unless there is a behavior.
    std::vector<WriteStatus> (*write)(ZELIMaterial& material, const CardData& data) = nullptr;
    /// Has the block's behavior read its data from the store again and answers them; no more than whether it
    /// is switched on when it is off. Null unless there is a behavior.
    StoredBlock (*read)(ZELIMaterial& material, const CardBlock& block) = nullptr;

    const CardTableKind* FindTable(const std::string& table) const;  ///< null when there is none of that name

    /// How findings name one of its tables: "gasket.loading", or just "density".
    std::string TableName(const CardTableKind& table) const;

    /// No more than its name is looked at.
    bool IsUnread() const { return settings.empty() && tables.empty(); }
};

/// Every block a card may have, in the order of the report.
const std::vector<CardBlock>& CardBlocks();

/// Null when there is no block of that name.
const CardBlock* FindCardBlock(const std::string& name);

}  // namespace zelmat
