#include "zelmat/commands/inputs/CardInput.h"

#include <CLI/CLI.hpp>

namespace zelmat {

void DeclareCardReading(CLI::App& line, CardReading& how) {
    line.add_flag("--decimal-comma", how.decimalComma,
                  "Numbers of a CSV card have a decimal comma (then ; or a tab sets columns apart)");
}

}  // namespace zelmat
