#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

/// One element of a picture: its attributes, and the text inside it.
struct Element {
    std::map<std::string, std::string> attributes;
    std::string text;

    double Number(const char* name) const { return std::stod(attributes.at(name)); }
};

/// A small reader of XML without comments and entities of its own. It fails the test for what is not well
/// formed.
class Picture {
public:
    explicit Picture(const std::string& text) : text_(text) {
        EXPECT_TRUE(text.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"));
        at_ = text.find('\n') + 1;
        while (at_ < text_.size()) Step();
        EXPECT_TRUE(open_.empty()) << "never closed: " << (open_.empty() ? "" : open_.back().first);
    }

    const std::vector<Element>& All(const std::string& name) { return elements_[name]; }

private:
    void Step() {
        if (text_[at_] != '<') {
            const std::size_t end = std::min(text_.find('<', at_), text_.size());
            const std::string text = text_.substr(at_, end - at_);
            EXPECT_EQ(text.find('>'), std::string::npos) << text;
            if (!open_.empty()) elements_[open_.back().first][open_.back().second].text += text;
            at_ = end;
            return;
        }
        const std::size_t end = text_.find('>', at_);
        ASSERT_NE(end, std::string::npos);
        const std::string tag = text_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        if (tag.starts_with('/')) {
            ASSERT_FALSE(open_.empty());
            EXPECT_EQ(open_.back().first, tag.substr(1));
            open_.pop_back();
            return;
        }
        Open(tag);
    }

    void Open(std::string tag) {
        const bool closed = tag.ends_with('/');
        if (closed) tag.pop_back();
        const std::size_t nameEnd = std::min(tag.find(' '), tag.size());
        const std::string name = tag.substr(0, nameEnd);
        Element element;
        for (std::size_t at = nameEnd; at < tag.size();) {
            ASSERT_EQ(tag[at], ' ');
            const std::size_t equals = tag.find("=\"", at);
            ASSERT_NE(equals, std::string::npos) << tag;
            const std::size_t end = tag.find('"', equals + 2);
            ASSERT_NE(end, std::string::npos) << tag;
            const std::string key = tag.substr(at + 1, equals - at - 1);
            EXPECT_TRUE(element.attributes.emplace(key, tag.substr(equals + 2, end - equals - 2)).second)
                << key << " twice";
            at = end + 1;
        }
        elements_[name].push_back(element);
        if (!closed) open_.emplace_back(name, elements_[name].size() - 1);
    }

    const std::string& text_;
    std::size_t at_ = 0;
    std::vector<std::pair<std::string, std::size_t>> open_;
    std::map<std::string, std::vector<Element>> elements_;
};

inline std::vector<std::string> TextsOf(Picture& picture, const std::string& kind) {
    std::vector<std::string> texts;
    for (const Element& element : picture.All("text")) {
        const auto found = element.attributes.find("class");
        if (found != element.attributes.end() && found->second == kind) texts.push_back(element.text);
    }
    return texts;
}

inline std::vector<std::string> TextsWith(Picture& picture, const std::string& part) {
    std::vector<std::string> texts;
    for (const Element& element : picture.All("text")) {
        if (element.text.find(part) != std::string::npos) texts.push_back(element.text);
    }
    return texts;
}

/// The boxes of the plies, in the order of the layers.
inline std::vector<Element> Boxes(Picture& picture) {
    std::vector<Element> boxes;
    for (const Element& box : picture.All("rect")) {
        const auto kind = box.attributes.find("class");
        if (kind != box.attributes.end() && kind->second == "ply") boxes.push_back(box);
    }
    return boxes;
}

struct Segment {
    double x1, y1, x2, y2;
};

/// The lines of a hatching: "M1 2L3 4 M5 6L7 8".
inline std::vector<Segment> Segments(const Element& path) {
    std::string data = path.attributes.at("d");
    std::replace_if(
        data.begin(), data.end(), [](char symbol) { return symbol == 'M' || symbol == 'L'; }, ' ');
    std::istringstream numbers(data);
    std::vector<Segment> segments;
    for (Segment next{}; numbers >> next.x1 >> next.y1 >> next.x2 >> next.y2;) segments.push_back(next);
    return segments;
}

/// The hatching that begins within a box; none when it has none.
inline std::vector<Segment> Hatching(Picture& picture, const Element& box) {
    const double left = box.Number("x"), top = box.Number("y");
    for (const Element& path : picture.All("path")) {
        const auto kind = path.attributes.find("stroke-width");
        if (kind == path.attributes.end() || path.attributes.at("fill") != "none") continue;
        auto segments = Segments(path);
        if (segments.empty()) continue;
        const Segment& first = segments.front();
        const bool inside = first.x1 >= left && first.x1 <= left + box.Number("width") && first.y1 >= top &&
                            first.y1 <= top + box.Number("height");
        if (inside) return segments;
    }
    return {};
}
