#include "framework/KORErrorRecords.h"

namespace {

constexpr std::uint32_t kCarriesError = 0x00040000;  ///< success class; the low 16 bits number the error
constexpr std::uint32_t kNumbers = 0x0000FFFF;

}  // namespace

HRESULT KORErrorRecords::Record(int level, KORInputError* error, const char* source, int line) {
    const auto code = static_cast<HRESULT>(kCarriesError | (recorded_ & kNumbers));
    entries_[recorded_ % kKept] = {code, level, KORInputError_var::Adopt(error), KORUnicodeString(source),
                                   line};
    ++recorded_;
    return code;
}

const KORErrorRecords::Entry* KORErrorRecords::Find(HRESULT code) const {
    for (const Entry& entry : entries_) {
        if (code != S_OK && entry.code == code) return &entry;
    }
    return nullptr;
}
