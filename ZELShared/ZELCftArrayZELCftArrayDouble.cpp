#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"

ZELCftArrayZELCftArrayDouble::ZELCftArrayZELCftArrayDouble(int size, const ZELCftArraydouble* rows) {
    Initialize(size, rows);
}

bool ZELCftArrayZELCftArrayDouble::GetAtIndex(int index, ZELCftArraydouble& row) const {
    if (!InRange(index)) return false;
    row = rows_[Place(index)];
    return true;
}

void ZELCftArrayZELCftArrayDouble::Initialize(int size, const ZELCftArraydouble* rows) {
    const std::size_t count = Count(size);
    if (rows && count > 0) {
        rows_ = std::vector<ZELCftArraydouble>(rows, rows + count);
    } else {
        rows_.assign(count, ZELCftArraydouble());
    }
}

void ZELCftArrayZELCftArrayDouble::Kill() {
    std::vector<ZELCftArraydouble>().swap(rows_);
}

ZELCftArraydouble& ZELCftArrayZELCftArrayDouble::Outside() {
    static ZELCftArraydouble row;
    row = ZELCftArraydouble();
    return row;
}
