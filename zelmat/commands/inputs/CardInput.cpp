#include "zelmat/commands/inputs/CardInput.h"

#include "zelmat/commands/frame/Arguments.h"

namespace zelmat {

void DeclareCardReading(Arguments& line, CardReading& how) {
    line.AddFlag("--decimal-comma", how.decimalComma,
                 "Numbers of a CSV card have a decimal comma (then ; or a tab sets columns apart)");
}

}  // namespace zelmat
