#include "ZELShared/ZELDlgUnit.h"

#include "framework/KORServices.h"

ZELDlgUnit::ZELDlgUnit(const KORUnicodeString& unitType) {
    const auto units = KORIVdxUnits_var::Of(KORServices::Current().units);
    if (units) parameter_ = KORIVdxParameter_var::Adopt(units->CreateParameter(unitType));
}
