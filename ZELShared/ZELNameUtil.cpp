#include "ZELShared/ZELNameUtil.h"

#include <string>
#include <unordered_set>

#include "interfaces/KORIAlias.h"
#include "interfaces/KORISpecObject.h"

namespace {

std::string NameOf(const KORBaseUnknown_var& object) {
    KORUnicodeString name;
    if (const KORIAlias_var alias(object); alias) name = alias->GetAlias();
    if (!name.empty()) return std::string(name.View());
    if (const KORISpecObject_var feature(object); feature) name = feature->GetName();
    return std::string(name.View());
}

}  // namespace

HRESULT ZELNameUtil::GetNextUniqueName(KORUnicodeString& name, const KORListValKORBaseUnknown_var& existing) {
    if (name.empty()) return E_FAIL;
    std::unordered_set<std::string> taken;
    for (int position = 1; position <= existing.Size(); ++position) taken.insert(NameOf(existing[position]));
    const std::string prefix(name.View());
    for (int number = 1;; ++number) {
        const std::string candidate = prefix + std::to_string(number);
        if (taken.count(candidate) != 0) continue;
        name = KORUnicodeString(candidate.c_str());
        return S_OK;
    }
}
