#pragma once

#include <string>
#include <utility>
#include <vector>

namespace zelmat {

/// How the program ends.
enum ExitCode : int {
    EXIT_CLEAN = 0,       ///< nothing was found, or nothing but what was only worth saying
    EXIT_FINDINGS = 1,    ///< there were errors; the work was refused, unless it was to go on
    EXIT_USAGE = 2,       ///< the command line asks for something that there is not
    EXIT_UNREADABLE = 3,  ///< something could not be read or written at all
};

enum class FindingKind {
    NOTE,        ///< what was done with the data, by rule; nothing is wrong
    WARNING,     ///< the data went in, though not as given
    ERROR,       ///< the data are refused
    USAGE,       ///< the command line asks for what the file does not have; shown as an error
    UNREADABLE,  ///< a file could not be read or written; shown as an error
};

/// A spot in a file. Line 0 is the file as a whole.
struct Place {
    std::string file;
    int line = 0;  ///< counted from 1
};

/// One thing the user has to know, with the place to look at.
struct Finding {
    FindingKind kind = FindingKind::ERROR;
    Place place;
    std::string code;  ///< stable and made of words ("unknown-column"), for scripts to match
    std::string text;
    std::vector<std::string> details;  ///< the value, its bound, a hint; those that apply
};

/// `file:line: error[code]: text (value, bound, hint)`, on one line and without control characters, whatever
/// the file holds.
std::string FindingLine(const Finding& finding);

/// "error", "warning" or "note"
const char* KindWord(FindingKind kind);

/// What was found so far, in the order of finding.
class Findings {
public:
    void Add(Finding finding) { all_.push_back(std::move(finding)); }
    void Add(const Findings& others);           ///< all of them
    void RemoveAbout(const std::string& file);  ///< those with a place in the file

    const std::vector<Finding>& All() const { return all_; }
    std::vector<Finding> ByLine() const;  ///< in the order of their lines; of one file
    bool HasErrors() const;               ///< anything worse than a warning
    /// The worst of them decides. Warnings alone are clean unless they are to count as errors.
    ExitCode Exit(bool strict = false) const;

private:
    std::vector<Finding> all_;
};

}  // namespace zelmat
