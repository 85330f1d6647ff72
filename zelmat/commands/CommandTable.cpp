#include "zelmat/commands/CommandTable.h"

#include <algorithm>

namespace zelmat {

// One line a command.
#define ZELMAT_COMMANDS(COMMAND) \
    COMMAND(Show)                \
    COMMAND(Summary)             \
    COMMAND(Check)               \
    COMMAND(Convert)             \
    COMMAND(Export)              \
    COMMAND(Import)              \
    COMMAND(Prove)               \
    COMMAND(New)                 \
    COMMAND(Add)                 \
    COMMAND(List)                \
    COMMAND(Find)                \
    COMMAND(Set)                 \
    COMMAND(Rename)              \
    COMMAND(Copy)                \
    COMMAND(Remove)              \
    COMMAND(Extract)             \
    COMMAND(Diff)                \
    COMMAND(Undo)                \
    COMMAND(Redo)                \
    COMMAND(Log)                 \
    COMMAND(Compact)             \
    COMMAND(Doctor)              \
    COMMAND(Upgrade)             \
    COMMAND(Layup)               \
    COMMAND(At)                  \
    COMMAND(Response)            \
    COMMAND(Fit)                 \
    COMMAND(TrueCurve)           \
    COMMAND(Laminate)            \
    COMMAND(Constants)           \
    COMMAND(Plot)                \
    COMMAND(Report)              \
    COMMAND(Unit)                \
    COMMAND(Config)              \
    COMMAND(Catalog)             \
    COMMAND(Completion)

#define ZELMAT_DECLARE(name) CommandKind name##Command();
ZELMAT_COMMANDS(ZELMAT_DECLARE)

const std::vector<CommandKind>& Commands() {
#define ZELMAT_ENTER(name) name##Command(),
    static const std::vector<CommandKind> commands = {ZELMAT_COMMANDS(ZELMAT_ENTER)};
    return commands;
}

const CommandKind* FindCommand(const std::string& name) {
    const auto& commands = Commands();
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const CommandKind& command) { return command.name == name; });
    return found == commands.end() ? nullptr : &*found;
}

}  // namespace zelmat
