#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/exchange/calculix/DeckLines.h"

namespace zelmat {

/// A data line: numbers between commas, nothing where there is none between two.
struct DeckNumbers {
    int line;
    std::vector<std::optional<double>> numbers;
};

/// A data line as words between commas, without the blanks around them.
struct DeckWords {
    int line;
    std::vector<std::string> words;
};

/// A keyword line with its parameters; names are in capital letters and without blanks.
struct DeckKeyword {
    int line = 0;
    std::string keyword;                            ///< "*ELASTIC"
    std::map<std::string, std::string> parameters;  ///< "TYPE" to "ISO"; a word alone to ""
    std::string name;                               ///< NAME= as it was written
    std::string set;                                ///< ELSET= as it was written

    const std::string* Find(const std::string& parameter) const;  ///< null when it is not given
};

/// A whole keyword line, which stood at `number`.
DeckKeyword ReadKeyword(const std::string& line, int number);

/// Reads keyword lines ("*Elastic, type = iso", continued behind a comma at the end) and, for those that are
/// wanted, data lines, of a deck. Comments ("**") and empty lines are passed over.
class DeckCards {
public:
    DeckCards(const std::string& path, Findings& findings)
        : path_(path), findings_(findings), lines_(path, findings) {}

    /// The next keyword; data lines before it are passed over. Nothing at the end.
    std::optional<DeckKeyword> NextKeyword();

    /// The data lines up to the next keyword. Nothing, and a finding with the line, where one holds something
    /// else than numbers.
    std::optional<std::vector<DeckNumbers>> Numbers();

    /// The same where they hold names, too.
    std::vector<DeckWords> Lines();

private:
    bool NextLine();  ///< that is no comment and not empty; into held_
    std::optional<DeckNumbers> NumbersOf(const std::string& line);

    std::string path_;
    Findings& findings_;
    DeckLines lines_;
    bool hasHeld_ = false;  // a line that was read and not used yet
    std::string held_;
};

}  // namespace zelmat
