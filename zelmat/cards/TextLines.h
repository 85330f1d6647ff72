#pragma once

#include <string_view>

namespace zelmat {

/// Goes through a text line by line, whichever line ends it has ("\n", "\r\n", "\r"); a byte order mark of
/// UTF-8 at its beginning is left out.
class TextLines {
public:
    explicit TextLines(std::string_view text) : rest_(text) {
        if (rest_.starts_with("\xef\xbb\xbf")) rest_.remove_prefix(3);
    }

    /// False at the end.
    bool Next() {
        if (rest_.empty()) return false;
        const std::size_t end = rest_.find_first_of("\r\n");
        line_ = rest_.substr(0, end);
        ++number_;
        if (end == std::string_view::npos) {
            rest_ = {};
        } else {
            rest_.remove_prefix(rest_.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
        }
        return true;
    }

    std::string_view Line() const { return line_; }  ///< without its end
    int Number() const { return number_; }           ///< from 1

private:
    std::string_view rest_;
    std::string_view line_;
    int number_ = 0;
};

}  // namespace zelmat
