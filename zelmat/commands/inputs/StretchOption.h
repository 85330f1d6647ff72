#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"

namespace zelmat {

class Arguments;

/// `--stretch X...`: single stretches, or FROM:TO:COUNT for evenly spaced ones.
class StretchOption {
public:
    void Declare(Arguments& line);

    /// In the order in which they are given; findings for what is none. Empty when the option is left out.
    std::vector<double> Read(Findings& findings) const;

private:
    std::vector<std::string> texts_;
};

}  // namespace zelmat
