#include "tests/support/ZELFlushedOutput.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace {

void FlushAll() {
    std::cout.flush();
    std::fflush(stdout);
}

}  // namespace

ZELFlushedOutput::ZELFlushedOutput()
    : standardOutput_(dup(STDOUT_FILENO)), taken_(memfd_create("standard output", MFD_CLOEXEC)) {
    FlushAll();
    if (standardOutput_ < 0 || taken_ < 0 || dup2(taken_, STDOUT_FILENO) < 0) {
        throw std::runtime_error("the descriptor of standard output cannot be taken");
    }
}

ZELFlushedOutput::~ZELFlushedOutput() {
    FlushAll();
    dup2(standardOutput_, STDOUT_FILENO);
    close(standardOutput_);
    close(taken_);
}

std::vector<std::string> ZELFlushedOutput::Lines() const {
    std::string text;
    char buffer[4096];
    for (ssize_t got; (got = pread(taken_, buffer, sizeof buffer, static_cast<off_t>(text.size()))) > 0;) {
        text.append(buffer, static_cast<std::size_t>(got));
    }
    std::vector<std::string> lines;
    std::istringstream stream(text.substr(0, text.rfind('\n') + 1));
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}
