#include "bench/Memory.h"

#include <malloc.h>

double bench::HeapBytes() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void bench::DropUnusedHeap() {
    malloc_trim(0);
}
