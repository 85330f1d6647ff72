#pragma once

#include "bench/peer/PeerDocument.h"

namespace peer {

/// Grows what bench::StoreTree grows: fifteen labels, each with its name, and sixty-five attributes. A root
/// with eleven flags; below it twelve labels with a flag, an integer, a real and a reference, and two without
/// the integer. A label holds only one reference, so each of the fourteen lies on the branch's side.
TDF_Label GrowTree(const Document& document, double value);

/// The i-th flag of a tree's root.
Standard_GUID RootFlag(int i);

/// A copy of the tree beside it, its references on the copy's own labels.
void CopyTree(const Document& document, const TDF_Label& root);

}  // namespace peer
