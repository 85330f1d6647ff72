#pragma once

#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"
#include "zelmat/materials/BehaviorAnswers.h"

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

/// Writes to and reads from an elastic gasket behavior. These keep nothing in memory: every getter reads the
/// store.
template <class Names>
struct GasketElasticAccess {
    using Behavior = typename Names::Behavior;

    /// Enabled comes before the rows: transverse shear checks them only while it is switched on.
    static std::vector<WriteStatus> Write(ZELIMaterial& material, const CardData& data) {
        BehaviorAnswers answers;
        const auto behavior = HandOut(material, Names::kHandOut);
        if (!behavior.IsObject()) return answers.NoBehavior();
        Behavior& object = *behavior.GetProxyObject();
        const CardTable& table = data.tables.front();
        answers.ToValue((object.*Names::kSetEnabled)(1));
        answers.ToValue((object.*Names::kSetFlag)(table.temperatureDependent ? 1 : 0));
        answers.ToTable(table, (object.*Names::kSetTable)(ToPropertyTable(table.rows)));
        return answers.All();
    }

    static StoredBlock Read(ZELIMaterial& material, const CardBlock& block) {
        StoredBlock stored{.block = &block};
        const auto behavior = HandOut(material, Names::kHandOut);
        if (!behavior.IsObject()) {
            stored.status = E_FAIL;
            return stored;
        }
        Behavior& object = *behavior.GetProxyObject();
        unsigned char enabled = 0;
        stored.status = (object.*Names::kEnabled)(enabled);
        stored.enabled = enabled != 0;
        if (FAILED(stored.status) || !stored.enabled) return stored;

        unsigned char temperatureDependent = 0;
        ZELCftArrayZELCftArrayDouble rows(0, nullptr);
        stored.status = (object.*Names::kFlag)(temperatureDependent);
        if (SUCCEEDED(stored.status)) stored.status = (object.*Names::kTable)(rows);
        if (SUCCEEDED(stored.status)) {
            stored.AddTable(block.tables.front(), temperatureDependent != 0, FromPropertyTable(rows));
        }
        return stored;
    }
};

}  // namespace zelmat
