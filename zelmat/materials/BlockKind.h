#pragma once

#include <string>
#include <vector>

#include "framework/KORStatus.h"
#include "zelmat/materials/TableKind.h"

class ZELIMaterial;

namespace zelmat {

struct Block;
struct Table;

/// What a setting's value is.
enum class SettingKind {
    FLAG,
    COUNT,   ///< a whole number
    NUMBER,  ///< in the setting's unit
    TEXT,
    UNREAD,  ///< anything; kept as it is
};

/// A single value of a block, beside its tables.
struct Setting {
    std::string name;  ///< "yield_onset.method" is `method` in the group `yield_onset`
    std::string title;
    std::string unit = {};
    SettingKind kind = SettingKind::TEXT;
    bool required = false;
    bool stored = true;                     ///< false: a note; the module has no place for it
    std::vector<std::string> choices = {};  ///< of a text; empty when any will do
    int least = 0;                          ///< of a whole number
    int most = 1'000'000;
};

/// What an attribute's setting may be, where that is more than the attribute's kind says.
struct SettingBounds {
    bool required = false;
    std::vector<std::string> choices = {};
    int least = 0;
    int most = 1'000'000;
};

/// The setting that an attribute holds: title, unit and kind as the catalog has them.
Setting StoredSetting(const char* name, const char* lateType, const char* attribute,
                      SettingBounds bounds = {});

/// What becomes of a block.
enum class BlockUse {
    BEHAVIOR,         ///< goes through a behavior of the material
    FOR_INFORMATION,  ///< no behavior uses it
};

/// What a behavior answered when it was given a table; or other values, when `table` is null.
struct WriteStatus {
    const Table* table = nullptr;
    HRESULT status = S_OK;
};

/// All that tells one block of a material from the next. A new block is a new entry in BlockKinds.cpp.
struct BlockKind {
    std::string name;
    std::string title;
    BlockUse use = BlockUse::BEHAVIOR;
    bool alternatives = false;  ///< there can be several, of which a material takes one
    std::vector<Setting> settings = {};
    std::vector<TableKind> tables = {};

    /// Switches the block's behavior on and gives it the data; switches it off, and leaves its data as they
    /// are, when the block is off. Tells every answer that is not plain S_OK; null unless there is a
    /// behavior.
    std::vector<WriteStatus> (*write)(ZELIMaterial& material, const Block& block) = nullptr;
    /// Has the block's behavior read its data from the store again and puts them into an empty block; no more
    /// than whether it is switched on when it is off. The first read that failed is the answer; what follows
    /// it is not in the block. Null unless there is a behavior.
    HRESULT (*read)(ZELIMaterial& material, Block& block) = nullptr;

    const TableKind* FindTable(const std::string& table) const;  ///< null when there is none of that name

    /// How findings name one of its tables: "gasket.loading", or just "density".
    std::string TableName(const TableKind& table) const;

    /// Nothing of it has a meaning for the program.
    bool IsUnread() const { return settings.empty() && tables.empty(); }
};

/// Every block that a material may have, in the order of reports.
const std::vector<BlockKind>& BlockKinds();

/// Null when there is no block of that name.
const BlockKind* FindBlockKind(const std::string& name);

}  // namespace zelmat
