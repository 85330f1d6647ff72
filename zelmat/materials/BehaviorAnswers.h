#pragma once

#include <vector>

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "zelmat/materials/MaterialCard.h"

namespace zelmat {

/// Rows of the card as the table type of the behaviors, and back.
ZELCftArrayZELCftArrayDouble ToPropertyTable(const std::vector<std::vector<double>>& rows);
std::vector<std::vector<double>> FromPropertyTable(ZELCftArrayZELCftArrayDouble& table);

/// The material's behavior, shared; an empty proxy when it has none.
template <class Behavior>
ZELGenHeapObjectProxy<Behavior> HandOut(ZELIMaterial& material,
                                        void (ZELIMaterial::*operation)(ZELGenHeapObjectProxy<Behavior>&)) {
    ZELGenHeapObjectProxy<Behavior> behavior(nullptr);
    (material.*operation)(behavior);
    return behavior;
}

/// What a behavior answered to its setters, as far as it is more than S_OK.
class BehaviorAnswers {
public:
    /// To one of the values beside the tables. The first failure stands for all of them.
    void ToValue(HRESULT status);
    void ToTable(const CardTable& table, HRESULT status);

    std::vector<WriteStatus> All() const { return all_; }
    static std::vector<WriteStatus> NoBehavior() { return {{nullptr, E_FAIL}}; }

private:
    std::vector<WriteStatus> all_;
};

}  // namespace zelmat
