#pragma once

#include <string>
#include <utility>
#include <vector>

namespace zelmat {

/// HTML that grows element by element. Texts and the values of attributes may hold anything; names of
/// elements and attributes are ours.
class HtmlWriter {
public:
    using Attributes = std::vector<std::pair<const char*, std::string>>;

    void Open(const char* element, const Attributes& attributes = {});
    void Close(const char* element);
    /// An element without content, such as `img`.
    void Empty(const char* element, const Attributes& attributes = {});
    /// An element with a text, on a line of its own.
    void Text(const char* element, const std::string& text, const Attributes& attributes = {});
    /// The same with the text's own ends of lines as ends of lines.
    void Lines(const char* element, const std::string& text, const Attributes& attributes = {});
    /// What is markup already.
    void Raw(const std::string& markup) { html_ += markup; }

    std::string Take() { return std::move(html_); }

private:
    void Tag(const char* element, const Attributes& attributes);

    std::string html_;
};

}  // namespace zelmat
