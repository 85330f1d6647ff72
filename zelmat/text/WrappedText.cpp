#include "zelmat/text/WrappedText.h"

#include <utf8.h>

#include <cstdint>

namespace zelmat {

namespace {

constexpr std::string_view kEllipsis = "…";

/// Of DejaVu Sans, one of the widest; nothing is narrower than that, so that a text of combining marks ends.
double Ems(std::uint32_t point) {
    constexpr std::uint32_t kAscii = 0x80, kHangulJamo = 0x1100, kDashes = 0x2010, kCjk = 0x2e80;
    if (point < kAscii) {
        const char symbol = static_cast<char>(point);
        if (std::string_view("iIjl.,:;|!'()[]/ tfr").find(symbol) != std::string_view::npos) return 0.42;
        if (std::string_view("mMwW@%&<>=+_~^").find(symbol) != std::string_view::npos) return 0.99;
        return symbol >= 'A' && symbol <= 'Z' ? 0.76 : 0.64;
    }
    const bool wide = (point >= kHangulJamo && point < kDashes) || point >= kCjk;
    return wide ? 1.05 : 0.8;
}

/// As much of a line as there is room for beside the ellipsis.
std::string WithEllipsis(std::string_view line, double ems) {
    const double room = ems - TextWidth(kEllipsis, 1.0);
    double used = 0.0;
    auto end = line.begin();
    for (auto at = line.begin(); at != line.end(); end = at) {
        used += Ems(utf8::unchecked::next(at));
        if (used > room) break;
    }
    std::string kept(line.begin(), end);
    while (kept.ends_with(' ')) kept.pop_back();
    return kept + std::string(kEllipsis);
}

/// Takes words as long as they fit.
class Lines {
public:
    explicit Lines(double ems) : ems_(ems) {}

    void Add(std::string_view word) {
        const double width = TextWidth(word, 1.0);
        if (!lines_.back().empty() && used_ + kBlank + width > ems_) NextLine();
        if (!lines_.back().empty()) {
            lines_.back() += ' ';
            used_ += kBlank;
        }
        for (auto at = word.begin(); at != word.end();) {
            const auto start = at;
            const double next = Ems(utf8::unchecked::next(at));
            if (used_ + next > ems_ && !lines_.back().empty()) NextLine();
            lines_.back().append(start, at);
            used_ += next;
        }
    }

    std::vector<std::string> Take(std::size_t most) {
        if (lines_.size() <= most) return std::move(lines_);
        lines_.resize(most);
        lines_.back() = WithEllipsis(lines_.back(), ems_);
        return std::move(lines_);
    }

private:
    static constexpr double kBlank = 0.42;

    void NextLine() {
        lines_.emplace_back();
        used_ = 0.0;
    }

    double ems_;
    double used_ = 0.0;
    std::vector<std::string> lines_{""};
};

}  // namespace

double TextWidth(std::string_view utf8, double fontSize) {
    double ems = 0.0;
    for (auto at = utf8.begin(); at != utf8.end();) ems += Ems(utf8::unchecked::next(at));
    return ems * fontSize;
}

std::string ShortenedText(std::string_view utf8, double width, double fontSize) {
    return TextWidth(utf8, fontSize) > width ? WithEllipsis(utf8, width / fontSize) : std::string(utf8);
}

std::vector<std::string> WrappedText(std::string_view utf8, double width, double fontSize,
                                     std::size_t mostLines) {
    Lines lines(width / fontSize);
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t end = std::min(utf8.find(' ', at), utf8.size());
        if (end > at) lines.Add(utf8.substr(at, end - at));
        at = end + 1;
    }
    return lines.Take(mostLines);
}

}  // namespace zelmat
