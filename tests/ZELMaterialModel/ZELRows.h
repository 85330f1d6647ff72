#pragma once

#include <vector>

#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"

/// A property table as tests write it down.
using ZELRows = std::vector<std::vector<double>>;

inline ZELCftArrayZELCftArrayDouble ZELTableOf(const ZELRows& rows) {
    ZELCftArrayZELCftArrayDouble table;
    for (const auto& row : rows) table.push_back(ZELCftArraydouble(static_cast<int>(row.size()), row.data()));
    return table;
}

inline ZELRows ZELRowsOf(const ZELCftArrayZELCftArrayDouble& table) {
    ZELRows rows;
    for (int row = 0; row < table.size(); ++row) {
        auto& numbers = rows.emplace_back();
        for (int column = 0; column < table[row].size(); ++column) numbers.push_back(table[row][column]);
    }
    return rows;
}
