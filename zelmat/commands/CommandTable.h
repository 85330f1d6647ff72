#pragma once

#include <vector>

#include "zelmat/commands/frame/Command.h"

namespace zelmat {

/// Every command, in the order of the help. A new one is a file with a function `CommandKind NameCommand()`
/// and its name in the list of CommandTable.cpp.
const std::vector<CommandKind>& Commands();

/// Null when there is no command of that name.
const CommandKind* FindCommand(const std::string& name);

}  // namespace zelmat
