#pragma once

#include <array>
#include <cstdint>

#include "framework/KORInputError.h"

/// Error objects that travelled back in a result code, for the caller to ask back. The last 64 are kept.
class KORErrorRecords {
public:
    struct Entry {
        HRESULT code = S_OK;
        int level = 0;  ///< as given; 2 is a warning: the data were stored
        KORInputError_var error;
        KORUnicodeString source;  ///< base name of the source file that raised it
        int line = 0;
    };

    /// Records the error and answers the code that carries it: a success-class code that is not S_OK. Takes
    /// over the caller's reference on the error.
    HRESULT Record(int level, KORInputError* error, const char* source, int line);

    /// The entry that a code carries; null for other codes and for those recorded more than 64 errors ago.
    const Entry* Find(HRESULT code) const;

private:
    static constexpr std::uint32_t kKept = 64;
    std::array<Entry, kKept> entries_;
    std::uint32_t recorded_ = 0;
};
