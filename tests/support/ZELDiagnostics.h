#pragma once

#include <sstream>
#include <string>
#include <vector>

/// Takes what is written to standard output while it lives, line by line.
class ZELDiagnostics {
public:
    ZELDiagnostics();
    ~ZELDiagnostics();
    ZELDiagnostics(const ZELDiagnostics&) = delete;
    ZELDiagnostics& operator=(const ZELDiagnostics&) = delete;

    std::vector<std::string> Lines() const;  ///< so far, without the ends of lines

private:
    std::ostringstream taken_;
    std::streambuf* standardOutput_;
};
