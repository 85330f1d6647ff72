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
    if (size <= 0) {
        rows_.clear();
    } else if (rows) {
        rows_ = std::vector<ZELCftArraydouble>(rows, rows + size);
    } else {
        rows_.assign(Place(size), ZELCftArraydouble());
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
