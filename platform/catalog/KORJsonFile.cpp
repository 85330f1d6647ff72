#include "platform/catalog/KORJsonFile.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>
#include <vector>

namespace {

using nlohmann::json;

/// Where the parser stands. A line's end belongs to the line it ends: a number is known to be over only when
/// the character behind it has been read.
struct Place {
    int line = 1;
    int column = 0;
    bool afterLineEnd = false;

    void Pass(char character) {
        if (std::exchange(afterLineEnd, character == '\n')) {
            ++line;
            column = 0;
        }
        ++column;
    }
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
        place_->Pass(*at_++);
        return *this;
    }
    PlacedIterator operator++(int) {
        PlacedIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const PlacedIterator& a, const PlacedIterator& b) { return a.at_ == b.at_; }
    friend bool operator!=(const PlacedIterator& a, const PlacedIterator& b) { return a.at_ != b.at_; }

private:
    const char* at_;
    Place* place_;
};

/// Builds the values while they are read and writes down the line of each.
class Builder final : public json::json_sax_t {
public:
    Builder(json& root, std::unordered_map<std::string, int>& lines, const Place& place, KORJsonError& error)
        : root_(root), lines_(lines), place_(place), error_(error) {}

    bool null() override { return Add(nullptr); }
    bool boolean(bool value) override { return Add(value); }
    bool number_integer(number_integer_t value) override { return Add(value); }
    bool number_unsigned(number_unsigned_t value) override { return Add(value); }
    bool number_float(number_float_t value, const string_t&) override { return Add(value); }
    bool string(string_t& value) override { return Add(std::move(value)); }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override { return Open(json::object()); }
    bool key(string_t& name) override {
        if (open_.back().value->contains(name)) {
            return Refuse(place_.line, place_.column, "the key \"" + name + "\" is given twice");
        }
        key_ = name;
        return true;
    }
    bool end_object() override { return Close(); }
    bool start_array(std::size_t) override { return Open(json::array()); }
    bool end_array() override { return Close(); }

    bool parse_error(std::size_t, const std::string&, const json::exception& problem) override {
        // The library's text begins with its own code and place: "[json...] parse error at ...: text".
        const std::string text = problem.what();
        const auto begin = text.find(": ");
        return Refuse(place_.line, place_.column,
                      begin == std::string::npos ? text.substr(text.find("] ") + 2) : text.substr(begin + 2));
    }

private:
    struct OpenValue {
        json* value;
        json::json_pointer pointer;
    };

    bool Refuse(int line, int column, const std::string& message) {
        error_.line = line;
        error_.column = column;
        error_.message = message;
        return false;
    }

    json::json_pointer NextPointer() const {
        if (open_.empty()) return json::json_pointer();
        const auto& [value, pointer] = open_.back();
        return value->is_array() ? pointer / value->size() : pointer / key_;
    }

    json& Insert(json&& value) {
        lines_[NextPointer().to_string()] = place_.line;
        if (open_.empty()) return root_ = std::move(value);
        json& around = *open_.back().value;
        if (!around.is_array()) return around[key_] = std::move(value);
        around.push_back(std::move(value));
        return around.back();
    }

    bool Add(json&& value) {
        Insert(std::move(value));
        return true;
    }
    bool Open(json&& value) {
        const json::json_pointer pointer = NextPointer();
        open_.push_back({&Insert(std::move(value)), pointer});
        return true;
    }
    bool Close() {
        open_.pop_back();
        return true;
    }

    json& root_;
    std::unordered_map<std::string, int>& lines_;
    const Place& place_;
    KORJsonError& error_;
    std::vector<OpenValue> open_;
    std::string key_;
};

}  // namespace

std::string KORJsonError::Text() const {
    std::string text = file + ":";
    if (line > 0) text += std::to_string(line) + ":";
    if (column > 0) text += std::to_string(column) + ":";
    return text + " " + message;
}

std::optional<KORJsonFile> KORJsonFile::Read(const std::string& path, KORJsonError& error) {
    std::ifstream file(path, std::ios::binary);
    file.peek();  // a directory opens, but cannot be read
    if (!file.is_open() || file.bad()) {
        error = {path, 0, 0, std::string("cannot be read: ") + std::strerror(errno)};
        return std::nullopt;
    }
    std::ostringstream text;
    text << file.rdbuf();
    return Parse(text.str(), path, error);
}

std::optional<KORJsonFile> KORJsonFile::Parse(const std::string& text, const std::string& name,
                                              KORJsonError& error) {
    KORJsonFile file;
    file.name_ = name;
    error = {name, 0, 0, {}};
    Place place;
    Builder builder(file.root_, file.lines_, place, error);
    const PlacedIterator begin(text.data(), &place);
    const PlacedIterator end(text.data() + text.size(), &place);
    if (!json::sax_parse(begin, end, &builder)) return std::nullopt;
    return file;
}

int KORJsonFile::Line(const json::json_pointer& value) const {
    for (auto at = value;; at = at.parent_pointer()) {
        const auto found = lines_.find(at.to_string());
        if (found != lines_.end()) return found->second;
        if (at.empty()) return 0;
    }
}

KORJsonError KORJsonFile::ErrorAt(const json::json_pointer& value, const std::string& message) const {
    return {name_, Line(value), 0, message};
}
