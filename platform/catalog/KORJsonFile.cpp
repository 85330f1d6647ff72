#include "platform/catalog/KORJsonFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <utility>
#include <vector>

namespace {

using nlohmann::json;

/// How far a parser has read.
struct Place {
    const char* begin;
    const char* at;

    /// Where it stands, in the text up to and without the character that was read last. A line's end belongs
    /// to the line it ends: a number is known to be over only when the character behind it has been read.
    const char* Last() const { return at == begin ? at : at - 1; }
};

class PlacedIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    PlacedIterator(const char* at, Place* place) : at_(at), place_(place) {}

    reference operator*() const { return *at_; }
    PlacedIterator& operator++() {
        place_->at = ++at_;
        return *this;
    }
    PlacedIterator operator++(int) {
        PlacedIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const PlacedIterator& a, const PlacedIterator& b) { return a.at_ == b.at_; }

private:
    const char* at_;
    Place* place_;
};

/// A number that is not 0 but was read as 0, because no double is that small: "1e-400".
bool IsLost(double value, std::string_view text) {
    const std::string_view digits = text.substr(0, text.find_first_of("eE"));
    return value == 0.0 && digits.find_first_of("123456789") != std::string_view::npos;
}

/// Builds the values while they are read.
class Builder final : public json::json_sax_t {
public:
    Builder(json& root, const Place& place, KORFileError& error)
        : next_(&root), place_(place), error_(error) {}

    bool null() override { return Value(nullptr); }
    bool boolean(bool value) override { return Value(value); }
    bool number_integer(number_integer_t value) override { return Value(value); }
    bool number_unsigned(number_unsigned_t value) override { return Value(value); }
    bool number_float(number_float_t value, const string_t& text) override {
        if (!IsLost(value, text)) return Value(value);
        return Refuse("the number " + KORShownText(text) + " is too small for a double");
    }
    bool string(string_t& value) override { return Value(std::move(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return Open(json::value_t::object); }
    bool end_object() override { return Close(); }
    bool start_array(std::size_t) override { return Open(json::value_t::array); }
    bool end_array() override { return Close(); }

    bool key(string_t& name) override {
        const auto [member, fresh] = open_.back()->emplace(std::move(name), nullptr);
        if (!fresh) return Refuse("the key " + KORShownText(member.key()) + " is given twice");
        next_ = &*member;
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const json::exception& problem) override {
        // The library's text: "[json...] parse error at ...: text; last read: '...'". What was read last may
        // be of any length and no UTF-8.
        const std::string text = problem.what();
        const auto begin = text.find(": ");
        std::string said =
            begin == std::string::npos ? text.substr(text.find("] ") + 2) : text.substr(begin + 2);
        return Refuse(said.substr(0, std::min(said.find("; last read: "), std::size_t{200})));
    }

    bool Refuse(std::string message) {
        const std::string_view read(place_.begin, place_.Last());
        error_.line = 1 + static_cast<int>(std::count(read.begin(), read.end(), '\n'));
        error_.column = static_cast<int>(place_.at - place_.begin);
        const auto lineEnd = read.rfind('\n');
        if (lineEnd != std::string_view::npos) error_.column -= static_cast<int>(lineEnd) + 1;
        error_.message = std::move(message);
        return false;
    }

private:
    template <class Any>
    bool Value(Any&& value) {
        Next() = std::forward<Any>(value);
        return true;
    }

    bool Open(json::value_t kind) {
        if (open_.size() == KORJsonFile::kDeepest) {
            return Refuse("nested deeper than " + std::to_string(KORJsonFile::kDeepest));
        }
        json& value = Next();
        value = json(kind);
        open_.push_back(&value);
        return true;
    }

    bool Close() {
        open_.pop_back();
        return true;
    }

    /// Where the next value goes.
    json& Next() {
        if (open_.empty() || !open_.back()->is_array()) return *next_;
        open_.back()->push_back(nullptr);
        return open_.back()->back();
    }

    json* next_;  ///< the root, or the member whose key was read last
    const Place& place_;
    KORFileError& error_;
    std::vector<json*> open_;  ///< an array does not grow while one of its elements is open
};

/// Goes through a text that was read before, along the tree that was made of it.
class LineWalk {
public:
    explicit LineWalk(const std::string& text) : at_(text.data()), end_(at_ + text.size()) {
        constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
        if (text.starts_with(kByteOrderMark)) at_ += kByteOrderMark.size();
    }

    /// Tells `visit` on which line each value stands, until that answers false. False when it did.
    template <class Visit>
    bool Walk(const json& value, Visit& visit) {
        SkipSeparators();
        if (!visit(value, line_)) return false;
        if (value.is_string()) {
            Text();
        } else if (value.is_structured()) {
            ++at_;
            if (value.is_array()) {
                for (const json& element : value) {
                    if (!Walk(element, visit)) return false;
                }
            } else {
                for (std::size_t i = 0; i < value.size(); ++i) {
                    if (!Walk(*value.find(Key()), visit)) return false;
                }
            }
            SkipSeparators();
            ++at_;
        } else {
            at_ = std::find_if(at_, end_, [](char c) { return IsSeparator(c) || c == ']' || c == '}'; });
        }
        return true;
    }

private:
    static bool IsSeparator(char c) {
        return c == ' ' || c == '\n' || c == '\t' || c == '\r' || c == ',' || c == ':';
    }

    void SkipSeparators() {
        for (; at_ != end_ && IsSeparator(*at_); ++at_) line_ += *at_ == '\n' ? 1 : 0;
    }

    /// What stands between two quotes; no line ends there.
    std::string_view Text() {
        const char* const begin = ++at_;
        for (; *at_ != '"'; ++at_) at_ += *at_ == '\\' ? 1 : 0;
        return {begin, at_++};
    }

    std::string Key() {
        SkipSeparators();
        const std::string_view text = Text();
        if (text.find('\\') == std::string_view::npos) return std::string(text);
        return json::parse(text.data() - 1, text.data() + text.size() + 1).get<std::string>();
    }

    const char* at_;
    const char* end_;
    int line_ = 1;
};

}  // namespace

std::string KORShownText(std::string_view text) {
    constexpr std::size_t kLongest = 60;
    std::string shown = json(text).dump(-1, ' ', false, json::error_handler_t::replace);
    if (shown.size() <= kLongest) return shown;
    std::size_t end = kLongest;
    while ((static_cast<unsigned char>(shown[end]) & 0xC0) == 0x80) --end;  // not within a character
    return shown.substr(0, end) + "...\"";
}

std::optional<KORJsonFile> KORJsonFile::Read(const std::string& path, KORFileError& error) {
    std::ifstream file(path, std::ios::binary);
    file.peek();  // a directory opens, but cannot be read
    if (!file.is_open() || file.bad()) {
        error = {path, 0, 0, "cannot be read", std::strerror(errno)};
        return std::nullopt;
    }
    std::ostringstream text;
    text << file.rdbuf();
    return Parse(std::move(text).str(), path, error);
}

std::optional<KORJsonFile> KORJsonFile::Parse(std::string text, const std::string& name,
                                              KORFileError& error) {
    KORJsonFile file;
    file.name_ = name;
    file.text_ = std::move(text);
    file.root_ = std::make_unique<json>();
    error = {name, 0, 0, {}};
    Place place{file.text_.data(), file.text_.data()};
    Builder builder(*file.root_, place, error);
    // The library takes a NUL byte for the end of the text and would not see what stands behind it.
    if (const auto nul = file.text_.find('\0'); nul != std::string::npos) {
        place.at += nul + 1;
        builder.Refuse("a NUL byte is no JSON");
        return std::nullopt;
    }
    const PlacedIterator begin(file.text_.data(), &place);
    const PlacedIterator end(file.text_.data() + file.text_.size(), &place);
    if (!json::sax_parse(begin, end, &builder)) return std::nullopt;
    return file;
}

int KORJsonFile::Line(const json& value) const {
    if (!asked_) {
        asked_ = true;
        int line = 0;
        const auto stop = [&](const json& each, int at) {
            if (&each == &value) line = at;
            return line == 0;
        };
        LineWalk(text_).Walk(*root_, stop);
        return line;
    }
    if (lines_.empty()) {
        const auto note = [this](const json& each, int at) {
            lines_.push_back({&each, at});
            return true;
        };
        LineWalk(text_).Walk(*root_, note);
        std::ranges::sort(lines_, std::less(), &PlacedValue::value);
    }
    const auto found = std::ranges::lower_bound(lines_, &value, std::less(), &PlacedValue::value);
    return found != lines_.end() && found->value == &value ? found->line : 0;
}

KORFileError KORJsonFile::ErrorAt(const json& value, const std::string& message) const {
    return {name_, Line(value), 0, message};
}
