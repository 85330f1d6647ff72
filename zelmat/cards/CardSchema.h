#pragma once

#include <nlohmann/json.hpp>

namespace zelmat {

/// The form of a JSON card as a JSON Schema (draft 2020-12), made from what the program knows of blocks,
/// columns, settings and quantities: docs/material-card.schema.json. What it refuses, the reader refuses; it
/// cannot say that rows have as many numbers as there are columns, that a unit measures its quantity, or
/// which coefficients go with which order of a potential. Keys that the program does not know are allowed:
/// they are warnings.
nlohmann::ordered_json CardSchema();

}  // namespace zelmat
