#include "zelmat/text/NameProblem.h"

#include "zelmat/text/Printable.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

std::optional<std::string> NameProblem(std::string_view name) {
    if (name.find_first_not_of(" \t\r\n") == std::string_view::npos) return "a name cannot be empty";
    if (name.find('\0') != std::string_view::npos) return "a name cannot hold a NUL character";
    if (FirstBadByte(name)) return "a name has to be UTF-8";
    const bool isNumber = name.size() > 1 && name.front() == '#' &&
                          name.find_first_not_of("0123456789", 1) == std::string_view::npos;
    if (isNumber) return QuotedText(name) + " cannot be a name: it means a number in the list";
    return std::nullopt;
}

}  // namespace zelmat
