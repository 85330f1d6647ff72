#pragma once

#include <vector>

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Columns as the table type of the behaviors.
ZELCftArrayZELCftArrayDouble ToPropertyTable(const Table& table);

/// Puts a behavior's table into the block, with the columns of its kind's form. What a row has beyond them
/// becomes columns without a name; what it lacks is NaN.
void AddTable(Block& block, const TableKind& kind, bool temperatureDependent,
              const ZELCftArrayZELCftArrayDouble& rows);

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
    void ToTable(const Table& table, HRESULT status);

    std::vector<WriteStatus> All() const { return all_; }
    static std::vector<WriteStatus> NoBehavior() { return {{nullptr, E_FAIL}}; }

private:
    std::vector<WriteStatus> all_;
};

}  // namespace zelmat
