#pragma once

#include "platform/disk/KORDiskContainers.h"
#include "platform/disk/KORDiskSlots.h"
#include "platform/disk/KORPackedValue.h"
#include "platform/store/KORUndoLog.h"

// The entries of a step as a document's file holds them; byte for byte in docs/document.md.

/// Appends an entry. False, with something useless appended, when it references what is no feature or
/// container of the document.
[[nodiscard]] bool KORPackEntry(KORPacker& packer, const KORUndoEntry& entry,
                                const KORDiskContainers& containers, KORDiskNames& names,
                                const KORStoreDocument& document);

/// Takes the next entry apart; its feature and all that it references are there. Nothing, and the unpacker
/// has failed, when it makes no sense.
std::optional<KORUndoEntry> KORUnpackEntry(KORUnpacker& packed, const KORDiskContainers& containers,
                                           const KORDiskSlots& slots, const KORStoreDocument& document);
