#pragma once

#include <utility>
#include <vector>

#include "ZELShared/ZELCftArraydouble.h"

/// A property table: rows numbered from 0, one number per quantity in each row, the temperature last when the
/// data depend on temperature. It carries no units and does not require rows of equal width; the behaviors
/// say what the columns mean. Wherever it is given a size, a negative one counts as 0.
class ZELCftArrayZELCftArrayDouble {
public:
    /// `size` rows copied from `rows`; empty rows when `rows` is null. Size 0 makes an empty table.
    explicit ZELCftArrayZELCftArrayDouble(int size = 0, const ZELCftArraydouble* rows = nullptr);

    /// Appends a copy of a row, which may be one of the table's own. Always true; running out of memory
    /// throws.
    bool push_back(const ZELCftArraydouble& row) {
        rows_.push_back(row);
        return true;
    }
    bool push_back(ZELCftArraydouble&& row) {
        rows_.push_back(std::move(row));
        return true;
    }

    /// Copies row `index` out. False, and `row` untouched, outside 0..size()-1.
    bool GetAtIndex(int index, ZELCftArraydouble& row) const;

    /// The row at an index from 0. Outside 0..size()-1: a row that is empty at each such access and keeps
    /// nothing.
    ZELCftArraydouble& operator[](int index) { return InRange(index) ? rows_[Place(index)] : Outside(); }
    const ZELCftArraydouble& operator[](int index) const {
        return InRange(index) ? rows_[Place(index)] : Outside();
    }

    int size() const { return static_cast<int>(rows_.size()); }
    void Prepare(int size) { rows_.reserve(Count(size)); }  ///< room for this many rows

    /// Resets the table to `size` rows copied from `rows`; (0, null) empties it and keeps its room for the
    /// next rows.
    void Initialize(int size, const ZELCftArraydouble* rows);
    void Resize(int size) { rows_.resize(Count(size)); }  ///< keeps rows that are there; new ones are empty
    void Kill();                                          ///< frees all rows

private:
    static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
    static std::size_t Count(int size) { return size > 0 ? Place(size) : 0; }
    bool InRange(int index) const { return index >= 0 && Place(index) < rows_.size(); }
    static ZELCftArraydouble& Outside();

    std::vector<ZELCftArraydouble> rows_;
};
