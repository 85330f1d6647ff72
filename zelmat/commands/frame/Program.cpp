#include "zelmat/commands/frame/Program.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <iostream>
#include <new>

#include "zelmat/commands/CommandTable.h"
#include "zelmat/commands/frame/ChosenUnits.h"
#include "zelmat/commands/frame/CommandLine.h"
#include "zelmat/commands/frame/FindingPrinter.h"
#include "zelmat/commands/frame/JsonReport.h"
#include "zelmat/commands/frame/ManPage.h"
#include "zelmat/commands/frame/Terminal.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/ShellWord.h"

namespace zelmat {

namespace {

using Words = std::vector<std::string>;

ExitCode EndWith(const Findings& findings, const CommonOptions& options) {
    const bool colored = IsColored(STDERR_FILENO, options.color);
    PrintFindings(std::cerr, findings, colored);
    if (findings.All().empty() && IsTerminal(STDERR_FILENO)) {
        std::cerr << (colored ? "\033[32mno findings\033[0m\n" : "no findings\n");
    }
    return findings.Exit(options.strict);
}

/// Hands everything printed so far to the system; false, and a finding, when that does not take it. Told
/// once.
bool FlushOutput(Findings& findings) {
    errno = 0;
    if (std::cout.flush()) return true;
    const std::string reason = errno != 0 ? std::strerror(errno) : "the stream has failed";
    std::cout.clear();
    findings.Add(
        {FindingKind::UNREADABLE, {"standard output", 0}, "not-written", "cannot be written: " + reason, {}});
    return false;
}

/// The version of what --json prints: docs/output.schema.json. A key that is added leaves it as it is.
constexpr int kOutputVersion = 1;

/// `command`: null where the command line names none that there is.
void PrintJson(std::ostream& out, const CommandKind* command, const nlohmann::ordered_json& result,
               const Findings& findings) {
    nlohmann::ordered_json json = {{"version", kOutputVersion}, {"command", nullptr}};
    if (command) json["command"] = command->name;
    json.update(result);
    json["findings"] = ToJson(findings);
    // A path can hold bytes that are no UTF-8; JSON cannot.
    out << PrintableJson(json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace)) << '\n';
}

/// Looked for by itself: a command line that is wrong has not been read.
bool WantsJson(const Words& arguments) {
    const auto end = std::find(arguments.begin(), arguments.end(), "--");
    return std::find(arguments.begin(), end, "--json") != end;
}

ExitCode EndWithMistake(const CommandKind* command, const Finding& mistake, bool json) {
    Findings findings;
    findings.Add(mistake);
    if (!json) return EndWith(findings, {});
    PrintJson(std::cout, command, nlohmann::ordered_json::object(), findings);
    return findings.Exit();
}

ExitCode RunCommand(const CommandKind& kind, Words arguments) {
    const auto command = kind.make();
    const bool json = WantsJson(arguments);
    std::string text = "zelmat " + kind.name;
    for (const std::string& argument : arguments) text += " " + ShellWord(argument);
    const CommandLine line = ReadCommandLine(kind, *command, std::move(arguments));
    if (line.mistake) return EndWithMistake(&kind, *line.mistake, json);
    if (line.help) {
        std::cout << *line.help;
        return EXIT_CLEAN;
    }
    Findings findings;
    if (const auto units = kind.units ? ChosenUnits(line.options, findings) : UnitChoice::Si()) {
        CommandContext context{line.options, *units, findings, std::cerr, std::move(text)};
        command->Work(context);
    }
    // Standard output belongs to the file that the command makes, when that goes there.
    const bool taken = line.options.output == "-" || command->TakesStandardOutput();
    std::ostream& out = taken ? std::cerr : std::cout;
    if (line.options.json) {
        PrintJson(out, &kind, command->Json(), findings);
        const bool written = FlushOutput(findings);
        const ExitCode code = written ? findings.Exit(line.options.strict) : EndWith(findings, line.options);
        return std::max(code, command->Outcome());
    }
    command->Print(out);
    // Where both go to one terminal, the result stands before what was found.
    static_cast<void>(FlushOutput(findings));
    return std::max(EndWith(findings, line.options), command->Outcome());
}

/// `zelmat help`, `zelmat help COMMAND`
ExitCode Help(const Words& arguments) {
    if (arguments.empty()) {
        std::cout << ProgramHelp();
        return EXIT_CLEAN;
    }
    if (arguments.front() == "--man") {
        std::cout << ManPage();
        return EXIT_CLEAN;
    }
    const CommandKind* kind = FindCommand(arguments.front());
    if (!kind) return EndWithMistake(nullptr, UnknownCommand(arguments.front()), WantsJson(arguments));
    std::cout << CommandHelp(*kind);
    return EXIT_CLEAN;
}

ExitCode Run(Words arguments) {
    if (arguments.empty()) {
        std::cerr << ProgramHelp();
        return EXIT_USAGE;
    }
    const std::string first = arguments.front();
    arguments.erase(arguments.begin());
    if (first == "help" || first == "--help" || first == "-h") return Help(arguments);
    if (first == "--version") {
        std::cout << "zelmat " << ZELMAT_VERSION << '\n';
        return EXIT_CLEAN;
    }
    const CommandKind* kind = FindCommand(first);
    if (!kind) return EndWithMistake(nullptr, UnknownCommand(first), WantsJson(arguments));
    return RunCommand(*kind, std::move(arguments));
}

/// Standard descriptors that are closed are taken, by what cannot be read or written: the first file that is
/// opened would get their number, and the program's own words would end in it.
void TakeClosedDescriptors() {
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(standard, F_GETFD) == 0 || errno != EBADF) continue;
        // The lowest free number is this one: those below are open by now. Never closed.
        static_cast<void>(::open("/dev/null", standard == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
}

}  // namespace

int RunProgram(int argc, char** argv) noexcept {
    try {
        TakeClosedDescriptors();
        // A file beyond the limit of the user's shell is a write that fails, and no death in the middle of
        // it.
        std::signal(SIGXFSZ, SIG_IGN);
        const ExitCode code = Run(Words(argv + (argc > 0 ? 1 : 0), argv + argc));
        Findings lost;
        return FlushOutput(lost) ? code : EndWith(lost, CommonOptions{});
    } catch (const std::bad_alloc&) {
        std::cerr << "zelmat: error[failed]: there is not enough memory\n";
    } catch (const std::exception& problem) {
        std::cerr << "zelmat: error[failed]: " << Printable(problem.what()) << '\n';
    }
    return EXIT_UNREADABLE;
}

}  // namespace zelmat
