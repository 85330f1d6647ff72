#include "zelmat/commands/frame/CommandLine.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "zelmat/commands/CommandTable.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// Where the feature catalogs lie, seen from the program: ../share/zelmat/catalog.
std::string CatalogsOfThisProgram() {
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    return (program.parent_path().parent_path() / "share" / "zelmat" / "catalog").string();
}

Finding Usage(const std::string& place, const char* code, std::string text,
              std::vector<std::string> details) {
    return {FindingKind::USAGE, {place, 0}, code, std::move(text), std::move(details)};
}

/// The line of a command, with its own arguments and those of the frame.
class DeclaredLine : public Arguments {
public:
    DeclaredLine(const CommandKind& kind, CommonOptions& options, Command& command)
        : Arguments("zelmat " + kind.name, kind.text) {
        command.Declare(*this);
        options.catalogs = CatalogsOfThisProgram();
        if (!kind.output.empty()) {
            Add("--output", options.output, kind.output).NotEmpty("the name of the file is missing");
        }
        const Argument json = AddFlag("--json", options.json, "Print one JSON object, findings included");
        if (kind.csv) AddFlag("--csv", options.csv, "Print the tables as CSV").Excludes(json);
        if (kind.units) {
            Add("--units", options.units,
                "Units of the numbers shown: si, mm-t-s, mm-kg-ms, us, stress=MPa,temperature=degC");
        }
        AddFlag("--strict", options.strict, "End with exit code 1 for warnings, too");
        Add("--catalogs", options.catalogs, "Folder of the feature catalogs")
            .ShowsDefault(Printable(options.catalogs));
        Add("--color", options.color, "Colours: auto (on a terminal, unless NO_COLOR is set), always, never")
            .OneOf({"auto", "always", "never"})
            .ShowsDefault();
    }
};

bool LooksLikeAnOption(const std::string& argument) {
    const bool longOne = argument.size() > 2 && argument.starts_with("--");
    return longOne || (argument.size() > 1 && argument[0] == '-' &&
                       std::isalpha(static_cast<unsigned char>(argument[1])) != 0);
}

/// Looked for before anything else: a misspelt option makes the arguments behind it look wrong, too.
std::optional<Finding> UnknownOption(const CommandKind& kind, const std::vector<std::string>& known,
                                     const std::vector<std::string>& arguments) {
    for (const std::string& argument : arguments) {
        if (argument == "--") break;
        if (!LooksLikeAnOption(argument)) continue;
        const std::string name = argument.substr(0, argument.find('='));
        if (std::find(known.begin(), known.end(), name) != known.end()) continue;
        const std::string nearest = NearestName(name, known);
        return Usage("zelmat " + kind.name, "unknown-option", "there is no option " + Quoted(name),
                     {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"});
    }
    return std::nullopt;
}

/// The parser knows "-5" for a number, and takes "-.5" for an option.
void WriteZeroBeforePoint(std::string& argument) {
    if (argument.size() > 2 && argument.starts_with("-.") && argument[2] >= '0' && argument[2] <= '9') {
        argument.insert(1, "0");
    }
}

}  // namespace

CommandLine ReadCommandLine(const CommandKind& kind, Command& command, std::vector<std::string> arguments) {
    CommandLine read;
    DeclaredLine line(kind, read.options, command);
    read.mistake = UnknownOption(kind, line.OptionNames(), arguments);
    if (read.mistake) return read;
    std::ranges::for_each(arguments, WriteZeroBeforePoint);
    const Arguments::Outcome outcome = line.Read(std::move(arguments));
    if (outcome.asksForHelp) read.help = line.Help();
    if (!outcome.mistake.empty()) {
        read.mistake =
            Usage("zelmat " + kind.name, "usage", outcome.mistake, {"see zelmat help " + kind.name});
    }
    return read;
}

std::string CommandHelp(const CommandKind& kind) {
    CommonOptions options;
    const auto command = kind.make();
    return DeclaredLine(kind, options, *command).Help();
}

std::vector<std::string> CommandOptions(const CommandKind& kind) {
    CommonOptions options;
    const auto command = kind.make();
    return DeclaredLine(kind, options, *command).OptionNames();
}

std::string ProgramHelp() {
    std::size_t width = 0;
    for (const CommandKind& command : Commands()) width = std::max(width, command.name.size());
    std::string help =
        "zelmat: material properties for finite-element analysis.\n"
        "Usage: zelmat COMMAND WHAT... [OPTIONS]\n\nCommands:\n";
    for (const CommandKind& command : Commands()) {
        help +=
            "  " + command.name + std::string(width - command.name.size() + 2, ' ') + command.brief + "\n";
    }
    help +=
        "\nzelmat help COMMAND tells more about one of them, zelmat --version the version.\n"
        "Exit codes: 0 clean or warnings alone, 1 errors (under --strict warnings, too),\n"
        "2 wrong command line, 3 could not read or write.\n"
        "Findings go to standard error as file:line: error[code]: text (value, bound, hint).\n";
    return help;
}

Finding UnknownCommand(const std::string& name) {
    std::vector<std::string> known;
    for (const CommandKind& command : Commands()) known.push_back(command.name);
    if (name.starts_with("-")) {
        return Usage("zelmat", "unknown-option", Quoted(name) + " stands in the place of the command",
                     {"options stand behind it: zelmat COMMAND WHAT... " + name});
    }
    const std::string nearest = NearestName(name, known);
    return Usage("zelmat", "unknown-command", "there is no command " + Quoted(name),
                 {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"});
}

}  // namespace zelmat
