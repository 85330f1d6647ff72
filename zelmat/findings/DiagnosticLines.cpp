#include "zelmat/findings/DiagnosticLines.h"

#include <iostream>
#include <utility>

namespace zelmat {

DiagnosticLines::DiagnosticLines(Findings& findings, std::string file, std::string material)
    : findings_(findings),
      file_(std::move(file)),
      material_(std::move(material)),
      standardOutput_(std::cout.rdbuf(lines_.rdbuf())) {}

DiagnosticLines::~DiagnosticLines() {
    std::cout.rdbuf(standardOutput_);
    std::istringstream lines(lines_.str());
    for (std::string line; std::getline(lines, line);) {
        findings_.Add({FindingKind::WARNING, {file_, 0}, "diagnostic", material_ + ": " + line, {}});
    }
}

}  // namespace zelmat
