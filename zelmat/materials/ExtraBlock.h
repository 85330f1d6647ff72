#pragma once

#include <optional>

#include "platform/document/KORMemoryDocument.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// What a card's block is for, as a document tells it.
enum class ExtraUse { BEHAVIOR, STORED_FIT, FIT, INFORMATION };

/// What a document keeps of a card's block beside the module's data.
struct ExtraBlock {
    ExtraUse use = ExtraUse::BEHAVIOR;
    bool whole = false;  ///< the module's data hold nothing of it, or something else
    /// As the card has it. One that is not whole and was read from a document has values that the module's
    /// data lack or that were written in another unit, and tables of those columns alone that were.
    Block block;
    Values notGiven;  ///< stored values that the card left out, as they were when it was stored
};

/// The stored values that a document holds of a block and the card left out.
Values NotGiven(const Block& given, const Block& held);

/// Nothing of it is worth a feature.
bool SaysNothing(const ExtraBlock& extra);

/// Puts it into a feature of the document: into `known`, which holds another one by now and of which only
/// what differs is written, or, where that is null, into a new one. Answers the feature; null when the
/// document does not know the late types.
KORISpecObject_var WriteExtraBlock(KORMemoryDocument& document, const ExtraBlock& extra,
                                   const KORISpecObject_var& known = nullptr);

/// Nothing when it is of a kind that there is not, or not of a table's form: some other program made it.
std::optional<ExtraBlock> ReadExtraBlock(KORISpecObject* feature);

/// Takes it out of the document, with the features that it consists of.
void RemoveExtraBlock(KORMemoryDocument& document, KORISpecObject* feature);

}  // namespace zelmat
