#pragma once

#include <string>
#include <vector>

#include "zelmat/quantities/QuantityResult.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What a user has set for all runs of the program. It knows no file.
struct Settings {
    std::string units = {};  ///< of text, as "--units" takes them; empty: not set

    UnitChoice TextUnits() const;  ///< those that are set, else the usual ones of text
};

/// The names of all settings: "units".
const std::vector<std::string>& SettingNames();

/// Gives a setting a value; the empty one takes it away. The error says what is wrong with the name, and the
/// nearest one, or with the value; then nothing has changed.
QuantityResult<bool> Set(Settings& settings, const std::string& name, const std::string& value);

}  // namespace zelmat
