#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/files/PlacedJson.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/BlockKind.h"

namespace zelmat {

/// Takes a card in its CSV form apart and puts it into the tree that the JSON form has. A line is
///
///     # a comment, anywhere outside quotes in a table, else at the beginning of a line
///     [elastic]                                       a block, or a table of one: [gasket.loading]
///     [material]                                      the card as a whole; once more: the next material
///     hardening = isotropic                           a value of the block, or of the card
///     YoungsModulus [GPa],PoissonRatio [-]            the header of a table
///     210,0.3                                         a row
///
/// A file without sections is one table, whose columns tell the block. A text that begins or ends with a
/// blank, or holds line ends, stands in double quotes as in JSON. Columns count by name, never by place.
class CsvCardReader {
public:
    /// `name`: what findings call the file.
    CsvCardReader(std::string name, const CardReading& how, Findings& findings);

    /// Null, and findings, when a line makes no sense.
    std::shared_ptr<const PlacedJson> Read(std::string_view text);

private:
    using Json = nlohmann::json;

    void ReadLine(std::string_view line);
    void OpenSection(std::string_view name);
    void OpenMaterial();
    std::vector<std::string> WithoutEmptyOnes(std::vector<std::string> headers);
    void OpenTable(const std::vector<std::string>& headers);
    void FindSection(const std::vector<std::string>& names);
    void ReadValue(std::string_view key, std::string_view text);
    void ReadRow(std::string_view line);
    std::optional<double> ReadCell(std::string cell);

    Json ValueOf(const std::string& key, const std::string& text) const;
    const Setting* FindSetting(const std::string& key) const;
    Json& Material();
    Json& Section();           ///< the object that the lines go into
    std::string Path() const;  ///< the JSON pointer of that object
    void Note(const std::string& pointer);
    void Report(const char* code, std::string text, std::vector<std::string> details = {});
    std::shared_ptr<const PlacedJson> Tree();

    std::string name_;
    const CardReading& how_;
    Findings& findings_;
    Json materials_ = Json::array();
    PlacedJson::Lines lines_;
    PlacedJson::ElementLines rowLines_;
    int line_ = 0;
    bool good_ = true;

    // Where the lines go.
    std::string block_;                ///< empty: the card as a whole
    std::string table_;                ///< inside the block; empty: the block itself
    const BlockKind* kind_ = nullptr;  ///< of the block; null for one that the program does not know
    Json* rows_ = nullptr;             ///< null: no header yet
    std::vector<int>* linesOfRows_ = nullptr;
    bool lost_ = false;  ///< the rows are of a table that there is not
    std::size_t columns_ = 0;
    bool emptyColumns_ = false;  ///< the header ends in columns without a name
    bool list_ = false;          ///< the table is a plain list of numbers
    char separator_ = ',';
};

}  // namespace zelmat
