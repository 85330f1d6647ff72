#include "zelmat/layups/LayupDrawing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <map>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using zelmat::LayupDrawing;
using zelmat::StoredLayup;

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

std::vector<std::string> TextsWith(Picture& picture, const std::string& part) {
    std::vector<std::string> texts;
    for (const Element& element : picture.All("text")) {
        if (element.text.find(part) != std::string::npos) texts.push_back(element.text);
    }
    return texts;
}

/// The boxes that are hatched, in the order of the layers.
std::vector<Element> Boxes(Picture& picture) {
    std::vector<Element> boxes;
    for (const Element& box : picture.All("rect")) {
        if (box.attributes.at("fill").starts_with("url(#")) boxes.push_back(box);
    }
    return boxes;
}

StoredLayup Sandwich() {
    return {.name = "Layup-1",
            .layers = {{"Carbon", 0.001, 0.0}, {"Core", 0.008, 45.0}, {"Carbon", 0.001, 90.0}}};
}

TEST(LayupDrawing, StacksTheLayersToScaleWithTheBottomOneAtTheBottom) {
    const std::string text = LayupDrawing(Sandwich(), "Sandwich");
    Picture picture(text);

    const auto boxes = Boxes(picture);

    ASSERT_THAT(boxes, SizeIs(3));
    EXPECT_GT(boxes[0].Number("y"), boxes[1].Number("y"));
    EXPECT_GT(boxes[1].Number("y"), boxes[2].Number("y"));
    EXPECT_EQ(boxes[0].Number("height"), 30.0);
    EXPECT_EQ(boxes[1].Number("height"), 240.0);
    EXPECT_EQ(boxes[1].Number("y") + boxes[1].Number("height"), boxes[0].Number("y"));
}

TEST(LayupDrawing, HatchesAlongTheFibresSeenFromAbove) {
    const std::string text = LayupDrawing(Sandwich(), "Sandwich");
    Picture picture(text);
    std::map<std::string, std::string> turned;
    for (const Element& pattern : picture.All("pattern")) {
        turned["url(#" + pattern.attributes.at("id") + ")"] = pattern.attributes.at("patternTransform");
    }

    const auto boxes = Boxes(picture);

    ASSERT_THAT(boxes, SizeIs(3));
    EXPECT_EQ(turned[boxes[0].attributes.at("fill")], "rotate(0)");
    EXPECT_EQ(turned[boxes[1].attributes.at("fill")], "rotate(-45)") << "the picture's y axis points down";
    EXPECT_EQ(turned[boxes[2].attributes.at("fill")], "rotate(-90)");
}

TEST(LayupDrawing, SaysAngleMaterialThicknessAndHeights) {
    const std::string text = LayupDrawing(Sandwich(), "Sandwich");
    Picture picture(text);

    EXPECT_THAT(TextsWith(picture, "°"),
                ElementsAre("3: 90°, Carbon, 1 mm", "2: 45°, Core, 8 mm", "1: 0°, Carbon, 1 mm"));
    EXPECT_THAT(TextsWith(picture, "z = "), ElementsAre("z = 5 mm", "z = 4 mm", "z = -4 mm", "z = -5 mm"));
    EXPECT_THAT(TextsWith(picture, "through the thickness"), ElementsAre("through the thickness: 5 mm"));
    EXPECT_THAT(TextsWith(picture, "3 layers"),
                ElementsAre("3 layers, 10 mm thick; z from the middle plane"));
}

TEST(LayupDrawing, DrawsTheScaleAsLongAsItSays) {
    const std::string text = LayupDrawing(Sandwich(), "Sandwich");
    Picture picture(text);

    const auto& bar = picture.All("line").at(picture.All("line").size() - 3);

    EXPECT_EQ(bar.Number("x2") - bar.Number("x1"), 150.0) << "5 of the 10 mm that 300 pixels stand for";
    EXPECT_EQ(bar.Number("y1"), bar.Number("y2"));
}

TEST(LayupDrawing, KeepsLabelsOfThinLayersApart) {
    StoredLayup layup{.name = "Layup-1", .layers = {}};
    layup.layers.assign(10, {"Carbon", 1e-6, 0.0});
    layup.layers.push_back({"Core", 1.0, 0.0});
    const std::string text = LayupDrawing(layup, "Thin");
    Picture picture(text);

    std::vector<double> heights;
    for (const Element& label : picture.All("text")) {
        if (label.text.find("°") != std::string::npos) heights.push_back(label.Number("y"));
    }

    ASSERT_THAT(heights, SizeIs(11));
    for (std::size_t i = 1; i < heights.size(); ++i) EXPECT_GE(heights[i] - heights[i - 1], 14.99);
}

TEST(LayupDrawing, EscapesNames) {
    StoredLayup layup = Sandwich();
    layup.layers[0].material = "<A & \"B\">\n";
    layup.layers[1].material.reset();
    const std::string text = LayupDrawing(layup, "a < b");
    Picture picture(text);

    EXPECT_THAT(TextsWith(picture, "&lt;A &amp; &quot;B&quot;&gt; "), SizeIs(1));
    EXPECT_THAT(TextsWith(picture, "a &lt; b"), SizeIs(1));
    EXPECT_THAT(TextsWith(picture, "no material"), SizeIs(1));
}

TEST(LayupDrawing, LabelsSomeOfVeryManyLayersAndSaysSo) {
    StoredLayup layup{.name = "Layup-1", .layers = {}};
    layup.layers.assign(10000, {"Carbon", 1e-6, 0.0});
    const std::string text = LayupDrawing(layup, "Many");
    Picture picture(text);

    EXPECT_THAT(Boxes(picture), SizeIs(10000));
    EXPECT_THAT(TextsWith(picture, "°"), SizeIs(201)) << "every 50th and the last one";
    EXPECT_THAT(text, HasSubstr("every 50th layer is labelled"));
}

TEST(LayupDrawing, DrawsAnEmptyLayupWithoutAStack) {
    const std::string text = LayupDrawing({.name = "Layup-1", .layers = {}}, "Nothing");
    Picture picture(text);

    EXPECT_THAT(Boxes(picture), SizeIs(0));
    EXPECT_THAT(TextsWith(picture, "z = "), ElementsAre("z = 0 mm"));
    EXPECT_THAT(text, Not(HasSubstr("through the thickness")));
    EXPECT_THAT(text, Not(HasSubstr("nan")));
    EXPECT_THAT(text, Not(HasSubstr("inf")));
}

}  // namespace
