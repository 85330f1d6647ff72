#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "zelmat/files/OpenFile.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// The lines of a file one after the other, of which no more than one is held: a deck has any size. "-" is
/// standard input. Ends of lines are "\n" or "\r\n"; a byte order mark of UTF-8
/// is passed over.
class DeckLines {
public:
    /// A longer line than this is none of a deck.
    static constexpr std::size_t kLongest = 65'536;

    DeckLines(const std::string& path, Findings& findings);

    /// The next line; false at the end, or with a finding when the file cannot be read or a line is too long.
    bool Next();

    const std::string& Line() const { return line_; }
    int Number() const { return number_; }  ///< from 1

private:
    bool Fill();

    std::string path_;
    Findings& findings_;
    OpenFile file_;
    int descriptor_ = -1;  // of the file or standard input
    std::array<char, 65'536> buffer_{};
    std::size_t at_ = 0, end_ = 0;
    std::string line_;
    int number_ = 0;
};

}  // namespace zelmat
