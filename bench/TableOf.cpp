#include "bench/TableOf.h"

ZELCftArrayZELCftArrayDouble bench::TableOf(int rows, double scale) {
    ZELCftArrayZELCftArrayDouble table;
    table.Prepare(rows);
    for (int row = 0; row < rows; ++row) {
        const double numbers[] = {scale * (2.1e11 - row), 0.3, scale * (293.0 + row)};
        table.push_back(ZELCftArraydouble(3, numbers));
    }
    return table;
}
