#pragma once

#include <cstddef>
#include <ostream>
#include <string>

namespace zelmat {

/// One line that tells how far long work is, written over and over. On a terminal only: it stays silent when
/// `notes` goes elsewhere.
class Progress {
public:
    /// `notes`: standard error.
    explicit Progress(std::ostream& notes);
    ~Progress();  ///< takes the line away
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// "drawing 64 of 3000 pictures"
    void Tell(const std::string& doing, std::size_t done, std::size_t all, const std::string& what);

private:
    std::ostream& notes_;
    bool shows_;
};

}  // namespace zelmat
