#pragma once

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterialConductivity.h"
#include "ZELMaterialModel/include/ZELMaterialDensity.h"
#include "ZELMaterialModel/include/ZELMaterialElastic.h"
#include "ZELMaterialModel/include/ZELMaterialSpecificHeat.h"
#include "ZELMaterialModel/include/ZELMaterialThermalExpansion.h"
#include "zelmat/MaterialCard.h"

namespace zelmat {

/// Which operations of a behavior class do what. One such list per behavior that holds a single table.
struct ElasticNames {
    using Behavior = ZELMaterialElastic;
    static constexpr auto kHandOut = &ZELIMaterial::GetElasticProperties;
    static constexpr auto kSetEnabled = &Behavior::SetElasticEnabled;
    static constexpr auto kSetTable = &Behavior::SetElasticDataArray;
    static constexpr auto kLoadEnabled = &Behavior::GetPropertyElasticEnabled;
    static constexpr auto kEnabled = &Behavior::GetElasticEnabled;
    static constexpr auto kLoadTable = &Behavior::GetPropertyElasticDataArray;
    static constexpr auto kTable = &Behavior::GetElasticDataArray;
};

struct DensityNames {
    using Behavior = ZELMaterialDensity;
    static constexpr auto kHandOut = &ZELIMaterial::GetDensityProperties;
    static constexpr auto kSetEnabled = &Behavior::SetDensityEnabled;
    static constexpr auto kSetTable = &Behavior::SetDensityDataArray;
    static constexpr auto kLoadEnabled = &Behavior::GetPropertyDensityEnabled;
    static constexpr auto kEnabled = &Behavior::GetDensityEnabled;
    static constexpr auto kLoadTable = &Behavior::GetPropertyDensityDataArray;
    static constexpr auto kTable = &Behavior::GetDensityDataArray;
};

struct ThermalExpansionNames {
    using Behavior = ZELMaterialThermalExpansion;
    static constexpr auto kHandOut = &ZELIMaterial::GetThermalExpansionProperties;
    static constexpr auto kSetEnabled = &Behavior::SetThermalExpansionEnabled;
    static constexpr auto kSetTable = &Behavior::SetThermalExpansionDataArray;
    static constexpr auto kLoadEnabled = &Behavior::GetPropertyThermalExpansionEnabled;
    static constexpr auto kEnabled = &Behavior::GetThermalExpansionEnabled;
    static constexpr auto kLoadTable = &Behavior::GetPropertyThermalExpansionDataArray;
    static constexpr auto kTable = &Behavior::GetThermalExpansionDataArray;
};

struct ConductivityNames {
    using Behavior = ZELMaterialConductivity;
    static constexpr auto kHandOut = &ZELIMaterial::GetConductivityProperties;
    static constexpr auto kSetEnabled = &Behavior::SetConductivityEnabled;
    static constexpr auto kSetTable = &Behavior::SetConductivityDataArray;
    static constexpr auto kLoadEnabled = &Behavior::GetPropertyConductivityEnabled;
    static constexpr auto kEnabled = &Behavior::GetConductivityEnabled;
    static constexpr auto kLoadTable = &Behavior::GetPropertyConductivityDataArray;
    static constexpr auto kTable = &Behavior::GetConductivityDataArray;
};

struct SpecificHeatNames {
    using Behavior = ZELMaterialSpecificHeat;
    static constexpr auto kHandOut = &ZELIMaterial::GetSpecificHeatProperties;
    static constexpr auto kSetEnabled = &Behavior::SetSpecificHeatEnabled;
    static constexpr auto kSetTable = &Behavior::SetSpecificHeatDataArray;
    static constexpr auto kLoadEnabled = &Behavior::GetPropertySpecificHeatEnabled;
    static constexpr auto kEnabled = &Behavior::GetSpecificHeatEnabled;
    static constexpr auto kLoadTable = &Behavior::GetPropertySpecificHeatDataArray;
    static constexpr auto kTable = &Behavior::GetSpecificHeatDataArray;
};

/// Rows of the card as the table type of the behaviors, and back.
ZELCftArrayZELCftArrayDouble ToPropertyTable(const std::vector<std::vector<double>>& rows);
std::vector<std::vector<double>> FromPropertyTable(ZELCftArrayZELCftArrayDouble& table);

/// Writes to and reads from a behavior that holds a single table.
template <class Names>
struct BehaviorAccess {
    using Behavior = typename Names::Behavior;

    static constexpr bool kHasReferenceTemperature = requires(Behavior & behavior, double kelvin) {
        behavior.SetReferenceTemperature(kelvin);
    };

    /// Switches the behavior on and gives it the table. Flags come before the rows: a behavior decides by
    /// them which columns it stores. Answers the first failure, else what the table's setter answered.
    static HRESULT Write(ZELIMaterial& material, const CardTable& table) {
        ZELGenHeapObjectProxy<Behavior> behavior(nullptr);
        (material.*Names::kHandOut)(behavior);
        if (!behavior.IsObject()) return E_FAIL;

        HRESULT status = (behavior.GetProxyObject()->*Names::kSetEnabled)(1);
        if (SUCCEEDED(status)) status = behavior->SetTemperatureDependent(table.temperatureDependent ? 1 : 0);
        if constexpr (kHasReferenceTemperature) {
            if (SUCCEEDED(status)) {
                status = behavior->SetReferenceTemperature(table.referenceTemperature.value_or(0.0));
            }
        }
        if (FAILED(status)) return status;
        return (behavior.GetProxyObject()->*Names::kSetTable)(ToPropertyTable(table.rows));
    }

    static StoredTable Read(ZELIMaterial& material) {
        StoredTable stored;
        ZELGenHeapObjectProxy<Behavior> behavior(nullptr);
        (material.*Names::kHandOut)(behavior);
        if (!behavior.IsObject()) {
            stored.status = E_FAIL;
            return stored;
        }
        Behavior& object = *behavior.GetProxyObject();

        // The table's columns depend on the temperature flag, which therefore is read before it.
        HRESULT status = (object.*Names::kLoadEnabled)();
        if (SUCCEEDED(status)) status = object.GetPropertyTemperatureDependent();
        if (SUCCEEDED(status)) status = (object.*Names::kLoadTable)();
        if constexpr (kHasReferenceTemperature) {
            if (SUCCEEDED(status)) status = object.GetPropertyReferenceTemperature();
            stored.referenceTemperature = object.GetReferenceTemperature();
        }
        stored.status = status;
        stored.enabled = (object.*Names::kEnabled)() != 0;
        stored.temperatureDependent = object.GetTemperatureDependent() != 0;
        auto table = (object.*Names::kTable)();
        stored.rows = FromPropertyTable(table);
        return stored;
    }
};

}  // namespace zelmat
