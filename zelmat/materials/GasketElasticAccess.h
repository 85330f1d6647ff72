#pragma once

#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"
#include "zelmat/materials/BehaviorAccess.h"

namespace zelmat {

/// Which operations of an elastic gasket behavior do what.
struct GasketMembraneNames {
    using Behavior = ZELGasketMembraneElasticBehavior;
    static constexpr auto kHandOut = &ZELIMaterial::GetGasketMembraneElasticProperties;
    static constexpr auto kSetEnabled = &Behavior::SetGasketMembraneElasticFlag;
    static constexpr auto kEnabled = &Behavior::GetGasketMembraneElasticFlag;
    static constexpr auto kSetFlag = &Behavior::SetGasketMembraneElasticTempDepFlag;
    static constexpr auto kFlag = &Behavior::GetGasketMembraneElasticTempDepFlag;
    static constexpr auto kSetTable = &Behavior::SetGasketMembraneElasticDataArray;
    static constexpr auto kTable = &Behavior::GetGasketMembraneElasticDataArray;
};

struct GasketTransverseShearNames {
    using Behavior = ZELGasketTransverseShearElasticBehavior;
    static constexpr auto kHandOut = &ZELIMaterial::GetGasketTransShearElasticProperties;
    static constexpr auto kSetEnabled = &Behavior::SetGasketTransverseShearElasticFlag;
    static constexpr auto kEnabled = &Behavior::GetGasketTransverseShearElasticFlag;
    static constexpr auto kSetFlag = &Behavior::SetGasketTransverseShearElasticTempDepFlag;
    static constexpr auto kFlag = &Behavior::GetGasketTransverseShearElasticTempDepFlag;
    static constexpr auto kSetTable = &Behavior::SetGasketTransverseShearElasticDataArray;
    static constexpr auto kTable = &Behavior::GetGasketTransverseShearElasticDataArray;
};

/// Reads from an elastic gasket behavior. These keep nothing in memory: every getter reads the store. Writing
/// is that of the other behaviors with a single table.
template <class Names>
struct GasketElasticAccess {
    using Behavior = typename Names::Behavior;

    static HRESULT Read(ZELIMaterial& material, Block& block) {
        const auto behavior = HandOut(material, Names::kHandOut);
        if (!behavior.IsObject()) return E_FAIL;
        Behavior& object = *behavior.GetProxyObject();
        unsigned char enabled = 0;
        HRESULT status = (object.*Names::kEnabled)(enabled);
        block.enabled = SUCCEEDED(status) && enabled != 0;
        if (!block.enabled) return status;

        unsigned char temperatureDependent = 0;
        ZELCftArrayZELCftArrayDouble rows(0, nullptr);
        status = (object.*Names::kFlag)(temperatureDependent);
        if (SUCCEEDED(status)) status = (object.*Names::kTable)(rows);
        if (FAILED(status)) return status;
        AddTable(block, block.kind->tables.front(), temperatureDependent != 0, rows);
        return status;
    }
};

}  // namespace zelmat
