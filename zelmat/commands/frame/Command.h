#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "zelmat/findings/Findings.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

class Arguments;

/// The options that mean the same on every command that has them, as the user gave them.
struct CommonOptions {
    std::string catalogs;        ///< folder of the feature catalogs
    std::string output;          ///< where the file goes that the command makes; empty: nowhere
    std::string color = "auto";  ///< "auto": on a terminal, unless NO_COLOR is set; "always"; "never"
    bool strict = false;         ///< warnings count as errors for the exit code
    bool json = false;           ///< one JSON object on standard output, findings included
    bool csv = false;            ///< tables on standard output as CSV
    std::string units;           ///< of the numbers shown: "us", "stress=MPa,..."; empty: not said
};

/// What a command works with.
struct CommandContext {
    const CommonOptions& options;
    const UnitChoice& units;  ///< of the numbers shown, as options and configuration choose them
    Findings& findings;
    std::ostream& notes;           ///< standard error, for what is neither result nor finding
    std::string commandLine = {};  ///< as it was given, for a shell
};

/// One run of a command. The frame declares its options, has it work, prints what it made, as text or as
/// JSON, then what it found, and ends the program with the exit code that the findings ask for. A command
/// itself prints nothing before it is asked to.
class Command {
public:
    virtual ~Command() = default;

    /// Adds the command's own arguments and options.
    virtual void Declare(Arguments& line) = 0;

    virtual void Work(CommandContext& context) = 0;

    /// Whether a file that the command makes goes to standard output, other than by --output; what is printed
    /// goes to standard error then.
    virtual bool TakesStandardOutput() const { return false; }

    /// The exit code that the result itself asks for, where there is nothing to find fault with: that what
    /// was compared differs.
    virtual ExitCode Outcome() const { return EXIT_CLEAN; }

    /// What the work came to, for a reader; nothing when it came to nothing.
    virtual void Print(std::ostream& out) const = 0;

    /// The same as an object; the frame adds the findings. Each number has its unit beside it.
    virtual nlohmann::ordered_json Json() const = 0;
};

/// All that tells one command from the next. The command line, the help and everything else that lists
/// commands are made from it.
struct CommandKind {
    std::string name;         ///< "show"
    std::string brief;        ///< what it does, in half a line
    std::string text;         ///< the same in full
    std::string output = {};  ///< what --output is for; empty: the command has no such option
    bool units = false;       ///< has --units: it shows numbers that have a unit
    bool csv = false;         ///< has --csv: it shows tables
    std::unique_ptr<Command> (*make)() = nullptr;
};

template <class AnyCommand>
std::unique_ptr<Command> MakeCommand() {
    return std::make_unique<AnyCommand>();
}

}  // namespace zelmat
