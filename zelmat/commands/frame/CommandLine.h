#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Command.h"

namespace zelmat {

/// What the user wants, taken from the arguments of one command.
struct CommandLine {
    CommonOptions options;
    std::optional<std::string> help;  ///< asked for: the text
    std::optional<Finding> mistake;   ///< a usage that there is not
};

/// Declares the command's options and reads the arguments behind its name into them and into the command.
CommandLine ReadCommandLine(const CommandKind& kind, Command& command, std::vector<std::string> arguments);

/// What `zelmat help COMMAND` prints.
std::string CommandHelp(const CommandKind& kind);

/// The options of a command as they are typed: "--json".
std::vector<std::string> CommandOptions(const CommandKind& kind);

/// What `zelmat --help` prints.
std::string ProgramHelp();

/// The finding for a command that there is not, with the nearest one.
Finding UnknownCommand(const std::string& name);

}  // namespace zelmat
