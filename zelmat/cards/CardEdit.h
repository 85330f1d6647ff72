#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A material in the form of a card, to be changed value by value. A value is named as a card names it:
///
///     density                          the one number of a block with one column
///     elastic.youngs_modulus           a column; of the table's only row
///     thermal_expansion.reference_temperature   a value beside the tables
///     gasket.loading.pressure          of one of several tables
///     plastic, gasket.loading          a whole table, from a CSV file with a header line
///     elastic.source, gasket.loading.source     of a table that there is
///     thermal_expansion.enabled        on, off
///     user_material.constants          a list: 1, 2.5
///     other_properties.E1              a value for information, as it is written
///     description, class, source, notes, illustrative, heat_generation
///
/// or in any of the ways that CardKey knows (E, rho, expansion.Tref). Numbers have their unit with them, and
/// keep it. What a change comes to is checked as a card is, by Read.
class CardEdit {
public:
    /// `place`: what findings call the thing that is changed.
    CardEdit(const Material& material, std::string place, CardReading how = {});

    /// Makes one change: "elastic.youngs_modulus=205GPa". False, and a finding, for a key that there is not,
    /// a value that is none for it, one number for a table of several rows, and a key that was set before;
    /// then nothing has changed.
    bool Set(const std::string& change, Findings& findings);

    /// The material by now. Nothing, and findings, when a table lacks a column or a value is refused.
    std::optional<Material> Read(Findings& findings) const;

    /// The tables whose numbers were set and whose sources, which told of the old ones, were not: "density".
    std::vector<std::string> TablesOfOldSource() const;

    /// The blocks that were switched on or off.
    const std::map<const BlockKind*, bool>& Switched() const { return switched_; }

private:
    using Json = nlohmann::ordered_json;

    bool SetHead(const std::string& key, const std::string& value, Findings& findings);
    bool SetInBlock(const BlockKind& kind, const std::string& member, const std::string& value,
                    Findings& findings);
    bool SetSetting(const BlockKind& kind, const Setting& setting, const std::string& value,
                    Findings& findings);
    bool SetNumber(const BlockKind& kind, const TableKind& table, const std::string& column,
                   const std::string& value, Findings& findings);
    bool SetTable(const BlockKind& kind, const TableKind& table, const std::string& path, Findings& findings);
    bool SetList(const BlockKind& kind, const TableKind& table, const std::string& value, Findings& findings);
    bool SetUnread(const BlockKind& kind, const std::string& member, const std::string& value,
                   Findings& findings);
    bool RefuseMember(const BlockKind& kind, const std::string& member, Findings& findings) const;
    bool SetSource(const BlockKind& kind, const TableKind& table, const std::string& value,
                   Findings& findings);
    bool Switch(const BlockKind& kind, const std::string& value, Findings& findings);

    const Json* Find(const BlockKind& kind) const;  ///< the block; null when the card has none
    const Json* Find(const BlockKind& kind, const TableKind& table) const;  ///< null when it has none
    Json& Make(const BlockKind& kind);
    /// Of the block's form by now; `withTemperature`: also where the table is not temperature dependent.
    std::vector<ColumnKind> ColumnsOf(const BlockKind& kind, const TableKind& table,
                                      bool withTemperature = false) const;
    std::vector<std::string> KeysOf(const BlockKind& kind) const;
    bool Refuse(Findings& findings, const char* code, std::string text,
                std::vector<std::string> details = {}) const;

    std::string place_;
    CardReading how_;
    Json card_;
    std::map<const BlockKind*, bool> switched_;
    std::set<std::string> keys_;  // that were set
    /// Tables whose numbers were set, and whether their source was, too.
    std::map<std::pair<const BlockKind*, const TableKind*>, bool> given_;
};

}  // namespace zelmat
