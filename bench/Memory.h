#pragma once

namespace bench {

/// Bytes of heap that the process holds at the moment, with the allocator's own overhead.
double HeapBytes();

/// Gives unused heap back to the system, so that what comes next meets fresh pages, as in a new process.
void DropUnusedHeap();

}  // namespace bench
