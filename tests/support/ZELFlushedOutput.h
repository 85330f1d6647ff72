#pragma once

#include <string>
#include <vector>

/// Takes what reaches the file descriptor of standard output while it lives. What still lies in a buffer of
/// the process has not reached it: a line that was written and not flushed does not show. Nothing else is
/// printed meanwhile, the reports of failed expectations included, so look at the lines after its scope.
class ZELFlushedOutput {
public:
    ZELFlushedOutput();  ///< throws std::runtime_error when the descriptor cannot be taken
    ~ZELFlushedOutput();
    ZELFlushedOutput(const ZELFlushedOutput&) = delete;
    ZELFlushedOutput& operator=(const ZELFlushedOutput&) = delete;

    std::vector<std::string> Lines()
        const;  ///< so far, without the ends of lines; a line without one is left out

private:
    int standardOutput_;  ///< owned, where the descriptor led before
    int taken_;           ///< owned, a file without a name
};
