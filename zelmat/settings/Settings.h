#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/quantities/QuantityResult.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What a user has set for all runs of the program, as it was written. It knows no file.
struct Settings {
    std::string units = {};         ///< of text, as "--units" takes them; empty: not set
    std::string historySteps = {};  ///< "200"; empty: not set
    std::string historyBytes = {};  ///< "64MB"; empty: not set

    UnitChoice TextUnits() const;  ///< those that are set, else the usual ones of text

    // How much undo history documents keep that this user changes; nothing: as much as each says itself.
    std::optional<std::int64_t> HistorySteps() const;
    std::optional<std::int64_t> HistoryBytes() const;
};

/// All that tells one setting from the next.
struct UserSetting {
    std::string name;                                         ///< "history-steps"
    std::string meaning;                                      ///< in half a line, for help
    std::string Settings::*value;                             ///< its text
    QuantityResult<bool> (*check)(const std::string& value);  ///< of a text that is not empty
};
const std::vector<UserSetting>& UserSettings();

/// Gives a setting a value; the empty one takes it away. The error says what is wrong with the name, and the
/// nearest one, or with the value; then nothing has changed.
QuantityResult<bool> Set(Settings& settings, const std::string& name, const std::string& value);

}  // namespace zelmat
