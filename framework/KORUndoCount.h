#pragma once

#include <cstdint>

/// How often data were changed behind the backs of those who keep features: every undo, redo and rollback, in
/// any document of the process, counts. Who keeps a feature between calls need not ask after it as long as
/// the count is the same. It says nothing about which features changed.
std::uint64_t KORUndoCount();

/// For stores: data are about to be changed so.
void KORCountUndo();
