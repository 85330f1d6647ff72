#include "bench/Memory.h"

#include <malloc.h>

#include "framework/KORSmallBlocks.h"

double bench::HeapBytes() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) -
           static_cast<double>(KORSmallBlocks::KeptBytes());
}

void bench::DropUnusedHeap() {
    malloc_trim(0);
}
