#pragma once

#include "platform/disk/KORDiskWriter.h"
#include "zelmat/commands/frame/Command.h"

namespace zelmat {

/// Whose step it is, for a document's history: the user of this process, and the command line.
KORHistoryOrigin OriginOf(const CommandContext& context);

}  // namespace zelmat
