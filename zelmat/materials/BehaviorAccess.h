#pragma once

#include <array>

#include "ZELMaterialModel/include/ZELGenHeapObjectProxy.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterialConductivity.h"
#include "ZELMaterialModel/include/ZELMaterialDensity.h"
#include "ZELMaterialModel/include/ZELMaterialElastic.h"
#include "ZELMaterialModel/include/ZELMaterialSpecificHeat.h"
#include "ZELMaterialModel/include/ZELMaterialThermalExpansion.h"
#include "zelmat/materials/BehaviorAnswers.h"

namespace zelmat {

/// A number that a behavior holds beside its table: its name on the block, the attribute that holds it, and
/// the operations that write it, read it from the store, and answer it.
template <class Behavior>
struct BehaviorNumber {
    const char* name;
    const char* attribute;
    HRESULT (Behavior::*set)(const double&);
    HRESULT (Behavior::*load)();
    double (Behavior::*get)() const;
};

/// Which operations of a behavior class do what. One such list per behavior that holds a single table; a new
/// attribute of the behavior is a row of its kNumbers.
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
    static constexpr const char* kLateType = "ZELThermalExpansionLT";
    static constexpr std::array kNumbers = {BehaviorNumber<Behavior>{
        "reference_temperature", "ReferenceTemperature", &Behavior::SetReferenceTemperature,
        &Behavior::GetPropertyReferenceTemperature, &Behavior::GetReferenceTemperature}};
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

/// Writes to and reads from a behavior that holds a single table. Reading is for those that keep it in
/// memory; see GasketElasticAccess.
template <class Names>
struct BehaviorAccess {
    using Behavior = typename Names::Behavior;

    static constexpr bool kHasNumbers = requires { Names::kNumbers; };

    /// The numbers beside the table, as settings of the block.
    static std::vector<Setting> Settings() {
        std::vector<Setting> settings;
        if constexpr (kHasNumbers) {
            for (const auto& number : Names::kNumbers) {
                settings.push_back(StoredSetting(number.name, Names::kLateType, number.attribute));
            }
        }
        return settings;
    }

    /// Flags come before the rows: a behavior decides by them which columns it stores, and whether it checks
    /// them.
    static std::vector<WriteStatus> Write(ZELIMaterial& material, const Block& block) {
        BehaviorAnswers answers;
        const auto behavior = HandOut(material, Names::kHandOut);
        if (!behavior.IsObject()) return answers.NoBehavior();
        Behavior& object = *behavior.GetProxyObject();

        answers.ToValue((object.*Names::kSetEnabled)(block.enabled ? 1 : 0));
        if constexpr (kHasNumbers) {
            for (const auto& number : Names::kNumbers) {
                const auto value = block.values.template Get<double>(number.name);
                if (value) answers.ToValue((object.*number.set)(*value));
            }
        }
        for (const Table& table : block.tables) {
            answers.ToValue(SetTemperatureDependent(object, table.temperatureDependent ? 1 : 0));
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
        if constexpr (kHasNumbers) {
            for (const auto& number : Names::kNumbers) {
                if (SUCCEEDED(status)) status = (object.*number.load)();
                if (SUCCEEDED(status)) block.values.Set(number.name, (object.*number.get)());
            }
        }
        if (FAILED(status)) return status;
        AddTable(block, block.kind->tables.front(), object.GetTemperatureDependent() != 0,
                 (object.*Names::kTable)());
        return status;
    }

private:
    static HRESULT SetTemperatureDependent(Behavior& object, const unsigned char& dependent) {
        if constexpr (requires { Names::kSetFlag; }) {
            return (object.*Names::kSetFlag)(dependent);
        } else {
            return object.SetTemperatureDependent(dependent);
        }
    }
};

}  // namespace zelmat
