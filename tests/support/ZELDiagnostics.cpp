#include "tests/support/ZELDiagnostics.h"

#include <iostream>

ZELDiagnostics::ZELDiagnostics() : standardOutput_(std::cout.rdbuf(&taken_)) {}

ZELDiagnostics::~ZELDiagnostics() {
    std::cout.rdbuf(standardOutput_);
}

std::vector<std::string> ZELDiagnostics::Lines() const {
    std::vector<std::string> lines;
    const std::string text = taken_.str();
    std::istringstream flushed(text.substr(0, taken_.Flushed()));
    for (std::string line; std::getline(flushed, line);) lines.push_back(line);
    if (text.size() > taken_.Flushed()) lines.push_back("(not flushed) " + text.substr(taken_.Flushed()));
    return lines;
}
