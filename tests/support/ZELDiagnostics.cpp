#include "tests/support/ZELDiagnostics.h"

#include <iostream>

ZELDiagnostics::ZELDiagnostics() : standardOutput_(std::cout.rdbuf(taken_.rdbuf())) {}

ZELDiagnostics::~ZELDiagnostics() {
    std::cout.rdbuf(standardOutput_);
}

std::vector<std::string> ZELDiagnostics::Lines() const {
    std::vector<std::string> lines;
    std::istringstream text(taken_.str());
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
}
