#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Table.h"
#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/report/HtmlWriter.h"
#include "zelmat/report/ReportContent.h"

namespace zelmat {

/// Of values that follow from others: further digits mean nothing to a reader.
inline constexpr int kDerivedDigits = 6;

/// Nothing where there are none.
void WriteFacts(HtmlWriter& html, const std::vector<ReportFact>& facts);

/// A table of a material with a heading for every column, value for value as `show --json` has it in the same
/// units: the shortest texts that read back as exactly the same numbers.
void WriteTable(HtmlWriter& html, const Table& table, const std::string& block, const std::string& caption,
                const UnitChoice& units);

/// A column of a table that is no table of a material; all columns of one are of the same length.
struct SheetColumn {
    std::string heading;
    std::vector<std::string> cells;
};

/// `style`: its class in the style sheet: "numbers" are flush right, but for the first column of
/// "numbers named" and the second one of "numbers layers".
void WriteColumns(HtmlWriter& html, const std::string& caption, const std::vector<SheetColumn>& columns,
                  const std::string& style);

/// A picture within the page, with its size and its description.
void WritePicture(HtmlWriter& html, const std::string& svg, const std::string& description,
                  const std::string& caption);
void WritePicture(HtmlWriter& html, const ReportPicture& picture);

/// What was found, or that nothing was; where a reviewer signs, on paper only; and the way back to the
/// contents.
void WriteEnd(HtmlWriter& html, const Findings& findings);

}  // namespace zelmat
