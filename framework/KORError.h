#pragma once

#include "framework/KORErrorRecords.h"

/// The platform's error-return service: an error object goes to the caller in the result code of an
/// operation.
struct KORError {
    /// Records the error for the caller and answers the code that carries it: SUCCEEDED, but not S_OK.
    /// `level` 2 is a warning. Takes over the reference on the error. `reserved` is the platform's and null.
    static HRESULT GetReturn(int level, KORInputError* error, const void* reserved, const char* source,
                             int line);

    /// The error that a result code carries, or null: plain codes, and errors more than 64 errors ago.
    static const KORErrorRecords::Entry* Find(HRESULT code);
};
