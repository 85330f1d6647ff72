#include "zelmat/settings/Settings.h"

#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

const std::vector<std::string>& SettingNames() {
    static const std::vector<std::string> names = {"units"};
    return names;
}

UnitChoice Settings::TextUnits() const {
    const UnitChoice usual = UnitChoice::ForText();
    const auto choice = units.empty() ? usual : UnitChoice::Read(units, usual);
    return choice ? *choice : usual;
}

QuantityResult<bool> Set(Settings& settings, const std::string& name, const std::string& value) {
    if (name != SettingNames().front()) {
        const std::string nearest = NearestName(name, SettingNames());
        return QuantityError{"there is no setting " + QuotedText(name) +
                             (nearest.empty() ? "; known: " + WordList(SettingNames())
                                              : "; is " + QuotedText(nearest) + " meant?")};
    }
    if (!value.empty()) {
        const auto choice = UnitChoice::Read(value, UnitChoice::ForText());
        if (!choice) return QuantityError{name + ": " + choice.Error().text};
    }
    settings.units = value;
    return true;
}

}  // namespace zelmat
