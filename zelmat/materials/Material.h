#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/Table.h"
#include "zelmat/materials/Values.h"

namespace zelmat {

/// A value that means nothing to the program, and is not lost for that.
struct KeptValue {
    std::string name;
    std::string json;  ///< as a JSON text
};

/// A value's number as somebody wrote it, where that was not in the stored unit in its own spelling.
struct WrittenNumber {
    double number = 0.0;
    std::string unit;  ///< in its spelling: "degC"
};

/// What a material has of one block.
struct Block {
    const BlockKind* kind = nullptr;
    bool enabled =
        true;  ///< false: the behavior is switched off; of a block that was read nothing else is there
    Values values = {};
    std::map<std::string, WrittenNumber> written = {};  ///< of numbers in `values`, by the same names
    std::vector<Table> tables = {};                     ///< in the order of the kind's; those that there are
    std::vector<KeptValue> kept = {};
    Origin origin = {};

    const Table* Find(const TableKind* table) const;  ///< null when the block does not have it
    const Table* Find(const std::string& table) const;
};

/// One material as plain data: what a reader of cards makes, what goes into a document and what is read back
/// from there. It is checked for form, not for physical sense, and knows no file format and no document.
struct Material {
    std::string file;  ///< what findings call the place it comes from
    std::string name;
    std::string description = {};
    std::string materialClass = {};  ///< "metal", "polymer", ...; empty when it is not said
    std::vector<std::string> sources = {};
    std::vector<std::string> notes = {};
    bool illustrative = false;                          ///< the values are made up
    std::optional<bool> heatGeneration = std::nullopt;  ///< the material's own flag; nothing: not said
    std::vector<Block> blocks = {};       ///< for behaviors, in the order of BlockKinds(), one of a kind
    std::vector<Block> fits = {};         ///< alternatives for one behavior; a material takes one
    std::vector<Block> information = {};  ///< for no behavior
    std::vector<KeptValue> kept = {};

    const Block* Find(const std::string& block) const;  ///< in `blocks`; null when there is none
};

}  // namespace zelmat
