#include "zelmat/text/NearestName.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace zelmat {

namespace {

/// Optimal string alignment distance, by rows of its table.
std::size_t Distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> before;
    std::vector<std::size_t> above(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) above[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::vector<std::size_t> row(b.size() + 1, i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t exchange = a[i - 1] == b[j - 1] ? 0 : 1;
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + exchange});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before = std::move(above);
        above = std::move(row);
    }
    return above.back();
}

constexpr std::size_t kLongest = 64;  // a longer text is no slip of the keyboard

/// More mistakes than this make another name.
std::size_t MostMistakes(const std::string& misspelt) {
    constexpr std::size_t kLettersPerMistake = 3;
    return std::max<std::size_t>(1, misspelt.size() / kLettersPerMistake);
}

std::string Small(std::string text) {
    for (char& letter : text) {
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return text;
}

bool IsWithinWord(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

/// The least distance from what stands in the name at the beginning of a word.
std::size_t DistanceWithin(const std::string& part, const std::string& name) {
    std::size_t least = Distance(part, name.substr(0, part.size()));
    for (std::size_t at = 1; at < name.size(); ++at) {
        if (!IsWithinWord(name[at]) || IsWithinWord(name[at - 1])) continue;
        least = std::min(least, Distance(part, name.substr(at, part.size())));
    }
    return least;
}

}  // namespace

std::string NearestName(const std::string& misspelt, const std::vector<std::string>& names) {
    if (misspelt.size() > kLongest) return {};
    std::string nearest;
    std::size_t least = MostMistakes(misspelt) + 1;
    const std::string small = Small(misspelt);
    for (const std::string& name : names) {
        const std::size_t distance = small == Small(name) ? 0 : Distance(misspelt, name);
        if (distance >= least) continue;
        least = distance;
        nearest = name;
    }
    return nearest;
}

std::vector<std::string> NearestNames(const std::string& part, const std::vector<std::string>& names,
                                      std::size_t most) {
    if (part.empty() || part.size() > kLongest) return {};
    const std::string small = Small(part);
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const std::string& name : names) {
        const std::string within = Small(name);
        const std::size_t distance = std::min(DistanceWithin(small, within), Distance(small, within));
        if (distance <= MostMistakes(part)) near.emplace_back(distance, name);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    if (near.size() > most) near.resize(most);
    std::vector<std::string> nearest;
    for (auto& [distance, name] : near) nearest.push_back(std::move(name));
    return nearest;
}

}  // namespace zelmat
