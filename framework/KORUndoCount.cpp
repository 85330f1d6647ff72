#include "framework/KORUndoCount.h"

namespace {

std::uint64_t count = 0;

}  // namespace

std::uint64_t KORUndoCount() {
    return count;
}

void KORCountUndo() {
    ++count;
}
