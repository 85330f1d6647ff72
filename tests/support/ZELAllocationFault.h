#pragma once

/// While it lives, the n-th `new (std::nothrow)` of the process, counted from 1, answers null. Other
/// allocations are not touched. One at a time.
class ZELAllocationFault {
public:
    explicit ZELAllocationFault(int n);
    ~ZELAllocationFault();
    ZELAllocationFault(const ZELAllocationFault&) = delete;
    ZELAllocationFault& operator=(const ZELAllocationFault&) = delete;

    bool Hit() const;
};
