#pragma once

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELColumns.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELTestStore.h"

inline constexpr KORUnicodeString kZELFirst = KORUnicodeString::Literal("First");
inline constexpr KORUnicodeString kZELSecond = KORUnicodeString::Literal("Second");
inline constexpr KORUnicodeString kZELTemperature = KORUnicodeString::Literal("Temperature");

inline void ZELDefineTable(ZELTestStore& store) {
    store.DefineType("TableLT", {{"First", ZELKind::ListOfDoubles},
                                 {"Second", ZELKind::ListOfDoubles},
                                 {"Temperature", ZELKind::ListOfDoubles}});
}

/// What a table holds before something is read into it.
inline const ZELRows kZELBefore = {{-1.0, -2.0, -3.0}};

/// Two value columns and the temperature, with cold key slots.
struct ZELTwoColumns {
    ZELKeySlot slots[3] = {ZELKeySlot(kZELFirst), ZELKeySlot(kZELSecond), ZELKeySlot(kZELTemperature)};

    HRESULT Write(const KORISpecObject_var& feature, const ZELRows& rows, bool temperatureDependent) {
        return ZELWriteColumns(feature.Get(), slots, ZELTableOf(rows), temperatureDependent);
    }
    HRESULT Read(const KORISpecObject_var& feature, bool temperatureDependent) {
        const HRESULT status = ZELReadColumns(feature.Get(), slots, temperatureDependent, table, outcome);
        return status;
    }

    ZELCftArrayZELCftArrayDouble table = ZELTableOf(kZELBefore);
    ZELColumnsRead outcome = ZELColumnsRead::Inconsistent;
};
