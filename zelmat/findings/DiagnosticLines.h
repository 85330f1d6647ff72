#pragma once

#include <sstream>
#include <string>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// Takes standard output away while the module works: what it writes there are diagnostic lines, which must
/// not get between the tables. At the end of the scope each line becomes a warning that names the material.
class DiagnosticLines {
public:
    DiagnosticLines(Findings& findings, std::string file, std::string material);
    ~DiagnosticLines();
    DiagnosticLines(const DiagnosticLines&) = delete;
    DiagnosticLines& operator=(const DiagnosticLines&) = delete;

private:
    Findings& findings_;
    std::string file_;
    std::string material_;
    std::ostringstream lines_;
    std::streambuf* standardOutput_;
};

}  // namespace zelmat
