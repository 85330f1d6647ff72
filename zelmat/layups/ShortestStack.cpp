#include "zelmat/layups/ShortestStack.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>

namespace zelmat {

namespace {

using Plies = std::span<const double>;

/// In as few digits as read back the same, never with an exponent, which the notation does not know.
std::string AngleText(double angle) {
    constexpr std::size_t kLongest = 400;  // the smallest double takes 324 places behind the point
    std::array<char, kLongest> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), angle + 0.0, std::chars_format::fixed);
    return {text.data(), end.ptr};
}

/// The smallest number of plies of which a range is a repetition, by the borders of its beginnings.
std::size_t PeriodOf(Plies plies) {
    std::vector<std::size_t> border(plies.size(), 0);
    for (std::size_t i = 1; i < plies.size(); ++i) {
        std::size_t length = border[i - 1];
        while (length > 0 && plies[i] != plies[length]) length = border[length - 1];
        border[i] = plies[i] == plies[length] ? length + 1 : 0;
    }
    const std::size_t period = plies.size() - border.back();
    return plies.size() % period == 0 ? period : plies.size();
}

void Shorten(std::string& text, std::string other) {
    if (text.empty() || other.size() < text.size()) text = std::move(other);
}

/// The plies of a list with equal neighbours counted.
std::string RunList(Plies plies) {
    std::string text;
    for (std::size_t i = 0; i < plies.size();) {
        const std::size_t begin = i;
        while (i < plies.size() && plies[i] == plies[begin]) ++i;
        if (begin > 0) text += '/';
        text += AngleText(plies[begin]);
        if (i - begin > 1) text += '_' + std::to_string(i - begin);
    }
    return text;
}

/// A list of plies and groups. Of two as long as each other the one with fewer items reads better.
struct Folded {
    std::string text;
    std::size_t items = 0;

    bool IsBeatenBy(std::size_t size, std::size_t otherItems) const {
        return text.empty() || size < text.size() || (size == text.size() && otherItems < items);
    }
};

/// One angle, or a group, as often as the plies repeat it; nothing when they repeat none.
Folded Repeated(Plies plies, const std::vector<Folded>& shorter) {
    const std::size_t period = PeriodOf(plies);
    const std::string count = std::to_string(plies.size() / period);
    if (plies.size() == 1) return {AngleText(plies[0]), 1};
    if (period == 1) return {AngleText(plies[0]) + '_' + count, 1};
    if (period < plies.size()) return {'(' + shorter[period].text + ')' + count, 1};
    return {};
}

/// The shortest list for every part of a range, built up from the short parts.
std::string FoldedList(Plies plies) {
    const std::size_t size = plies.size();
    std::vector<std::vector<Folded>> best(size, std::vector<Folded>(size + 1));  // by begin and length
    for (std::size_t length = 1; length <= size; ++length) {
        for (std::size_t begin = 0; begin + length <= size; ++begin) {
            Folded list = Repeated(plies.subspan(begin, length), best[begin]);
            for (std::size_t first = 1; first < length; ++first) {
                const Folded& left = best[begin][first];
                const Folded& right = best[begin + first][length - first];
                const std::size_t items = left.items + right.items;
                if (!list.IsBeatenBy(left.text.size() + right.text.size() + 1, items)) continue;
                list = {left.text + '/' + right.text, items};
            }
            best[begin][length] = std::move(list);
        }
    }
    return best[0][size].text;
}

std::string List(Plies plies) {
    constexpr std::size_t kMostFolded = 64;  // beyond it the time, which grows with the cube, is noticed
    return plies.size() <= kMostFolded ? FoldedList(plies) : RunList(plies);
}

/// In brackets, repeated as a whole where that is shorter.
std::string Laminate(Plies plies, const char* mirrored) {
    std::string text;
    const std::size_t period = PeriodOf(plies);
    if (period < plies.size()) {
        text = '[' + List(plies.first(period)) + ']' + std::to_string(plies.size() / period) + mirrored;
    }
    Shorten(text, '[' + List(plies) + ']' + mirrored);
    return text;
}

}  // namespace

std::string ShortestStack(const std::vector<double>& angles) {
    const Plies plies(angles);
    if (plies.empty()) return "";
    std::string text;
    const bool symmetric = plies.size() > 1 && std::equal(plies.begin(), plies.end(), plies.rbegin());
    const Plies half = plies.first(plies.size() / 2);
    if (symmetric && plies.size() % 2 == 0) {
        text = Laminate(half, "s");
    } else if (symmetric) {
        text = '[' + List(half) + '/' + AngleText(plies[half.size()]) + "_bar]s";
    }
    Shorten(text, Laminate(plies, ""));
    return text;
}

}  // namespace zelmat
