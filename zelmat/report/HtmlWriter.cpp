#include "zelmat/report/HtmlWriter.h"

#include <algorithm>

#include "zelmat/text/XmlText.h"

namespace zelmat {

void HtmlWriter::Open(const char* element, const Attributes& attributes) {
    Tag(element, attributes);
    html_ += '\n';
}

void HtmlWriter::Close(const char* element) {
    html_ += std::string("</") + element + ">\n";
}

void HtmlWriter::Empty(const char* element, const Attributes& attributes) {
    Tag(element, attributes);
    html_ += '\n';
}

void HtmlWriter::Text(const char* element, const std::string& text, const Attributes& attributes) {
    Tag(element, attributes);
    html_ += XmlText(text);
    Close(element);
}

void HtmlWriter::Lines(const char* element, const std::string& text, const Attributes& attributes) {
    Tag(element, attributes);
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        if (line.ends_with('\r')) line.pop_back();
        html_ += (at > 0 ? "<br>\n" : "") + XmlText(line);
        at = end + 1;
    }
    Close(element);
}

void HtmlWriter::Tag(const char* element, const Attributes& attributes) {
    html_ += std::string("<") + element;
    for (const auto& [name, value] : attributes) {
        html_ += std::string(" ") + name + "=\"" + XmlText(value) + '"';
    }
    html_ += '>';
}

}  // namespace zelmat
