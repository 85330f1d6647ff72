#include "framework/KORInputError.h"

KORInputError::KORInputError(const KORUnicodeString& messageCatalog, const KORUnicodeString& messageKey)
    : messageCatalog_(messageCatalog), messageKey_(messageKey) {}

KORInputError::~KORInputError() = default;
