#include "framework/KORError.h"

#include "framework/KORServices.h"

HRESULT KORError::GetReturn(int level, KORInputError* error, const void*, const char* source, int line) {
    return KORServices::Current().errors.Record(level, error, source, line);
}

const KORErrorRecords::Entry* KORError::Find(HRESULT code) {
    return KORServices::Current().errors.Find(code);
}
