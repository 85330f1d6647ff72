#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/DocumentLayups.h"
#include "zelmat/layups/LayupCard.h"

namespace zelmat {

/// A layup of a document, and the card that it gives.
struct WholeLayup {
    StoredLayup stored;
    LayupCard card;
};

/// Nothing, and a finding about `file`, when it cannot be read.
std::optional<WholeLayup> ReadWholeLayup(KORMemoryDocument& document, const DocumentLayup& layup,
                                         const std::string& file, Findings& findings);

/// All of a document that can be read.
std::vector<WholeLayup> ReadWholeLayups(KORMemoryDocument& document, const std::string& file,
                                        Findings& findings);

}  // namespace zelmat
