#include "zelmat/commands/frame/ManPage.h"

#include <sstream>

#include "zelmat/commands/CommandTable.h"
#include "zelmat/commands/frame/CommandLine.h"

namespace zelmat {

namespace {

/// Lines as they are, for a passage that troff does not fill: a backslash, and a point or quote that begins a
/// line, would be its own.
std::string Verbatim(const std::string& text) {
    std::string escaped;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('.') || line.starts_with('\'')) escaped += "\\&";
        for (const char c : line) {
            if (c == '\\') {
                escaped += "\\e";
            } else if (c == '-') {
                escaped += "\\-";
            } else {
                escaped += c;
            }
        }
        escaped += '\n';
    }
    return escaped;
}

std::string Passage(const std::string& text) {
    return ".nf\n" + Verbatim(text) + ".fi\n";
}

}  // namespace

std::string ManPage() {
    std::string page =
        ".TH ZELMAT 1\n"
        ".SH NAME\nzelmat \\- material properties for finite\\-element analysis\n"
        ".SH SYNOPSIS\n.B zelmat\n.I COMMAND WHAT... [OPTIONS]\n"
        ".SH DESCRIPTION\n" +
        Passage(ProgramHelp()) + ".SH COMMANDS\n";
    for (const CommandKind& kind : Commands()) {
        page += ".SS zelmat " + kind.name + "\n" + Passage(CommandHelp(kind));
    }
    return page;
}

}  // namespace zelmat
