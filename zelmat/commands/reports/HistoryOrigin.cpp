#include "zelmat/commands/reports/HistoryOrigin.h"

#include <pwd.h>
#include <unistd.h>

namespace zelmat {

KORHistoryOrigin OriginOf(const CommandContext& context) {
    const uid_t user = ::geteuid();
    const passwd* known = ::getpwuid(user);
    return {known ? known->pw_name : std::to_string(user), context.commandLine};
}

}  // namespace zelmat
