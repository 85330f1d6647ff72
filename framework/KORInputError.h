#pragma once

#include "framework/KORBaseUnknown.h"
#include "framework/KORUnicodeString.h"

/// An error object that names a message in a message catalog. The text itself lies in the catalog of the
/// dialog that shows it.
///
/// Errors are kept after the operation that raised them, also when its library is unloaded: all code of the
/// class is the framework's.
class KORInputError final : public KORBaseUnknown {
public:
    KORInputError(const KORUnicodeString& messageCatalog, const KORUnicodeString& messageKey);
    ~KORInputError() override;

    const KORUnicodeString& MessageCatalog() const { return messageCatalog_; }
    const KORUnicodeString& MessageKey() const { return messageKey_; }

private:
    KORUnicodeString messageCatalog_;
    KORUnicodeString messageKey_;
};

using KORInputError_var = KORVar<KORInputError>;
