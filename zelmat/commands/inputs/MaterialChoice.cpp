#include "zelmat/commands/inputs/MaterialChoice.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "zelmat/text/CountText.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr std::size_t kListed = 8;

/// "#2: Steel, #5: Steel", those at `places` alone; cut where there are many.
std::string Numbered(const std::vector<std::string>& names, const std::vector<std::size_t>& places) {
    const std::size_t shown = std::min(places.size(), kListed);
    const std::vector<std::size_t> first(places.begin(), places.begin() + static_cast<std::ptrdiff_t>(shown));
    const std::string list = WordList(
        first, [&](std::size_t place) { return "#" + std::to_string(place + 1) + ": " + names[place]; });
    return shown < places.size() ? list + ", ..." : list;
}

std::vector<std::size_t> All(std::size_t count) {
    std::vector<std::size_t> places(count);
    for (std::size_t place = 0; place < count; ++place) places[place] = place;
    return places;
}

template <class Fits>
std::vector<std::size_t> Where(const std::vector<std::string>& names, Fits fits) {
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < names.size(); ++place) {
        if (fits(names[place])) places.push_back(place);
    }
    return places;
}

/// The number behind "#"; nothing when it is no such text.
std::optional<std::size_t> NumberOf(const std::string& wanted) {
    if (!wanted.starts_with("#")) return std::nullopt;
    std::size_t number = 0;
    const char* const end = wanted.data() + wanted.size();
    const auto [rest, error] = std::from_chars(wanted.data() + 1, end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

std::vector<std::string> Hints(const std::vector<std::string>& names, const std::string& wanted,
                               const std::string& noun) {
    if (names.empty()) return {"there are no " + noun + "s"};
    const auto nearest = NearestNames(wanted, names, kListed);
    if (nearest.empty()) return {"has " + Numbered(names, All(names.size()))};
    return {"did you mean " + WordList(nearest) + "?"};
}

}  // namespace

std::optional<std::size_t> ChooseMaterial(const std::vector<std::string>& names, const std::string& wanted,
                                          const std::string& file, Findings& findings,
                                          const std::string& noun) {
    const auto refuse = [&](std::string code, std::string text, std::vector<std::string> details) {
        findings.Add({FindingKind::USAGE, {file, 0}, std::move(code), std::move(text), std::move(details)});
        return std::nullopt;
    };
    auto places = Where(names, [&](const std::string& name) { return name == wanted; });
    if (places.empty()) {
        if (const auto number = NumberOf(wanted)) {
            if (*number >= 1 && *number <= names.size()) return *number - 1;
            return refuse("no-such-" + noun, "there is no " + noun + " " + wanted,
                          {"it has " + CountText(names.size(), noun)});
        }
        places = Where(names,
                       [&](const std::string& name) { return !wanted.empty() && name.starts_with(wanted); });
    }
    if (places.size() == 1) return places.front();
    if (places.empty()) {
        return refuse("no-such-" + noun, "there is no " + noun + " " + Quoted(wanted),
                      Hints(names, wanted, noun));
    }
    return refuse("several-" + noun + "s", Quoted(wanted) + " can be " + CountText(places.size(), noun),
                  {Numbered(names, places)});
}

}  // namespace zelmat
