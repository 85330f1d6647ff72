#pragma once

#include <string>
#include <vector>

#include "zelmat/commands/frame/Command.h"

namespace zelmat {

/// What became of one of several documents.
struct UpgradedDocument {
    std::string path;
    std::string result;  ///< "2 materials upgraded", "up to date", "failed"
};

/// Upgrades documents in processes of their own, a few at a time, in the order given: each is this program
/// with `further` options. What they find becomes findings here. Shows how far it is on a terminal. When it
/// is interrupted, each document is the old or the new one.
std::vector<UpgradedDocument> UpgradeDocuments(const std::vector<std::string>& paths,
                                               const std::vector<std::string>& further,
                                               CommandContext& context);

}  // namespace zelmat
