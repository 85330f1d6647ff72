#include "zelmat/layups/StackingNotation.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "zelmat/layups/ShortestStack.h"

namespace zelmat {

namespace {

constexpr std::size_t kMostPlies = 100'000;  ///< a longer laminate is a slip of the keyboard

/// What stands for a symbol that has no plain character of its own; none of them can be typed.
constexpr char kPlusMinus = '\x01';
constexpr char kMinusPlus = '\x02';
constexpr char kDegree = '\x03';
constexpr char kUnknown = '\x04';

/// The notation with one plain character per symbol, and where each stood.
class Symbols {
public:
    explicit Symbols(std::string_view notation) {
        std::size_t position = 1;
        for (std::size_t at = 0; at < notation.size(); ++position) {
            const std::size_t length = LengthAt(notation, at);
            const std::string_view symbol = notation.substr(at, length);
            at += length;
            if (symbol != " ") Add(symbol, position);
        }
        end_ = position;
    }

    char At(std::size_t index) const { return index < plain_.size() ? plain_[index] : '\0'; }
    std::size_t Position(std::size_t index) const { return index < places_.size() ? places_[index] : end_; }
    std::string_view Plain() const { return plain_; }

private:
    static std::size_t LengthAt(std::string_view text, std::size_t at) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        return std::min(length, text.size() - at);
    }

    void Add(std::string_view symbol, std::size_t position) {
        static constexpr struct {
            std::string_view symbol;
            char plain;
        } kSymbols[] = {{"±", kPlusMinus}, {"∓", kMinusPlus}, {"°", kDegree}, {"₀", '0'}, {"₁", '1'},
                        {"₂", '2'},        {"₃", '3'},        {"₄", '4'},     {"₅", '5'}, {"₆", '6'},
                        {"₇", '7'},        {"₈", '8'},        {"₉", '9'},     {"ₛ", 's'}, {"−", '-'},
                        {"S", 's'},        {"T", 't'},        {"A", 'a'}};
        const auto* known = std::find_if(std::begin(kSymbols), std::end(kSymbols),
                                         [&](const auto& entry) { return entry.symbol == symbol; });
        const bool subscript = symbol.size() == 3 && symbol.substr(0, 2) == "\xE2\x82";
        if (subscript && !InSubscript()) Put('_', position);
        const bool plain = symbol.size() == 1 && symbol[0] >= ' ';
        Put(known != std::end(kSymbols) ? known->plain : plain ? symbol[0] : kUnknown, position);
    }
    bool InSubscript() const {
        const std::size_t before = plain_.find_last_not_of("0123456789");
        return before != std::string::npos && plain_[before] == '_';
    }
    void Put(char plain, std::size_t position) {
        plain_ += plain;
        places_.push_back(position);
    }

    std::string plain_;
    std::vector<std::size_t> places_;
    std::size_t end_ = 1;
};

/// Thrown inside this file only: a notation is read to its end or not at all.
struct Mistaken {
    NotationMistake mistake;
};

class Reader {
public:
    explicit Reader(std::string_view notation) : symbols_(notation) {}

    StackingSequence Read() {
        Expect('[', "a laminate begins with '['");
        StackingSequence plies = Items(']');
        const bool hasMidPly = midPly_.has_value();
        const std::size_t midPlace = midPlace_;
        const std::size_t repeats = Count();
        if (hasMidPly && repeats > 1) FailAt(midPlace, "a laminate with a mid-ply is not repeated");
        plies = Repeated(std::move(plies), repeats);
        const bool antisymmetric = TakeBoth('a', 's');
        const bool symmetric = !antisymmetric && Take('s');
        if (!antisymmetric && !symmetric) Take('t');
        if (at_ != symbols_.Plain().size()) Fail("the end of the laminate, 's' or 'as', was expected here");
        if (hasMidPly && !symmetric)
            FailAt(midPlace, "a mid-ply stands in a symmetric laminate only: [...]s");
        const std::size_t mirrored = plies.size() - (hasMidPly ? 1 : 0);
        if (symmetric) {
            for (std::size_t i = mirrored; i-- > 0;) plies.push_back(plies[i]);
        } else if (antisymmetric) {
            for (std::size_t i = mirrored; i-- > 0;) plies.push_back(Opposite(plies[i]));
        }
        Check(plies.size());
        return plies;
    }

private:
    [[noreturn]] void FailAt(std::size_t index, const char* text) const {
        throw Mistaken{{symbols_.Position(index), text}};
    }
    [[noreturn]] void Fail(const char* text) const { FailAt(at_, text); }

    bool Take(char symbol) {
        if (symbols_.At(at_) != symbol) return false;
        ++at_;
        return true;
    }
    void Expect(char symbol, const char* text) {
        if (!Take(symbol)) Fail(text);
    }
    /// The angle of the mirrored ply of an antisymmetric laminate. A ply at -90 degrees is one at 90.
    static double Opposite(double angle) { return std::abs(angle) == 90.0 ? 90.0 : 0.0 - angle; }

    bool AtDigit() const { return symbols_.At(at_) >= '0' && symbols_.At(at_) <= '9'; }
    void Check(std::size_t plies) const {
        if (plies > kMostPlies) Fail("the laminate has more than 100000 plies");
    }

    /// A repeat count after a ply, a group or the laminate; 1 when there is none.
    std::size_t Count() {
        const bool subscript = Take('_');
        if (!AtDigit()) {
            if (subscript && std::string_view("sat").find(symbols_.At(at_)) == std::string_view::npos)
                Fail("a number was expected after '_'");
            return 1;
        }
        const std::size_t begin = at_;
        while (AtDigit()) ++at_;
        std::size_t count = 0;
        const char* text = symbols_.Plain().data();
        const auto read = std::from_chars(text + begin, text + at_, count);
        if (read.ec != std::errc() || count == 0)
            FailAt(begin, "a repeat count from 1 to 100000 was expected");
        Take('_');
        return count;
    }

    StackingSequence Repeated(StackingSequence plies, std::size_t count) const {
        Check(count);
        Check(plies.size() * count);
        const std::size_t once = plies.size();
        plies.reserve(once * count);
        for (std::size_t i = once; i < once * count; ++i) plies.push_back(plies[i - once]);
        return plies;
    }

    StackingSequence Items(char closing) {
        StackingSequence plies;
        do {
            if (midPly_) FailAt(midPlace_, "a mid-ply is the last one inside the brackets");
            const StackingSequence item = symbols_.At(at_) == '(' ? Group() : Ply();
            plies.insert(plies.end(), item.begin(), item.end());
            Check(plies.size());
        } while (Take('/'));
        Expect(closing, closing == ']' ? "'/' or ']' was expected here" : "'/' or ')' was expected here");
        return plies;
    }

    StackingSequence Group() {
        constexpr int kDeepest = 32;
        if (++depth_ > kDeepest) Fail("groups stand too deep inside each other");
        ++at_;
        StackingSequence plies = Items(')');
        --depth_;
        if (midPly_) FailAt(midPlace_, "a mid-ply stands outside every group");
        return Repeated(std::move(plies), Count());
    }

    StackingSequence Ply() {
        const std::size_t begin = at_;
        const bool plusMinus = Take(kPlusMinus) || TakeBoth('+', '-');
        const bool minusPlus = !plusMinus && (Take(kMinusPlus) || TakeBoth('-', '+'));
        const double angle = Angle();
        StackingSequence ply{angle};
        if (plusMinus) ply = {angle, 0.0 - angle};
        if (minusPlus) ply = {0.0 - angle, angle};
        if (symbols_.Plain().substr(at_, 4) == "_bar") {
            if (ply.size() != 1) FailAt(begin, "a mid-ply has one angle");
            at_ += 4;
            midPly_ = angle;
            midPlace_ = begin;
            return ply;
        }
        const bool counted = symbols_.At(at_) == '_';
        return counted ? Repeated(std::move(ply), Count()) : ply;
    }

    bool TakeBoth(char first, char second) {
        if (symbols_.At(at_) != first || symbols_.At(at_ + 1) != second) return false;
        at_ += 2;
        return true;
    }

    double Angle() {
        const std::size_t begin = at_;
        const bool negative = Take('-');
        if (!negative) Take('+');
        const std::size_t digits = at_;
        while (AtDigit() || symbols_.At(at_) == '.') ++at_;
        const std::size_t end = at_;
        double angle = 0.0;
        const char* text = symbols_.Plain().data();
        const auto read = std::from_chars(text + digits, text + end, angle, std::chars_format::fixed);
        if (digits == end) FailAt(begin, "an angle in degrees was expected here");
        if (read.ec != std::errc() || read.ptr != text + end) FailAt(begin, "this is no angle");
        if (angle > kLargestAngle) FailAt(begin, "an angle lies between -360 and 360 degrees");
        Take(kDegree);
        return negative ? 0.0 - angle : angle;
    }

    Symbols symbols_;
    std::size_t at_ = 0;
    int depth_ = 0;
    std::optional<double> midPly_;
    std::size_t midPlace_ = 0;
};

}  // namespace

std::variant<StackingSequence, NotationMistake> ReadStackingNotation(std::string_view notation) {
    try {
        return Reader(notation).Read();
    } catch (const Mistaken& mistaken) {
        return mistaken.mistake;
    }
}

std::string WriteStackingNotation(const StackingSequence& sequence) {
    return ShortestStack(sequence);
}

}  // namespace zelmat
