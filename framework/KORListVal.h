#pragma once

#include "framework/KORSharedBuffer.h"

/// A growable list of handles, numbered from 1. Copies share one buffer until one of them is written to, so a
/// list that the store hands out costs no counting of its entries. Entries may be empty handles.
template <class Handle>
class KORListVal {
public:
    void Append(const Handle& entry) { entries_.Append(entry); }

    /// The entry at a position counted from 1; the caller stays within Size().
    const Handle& operator[](int position) const { return entries_.First()[position - 1]; }

    int Size() const { return entries_.Size(); }

    /// Takes the entry at a position out; those after it move up. Positions outside 1..Size() do nothing.
    void RemovePosition(int position) {
        if (position >= 1 && position <= Size()) entries_.Erase(position - 1);
    }
    void RemoveAll() { entries_.Clear(); }

private:
    KORSharedBuffer<Handle> entries_;
};
