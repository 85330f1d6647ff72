#pragma once

#include <ostream>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// Prints findings one to a line, in the order of finding; of more than 20 with one code the others are
/// counted behind them: "error[not-a-number]: and 99,980 more".
void PrintFindings(std::ostream& out, const Findings& findings, bool colored);

}  // namespace zelmat
