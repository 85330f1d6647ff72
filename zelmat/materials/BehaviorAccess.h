#pragma once

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterialConductivity.h"
#include "ZELMaterialModel/include/ZELMaterialDensity.h"
#include "ZELMaterialModel/include/ZELMaterialElastic.h"
#include "ZELMaterialModel/include/ZELMaterialSpecificHeat.h"
#include "ZELMaterialModel/include/ZELMaterialThermalExpansion.h"
#include "zelmat/materials/BehaviorAnswers.h"

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

/// Writes to and reads from a behavior that holds a single table.
template <class Names>
struct BehaviorAccess {
    using Behavior = typename Names::Behavior;

    static constexpr bool kHasReferenceTemperature = requires(Behavior & behavior, double kelvin) {
        behavior.SetReferenceTemperature(kelvin);
    };

    /// Flags come before the rows: a behavior decides by them which columns it stores.
    static std::vector<WriteStatus> Write(ZELIMaterial& material, const Block& block) {
        BehaviorAnswers answers;
        const auto behavior = HandOut(material, Names::kHandOut);
        if (!behavior.IsObject()) return answers.NoBehavior();
        Behavior& object = *behavior.GetProxyObject();

        answers.ToValue((object.*Names::kSetEnabled)(block.enabled ? 1 : 0));
        if constexpr (kHasReferenceTemperature) {
            if (const auto kelvin = block.values.template Get<double>("reference_temperature")) {
                answers.ToValue(object.SetReferenceTemperature(*kelvin));
            }
        }
        for (const Table& table : block.tables) {
            answers.ToValue(object.SetTemperatureDependent(table.temperatureDependent ? 1 : 0));
            answers.ToTable(table, (object.*Names::kSetTable)(ToPropertyTable(table)));
        }
        return answers.All();
    }

    static HRESULT Read(ZELIMaterial& material, Block& block) {
        const auto behavior = HandOut(material, Names::kHandOut);
        if (!behavior.IsObject()) return E_FAIL;
        Behavior& object = *behavior.GetProxyObject();
        HRESULT status = (object.*Names::kLoadEnabled)();
        block.enabled = SUCCEEDED(status) && (object.*Names::kEnabled)() != 0;
        if (!block.enabled) return status;

        // The table's columns depend on the temperature flag, which therefore is read before it.
        status = object.GetPropertyTemperatureDependent();
        if (SUCCEEDED(status)) status = (object.*Names::kLoadTable)();
        if constexpr (kHasReferenceTemperature) {
            if (SUCCEEDED(status)) status = object.GetPropertyReferenceTemperature();
            if (SUCCEEDED(status))
                block.values.Set("reference_temperature", object.GetReferenceTemperature());
        }
        if (FAILED(status)) return status;
        AddTable(block, block.kind->tables.front(), object.GetTemperatureDependent() != 0,
                 (object.*Names::kTable)());
        return status;
    }
};

}  // namespace zelmat
