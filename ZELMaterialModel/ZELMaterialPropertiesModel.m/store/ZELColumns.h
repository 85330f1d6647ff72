#pragma once

#include <span>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELKeySlot.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"

/// The columns in which a table is stored, one list of doubles each: the value columns in order, the
/// temperature column last. Value k of every list (from 1) belongs to row k-1.
using ZELColumnSlots = std::span<ZELKeySlot>;

/// One column of a table as a list, row by row; 0.0 where a row is too narrow.
KORRawColldouble ZELColumnOf(const ZELCftArrayZELCftArrayDouble& table, int column);

/// Stores a table column by column, in order, the temperature column last and empty unless the data depend on
/// temperature. Rows are trusted to be wide enough. Each key is resolved just before its column is written,
/// so a missing attribute (E_FAIL) leaves the columns before it written and those after it unchanged.
/// E_NOINTERFACE, and nothing is written, when the feature offers no attribute access.
HRESULT ZELWriteColumns(KORISpecObject* feature, ZELColumnSlots columns,
                        const ZELCftArrayZELCftArrayDouble& table, bool temperatureDependent);

enum class ZELColumnsRead { Consistent, Inconsistent };

/// Rebuilds a table from its columns. All keys are resolved first: on E_NOINTERFACE and E_FAIL the table is
/// as it was. A column that was never valued makes the table empty; the temperature column counts only when
/// the data depend on temperature. The first column sets the number of rows. Where another column is shorter,
/// `outcome` is Inconsistent and the rows before the gap are kept; longer columns are read as far as needed.
HRESULT ZELReadColumns(KORISpecObject* feature, ZELColumnSlots columns, bool temperatureDependent,
                       ZELCftArrayZELCftArrayDouble& table, ZELColumnsRead& outcome);
