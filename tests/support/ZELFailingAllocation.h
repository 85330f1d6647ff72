#pragma once

/// While it lives, the n-th allocation of the process, counted from 1, fails: it throws std::bad_alloc, or
/// answers null where it must not throw. One at a time.
///
/// Its source file replaces the allocation functions of the process, so it is no part of the library of test
/// support: a program that needs it lists the file, and has no other tests.
class ZELFailingAllocation {
public:
    explicit ZELFailingAllocation(int n);
    ~ZELFailingAllocation();
    ZELFailingAllocation(const ZELFailingAllocation&) = delete;
    ZELFailingAllocation& operator=(const ZELFailingAllocation&) = delete;

    bool Hit() const;
};
