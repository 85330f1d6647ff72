#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELBoundAccess.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELColumns.h"

HRESULT ZELSetBoundColumns(const KORISpecAttrAccess_var& access, std::span<KORISpecAttrKey* const> columns,
                           const ZELCftArrayZELCftArrayDouble& table) {
    if (!access) return E_FAIL;
    for (int column = 0; KORISpecAttrKey * key : columns) {
        if (!key) return E_FAIL;
        access->SetListOfDouble(key, ZELColumnOf(table, column++));
    }
    return S_OK;
}

HRESULT ZELGetBoundColumns(const KORISpecAttrAccess_var& access, std::span<KORISpecAttrKey* const> columns,
                           ZELCftArrayZELCftArrayDouble& table) {
    if (!access || std::count(columns.begin(), columns.end(), nullptr) != 0) return E_FAIL;
    std::vector<std::unique_ptr<KORRawColldouble>> lists;
    lists.reserve(columns.size());  // first: a list in the hand is nobody's yet
    for (KORISpecAttrKey* key : columns) {
        lists.emplace_back(access->GetListOfDouble(key));
        if (!lists.back() || lists.back()->Size() != lists.front()->Size()) return E_FAIL;
    }
    const int rows = lists.front()->Size();
    table.Prepare(table.size() + rows);
    for (int position = 1; position <= rows; ++position) {
        ZELCftArraydouble row;
        for (const auto& list : lists) row.push_back((*list)[position]);
        table.push_back(std::move(row));
    }
    return S_OK;
}
