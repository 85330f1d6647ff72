#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELColumns.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace {

constexpr std::size_t kMostColumns = 3;  ///< two value columns and the temperature

/// Columns to rows that are there already, unrolled by width: as fast as the plain loop.
template <std::size_t... Column>
void FillRows(std::index_sequence<Column...>, const double* const* columns, int count,
              ZELCftArraydouble* rows) {
    const double* const from[] = {columns[Column]...};
    for (int row = 0; row < count; ++row) {
        const double numbers[] = {from[Column][row]...};
        rows[row].Assign(numbers);
    }
}

/// Rows to columns with room for them, in one walk over the rows, which are what is far apart in memory.
template <std::size_t... Column>
void FillColumns(std::index_sequence<Column...>, const ZELCftArrayZELCftArrayDouble& table,
                 KORRawColldouble* lists) {
    const int rows = table.size();
    double* const to[] = {lists[Column].Extend(rows)...};
    const ZELCftArraydouble* const from = &table[0];  // rows lie side by side: asked for once
    for (int row = 0; row < rows; ++row) {
        const ZELCftArraydouble& numbers = from[row];
        const double taken[] = {numbers[static_cast<int>(Column)]...};
        ((to[Column][row] = taken[Column]), ...);
    }
}

/// Calls `fill` with the indices of so many columns, one to kMostColumns, known to the compiler.
template <class Fill>
void ForWidth(std::size_t columns, Fill fill) {
    switch (columns) {
        case 1:
            fill(std::make_index_sequence<1>());
            break;
        case 2:
            fill(std::make_index_sequence<2>());
            break;
        default:
            fill(std::make_index_sequence<kMostColumns>());
            break;
    }
}

}  // namespace

KORRawColldouble ZELColumnOf(const ZELCftArrayZELCftArrayDouble& table, int column) {
    KORRawColldouble values;
    const int rows = table.size();
    double* const numbers = values.Extend(rows);
    for (int row = 0; row < rows; ++row) numbers[row] = table[row][column];
    return values;
}

// Writing resolves each key where its column is written and keeps what stands before a missing one; reading
// resolves all keys before it touches anything. That is why the two walk the columns on their own.

HRESULT ZELWriteColumns(KORISpecObject* feature, ZELColumnSlots columns,
                        const ZELCftArrayZELCftArrayDouble& table, bool temperatureDependent) {
    const auto access = KORISpecAttrAccess_var::Of(feature);
    if (!access) return E_NOINTERFACE;
    std::array<KORRawColldouble, kMostColumns> lists;
    ForWidth(temperatureDependent ? columns.size() : columns.size() - 1,
             [&](auto indices) { FillColumns(indices, table, lists.data()); });
    for (std::size_t column = 0; column < columns.size(); ++column) {
        KORISpecAttrKey* key = columns[column].Resolve(*access);
        if (!key) return E_FAIL;
        access->SetListOfDouble(key, lists[column]);
    }
    return S_OK;
}

HRESULT ZELReadColumns(KORISpecObject* feature, ZELColumnSlots columns, bool temperatureDependent,
                       ZELCftArrayZELCftArrayDouble& table, ZELColumnsRead& outcome) {
    outcome = ZELColumnsRead::Consistent;
    const auto access = KORISpecAttrAccess_var::Of(feature);
    if (!access) return E_NOINTERFACE;
    std::array<KORISpecAttrKey*, kMostColumns> keys{};
    for (std::size_t column = 0; column < columns.size(); ++column) {
        keys[column] = columns[column].Resolve(*access);
        if (!keys[column]) return E_FAIL;
    }
    std::array<std::unique_ptr<KORRawColldouble>, kMostColumns> lists;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        lists[column].reset(access->GetListOfDouble(keys[column]));
    }
    const std::size_t used = temperatureDependent ? columns.size() : columns.size() - 1;
    std::array<const double*, kMostColumns> values{};
    for (std::size_t column = 0; column < used; ++column) {
        if (!lists[column]) {
            table.Initialize(0, nullptr);
            return S_OK;
        }
        values[column] = lists[column]->Data();
    }
    int rows = lists[0]->Size();
    for (std::size_t column = 1; column < used; ++column) rows = std::min(rows, lists[column]->Size());
    ZELCftArraydouble* const refilled = table.Refill(rows);
    ForWidth(used, [&](auto indices) { FillRows(indices, values.data(), rows, refilled); });
    if (rows < lists[0]->Size()) outcome = ZELColumnsRead::Inconsistent;
    return S_OK;
}
