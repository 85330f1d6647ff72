#pragma once

#include "framework/KORBaseUnknown.h"
#include "interfaces/KORISpecAttrAccess.h"

/// Implements ZELIShellSection on "ZELShellSectionEnhLT" features. It holds nothing: type and layup lie in
/// the feature's attributes "SectionType" (integer) and "Layup" (component).
class ZELShellSectionExtension final : public KORBaseUnknown {
    KORDeclareClass

    int GetSectionType();
    KORISpecObject* GetLayup();
};
