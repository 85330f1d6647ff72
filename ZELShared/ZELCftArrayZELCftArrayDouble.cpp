#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"

ZELCftArrayZELCftArrayDouble::ZELCftArrayZELCftArrayDouble(int size, const ZELCftArraydouble* rows) {
    Initialize(size, rows);
}

bool ZELCftArrayZELCftArrayDouble::GetAtIndex(int index, ZELCftArraydouble& row) const {
    if (!InRange(index)) return false;
    row = rows_.First()[index];
    return true;
}

void ZELCftArrayZELCftArrayDouble::Initialize(int size, const ZELCftArraydouble* rows) {
    const int count = Count(size);
    if (!rows || count == 0) {
        if (rows_.IsShared()) Kill();
        rows_.Resize(0);  // keeps the room
        rows_.Resize(count);
        handedOut_ = false;
        return;
    }
    KORSharedBuffer<ZELCftArraydouble> copies;  // first of all: the rows may be the table's own
    copies.Reserve(count);
    for (int row = 0; row < count; ++row) copies.Append(rows[row]);
    rows_ = std::move(copies);
    handedOut_ = false;
}

void ZELCftArrayZELCftArrayDouble::Kill() {
    rows_.Clear();
    handedOut_ = false;
}

ZELCftArraydouble* ZELCftArrayZELCftArrayDouble::Refill(int size) {
    if (rows_.IsShared()) Kill();  // others need what is in them
    rows_.Resize(Count(size));
    return rows_.Own();
}

ZELCftArraydouble& ZELCftArrayZELCftArrayDouble::Outside() {
    static ZELCftArraydouble row;
    row = ZELCftArraydouble();
    return row;
}
