#include "zelmat/report/HtmlWriter.h"

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

void HtmlWriter::Tag(const char* element, const Attributes& attributes) {
    html_ += std::string("<") + element;
    for (const auto& [name, value] : attributes) {
        html_ += std::string(" ") + name + "=\"" + XmlText(value) + '"';
    }
    html_ += '>';
}

}  // namespace zelmat
