#pragma once

#include "framework/KORSharedBuffer.h"

/// A growable list of doubles, numbered from 1. It is a list, not a table column: it knows no unit and no
/// key.
///
/// Copies share one counted buffer until one of them is written to: a list that the store hands out or takes
/// over costs no copy of its numbers. Append, Extend and RemoveAll are the only writers and detach first.
class KORRawColldouble {
public:
    KORRawColldouble() = default;
    explicit KORRawColldouble(KORSharedBuffer<double> values) noexcept : values_(std::move(values)) {}

    void Append(double value) { values_.Append(value); }

    /// Appends `count` values for the caller to fill, at once: they are not initialized. Good until the next
    /// change.
    double* Extend(int count) { return values_.Extend(count); }

    /// The value at a position counted from 1; the caller stays within Size().
    double operator[](int position) const { return values_.First()[position - 1]; }

    int Size() const { return values_.Size(); }
    void RemoveAll() { values_.Clear(); }

    /// Room for this many values, so that as many Append follow without another allocation.
    void Reserve(int size) { values_.Reserve(size); }

    const double* Data() const { return values_.First(); }  ///< Size() values in a row
    const KORSharedBuffer<double>& Buffer() const { return values_; }

    /// Same size and the same bit patterns (NaN equals itself).
    bool SameBits(const KORRawColldouble& other) const {
        return KORSharedBuffer<double>::SameBytes(Data(), other.Data());
    }

private:
    KORSharedBuffer<double> values_;
};
