#pragma once

#include <utility>

#include "ZELShared/ZELCftArraydouble.h"
#include "framework/KORSharedBuffer.h"

/// A property table: rows numbered from 0, one number per quantity in each row, the temperature last when the
/// data depend on temperature. It carries no units and does not require rows of equal width; the behaviors
/// say what the columns mean. Wherever it is given a size, a negative one counts as 0.
///
/// Copies are deep for whoever writes to one of them, but share the rows until then: a table passes from a
/// caller through a behavior's memory to the store without a copy. A row that was handed out for writing may
/// be written at any time, so a table that did so shares its rows no more. What was handed out for reading is
/// good until the table is changed.
class ZELCftArrayZELCftArrayDouble {
public:
    /// `size` rows copied from `rows`; empty rows when `rows` is null. Size 0 makes an empty table.
    explicit ZELCftArrayZELCftArrayDouble(int size = 0, const ZELCftArraydouble* rows = nullptr);
    ZELCftArrayZELCftArrayDouble(const ZELCftArrayZELCftArrayDouble& other) : rows_(other.rows_) {
        if (other.handedOut_) rows_.Own();
    }
    ZELCftArrayZELCftArrayDouble(ZELCftArrayZELCftArrayDouble&& other) noexcept
        : rows_(std::move(other.rows_)), handedOut_(std::exchange(other.handedOut_, false)) {}
    ZELCftArrayZELCftArrayDouble& operator=(ZELCftArrayZELCftArrayDouble other) noexcept {
        std::swap(rows_, other.rows_);
        std::swap(handedOut_, other.handedOut_);
        return *this;
    }
    ~ZELCftArrayZELCftArrayDouble() = default;

    /// Appends a copy of a row, which may be one of the table's own. Always true; running out of memory
    /// throws.
    bool push_back(const ZELCftArraydouble& row) {
        rows_.Append(row);
        return true;
    }
    bool push_back(ZELCftArraydouble&& row) {
        rows_.Append(std::move(row));
        return true;
    }

    /// Copies row `index` out. False, and `row` untouched, outside 0..size()-1.
    bool GetAtIndex(int index, ZELCftArraydouble& row) const;

    /// The row at an index from 0. Outside 0..size()-1: a row that is empty at each such access and keeps
    /// nothing.
    ZELCftArraydouble& operator[](int index) {
        if (!InRange(index)) return Outside();
        handedOut_ = true;
        return rows_.Own()[index];
    }
    const ZELCftArraydouble& operator[](int index) const {
        return InRange(index) ? rows_.First()[index] : Outside();
    }

    int size() const { return rows_.Size(); }
    void Prepare(int size) { rows_.Reserve(Count(size)); }  ///< room for this many rows

    /// Resets the table to `size` rows copied from `rows`; (0, null) empties it and keeps its room for the
    /// next rows.
    void Initialize(int size, const ZELCftArraydouble* rows);
    void Resize(int size) { rows_.Resize(Count(size)); }  ///< keeps rows that are there; new ones are empty
    void Kill();                                          ///< frees all rows

    /// Makes it `size` rows, whatever is in them, for the caller to fill at once: the table's own ones, where
    /// nobody shares them. Good until the next change or copy; null when there are none.
    ZELCftArraydouble* Refill(int size);

private:
    static int Count(int size) { return size > 0 ? size : 0; }
    bool InRange(int index) const { return index >= 0 && index < rows_.Size(); }
    static ZELCftArraydouble& Outside();

    KORSharedBuffer<ZELCftArraydouble> rows_;
    bool handedOut_ = false;  ///< somebody may hold a row for writing
};
