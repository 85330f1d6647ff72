#include "zelmat/settings/Settings.h"

#include <algorithm>
#include <charconv>

#include "zelmat/settings/ByteSize.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

QuantityResult<std::int64_t> ReadCount(const std::string& text) {
    constexpr std::int64_t kMost = 1'000'000'000;
    std::int64_t count = -1;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, count);
    if (error == std::errc() && rest == end && count >= 0 && count <= kMost) return count;
    return QuantityError{"expected a whole number from 0 to " + std::to_string(kMost) + ", not " +
                         QuotedText(text)};
}

template <class Read>
QuantityResult<bool> Check(const Read& read) {
    if (!read) return read.Error();
    return true;
}

template <class Number>
std::optional<std::int64_t> NumberOf(const std::string& text, Number read) {
    const auto number = text.empty() ? QuantityResult<std::int64_t>(QuantityError{}) : read(text);
    return number ? std::optional(*number) : std::nullopt;
}

}  // namespace

const std::vector<UserSetting>& UserSettings() {
    static const std::vector<UserSetting> kinds = {
        {"units", "units of text, as --units takes them", &Settings::units,
         [](const std::string& value) { return Check(UnitChoice::Read(value, UnitChoice::ForText())); }},
        {"history-steps", "most steps that documents keep to be undone", &Settings::historySteps,
         [](const std::string& value) { return Check(ReadCount(value)); }},
        {"history-bytes", "most bytes that these steps may take, as 64MB", &Settings::historyBytes,
         [](const std::string& value) { return Check(ReadByteSize(value)); }},
    };
    return kinds;
}

UnitChoice Settings::TextUnits() const {
    const UnitChoice usual = UnitChoice::ForText();
    const auto choice = units.empty() ? usual : UnitChoice::Read(units, usual);
    return choice ? *choice : usual;
}

std::optional<std::int64_t> Settings::HistorySteps() const {
    return NumberOf(historySteps, ReadCount);
}

std::optional<std::int64_t> Settings::HistoryBytes() const {
    return NumberOf(historyBytes, ReadByteSize);
}

QuantityResult<bool> Set(Settings& settings, const std::string& name, const std::string& value) {
    const auto& kinds = UserSettings();
    const auto kind =
        std::find_if(kinds.begin(), kinds.end(), [&](const UserSetting& each) { return each.name == name; });
    if (kind == kinds.end()) {
        std::vector<std::string> names;
        for (const UserSetting& each : kinds) names.push_back(each.name);
        const std::string nearest = NearestName(name, names);
        return QuantityError{
            "there is no setting " + QuotedText(name) +
            (nearest.empty() ? "; known: " + WordList(names) : "; is " + QuotedText(nearest) + " meant?")};
    }
    if (!value.empty()) {
        const auto good = kind->check(value);
        if (!good) return QuantityError{name + ": " + good.Error().text};
    }
    settings.*(kind->value) = value;
    return true;
}

}  // namespace zelmat
