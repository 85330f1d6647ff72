#pragma once

#include "zelmat/commands/reports/AtBlock.h"

namespace zelmat {

/// The thickness behavior of a gasket at a closure: pressure, secant and tangent stiffness on loading and on
/// every unloading curve that leads through the closure, and what a cycle to it and back leaves behind.
std::optional<AtProblem> ReadGasketAt(const Block& gasket, const AtQuestion& question, Result& result);

}  // namespace zelmat
