#include "zelmat/materials/GasketAccess.h"

#include <array>

#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"
#include "zelmat/materials/BehaviorAnswers.h"

namespace zelmat {

namespace {

using Gasket = ZELGasketThicknessBehavior;

struct YieldOnset {
    const char* word;  ///< in the block
    int method;        ///< in the store
};

constexpr std::array<YieldOnset, 2> kYieldOnsets = {{
    {"relative", Gasket::InitialYieldOnsetMethod},
    {"closure", Gasket::InitialYieldOnsetMethod + 1},
}};

/// Where one of the three tables goes.
struct GasketTable {
    const char* name;  ///< in the block
    HRESULT (Gasket::*setFlag)(const unsigned char&);
    HRESULT (Gasket::*getFlag)(unsigned char&);
    HRESULT (Gasket::*setRows)(const ZELCftArrayZELCftArrayDouble&);
    HRESULT (Gasket::*getRows)(ZELCftArrayZELCftArrayDouble&);
};

constexpr std::array<GasketTable, 3> kTables = {{
    {"loading", &Gasket::SetGasketLoadingTemperatureDependentFlag,
     &Gasket::GetGasketLoadingTemperatureDependentFlag, &Gasket::SetGasketLoadingDataArray,
     &Gasket::GetGasketLoadingDataArray},
    {"unloading_elastic_plastic", &Gasket::SetGasketUnLoadingEPTemperatureDependentFlag,
     &Gasket::GetGasketUnLoadingEPTemperatureDependentFlag, &Gasket::SetGasketUnLoadingEPDataArray,
     &Gasket::GetGasketUnLoadingEPDataArray},
    {"unloading_damage", &Gasket::SetGasketUnLoadingDamageTemperatureDependentFlag,
     &Gasket::GetGasketUnLoadingDamageTemperatureDependentFlag, &Gasket::SetGasketUnLoadingDamageDataArray,
     &Gasket::GetGasketUnLoadingDamageDataArray},
}};

/// Settings that the card leaves out keep the values of a new material.
void WriteValues(Gasket& gasket, const Values& values, BehaviorAnswers& answers) {
    if (const auto type = values.Get<int>("behavior_type")) {
        answers.ToValue(
            gasket.SetGasketThicknessBehaviorType(static_cast<Gasket::GasketThicknessType>(*type)));
    }
    if (const auto word = values.Get<std::string>("yield_onset.method")) {
        for (const YieldOnset& onset : kYieldOnsets) {
            if (*word != onset.word) continue;
            answers.ToValue(gasket.SetGasketYieldOnsetMethodType(
                static_cast<Gasket::GasketYieldOnsetMethodType>(onset.method)));
        }
    }
    if (const auto drop = values.Get<double>("yield_onset.relative_value")) {
        answers.ToValue(gasket.SetGasketYieldOnsetMethodRelativeValue(*drop));
    }
    if (const auto closure = values.Get<double>("yield_onset.closure_value")) {
        answers.ToValue(gasket.SetGasketYieldOnsetMethodClosureValue(*closure));
    }
    if (const auto factor = values.Get<double>("tensile_stiffness_factor")) {
        answers.ToValue(gasket.SetGasketTensileStiffnessFactor(*factor));
    }
}

/// A table that the block leaves out is stored empty.
void WriteTables(Gasket& gasket, const Block& block, BehaviorAnswers& answers) {
    for (const GasketTable& place : kTables) {
        const Table* table = block.Find(place.name);
        answers.ToValue((gasket.*place.setFlag)(table && table->temperatureDependent ? 1 : 0));
        const HRESULT status = (gasket.*place.setRows)(ToPropertyTable(table ? *table : Table()));
        if (table) {
            answers.ToTable(*table, status);
        } else {
            answers.ToValue(status);
        }
    }
}

/// A method without a word stands for itself.
std::string WordOf(int method) {
    for (const YieldOnset& onset : kYieldOnsets) {
        if (method == onset.method) return onset.word;
    }
    return std::to_string(method);
}

HRESULT ReadValues(Gasket& gasket, Values& values) {
    auto type = Gasket::InitialThicknessType;
    auto method = Gasket::InitialYieldOnsetMethod;
    double relative = 0.0;
    double closure = 0.0;
    double factor = 0.0;
    unsigned char unloading = 0;
    HRESULT status = gasket.GetGasketThicknessBehaviorType(type);
    if (SUCCEEDED(status)) status = gasket.GetGasketYieldOnsetMethodType(method);
    if (SUCCEEDED(status)) status = gasket.GetGasketYieldOnsetMethodRelativeValue(relative);
    if (SUCCEEDED(status)) status = gasket.GetGasketYieldOnsetMethodClosureValue(closure);
    if (SUCCEEDED(status)) status = gasket.GetGasketTensileStiffnessFactor(factor);
    if (SUCCEEDED(status)) status = gasket.GetGasketThicknessUnLoadingFlag(unloading);
    if (FAILED(status)) return status;
    values.Set("behavior_type", static_cast<int>(type));
    values.Set("yield_onset.method", WordOf(method));
    values.Set("yield_onset.relative_value", relative);
    values.Set("yield_onset.closure_value", closure);
    values.Set("tensile_stiffness_factor", factor);
    values.Set("unloading", unloading != 0);
    return S_OK;
}

HRESULT ReadTables(Gasket& gasket, Block& block) {
    for (const GasketTable& place : kTables) {
        unsigned char temperatureDependent = 0;
        ZELCftArrayZELCftArrayDouble rows(0, nullptr);
        HRESULT status = (gasket.*place.getFlag)(temperatureDependent);
        if (SUCCEEDED(status)) status = (gasket.*place.getRows)(rows);
        if (FAILED(status)) return status;
        if (rows.size() == 0) continue;
        AddTable(block, *block.kind->FindTable(place.name), temperatureDependent != 0, rows);
    }
    return S_OK;
}

}  // namespace

std::vector<std::string> GasketAccess::YieldOnsetWords() {
    std::vector<std::string> words;
    for (const YieldOnset& onset : kYieldOnsets) words.push_back(onset.word);
    return words;
}

std::vector<WriteStatus> GasketAccess::Write(ZELIMaterial& material, const Block& block) {
    BehaviorAnswers answers;
    const auto behavior = HandOut(material, &ZELIMaterial::GetGasketThicknessBehaviorProperties);
    if (!behavior.IsObject()) return answers.NoBehavior();

    Gasket& gasket = *behavior.GetProxyObject();
    answers.ToValue(gasket.SetGasketEnabled(block.enabled ? 1 : 0));
    if (!block.enabled) return answers.All();
    const bool unloads = block.Find("unloading_elastic_plastic") || block.Find("unloading_damage");
    WriteValues(gasket, block.values, answers);
    answers.ToValue(
        gasket.SetGasketThicknessUnLoadingFlag(block.values.Get<bool>("unloading").value_or(unloads)));
    WriteTables(gasket, block, answers);
    return answers.All();
}

HRESULT GasketAccess::Read(ZELIMaterial& material, Block& block) {
    const auto behavior = HandOut(material, &ZELIMaterial::GetGasketThicknessBehaviorProperties);
    if (!behavior.IsObject()) return E_FAIL;
    Gasket& gasket = *behavior.GetProxyObject();
    unsigned char enabled = 0;
    HRESULT status = gasket.GetGasketEnabled(enabled);
    block.enabled = SUCCEEDED(status) && enabled != 0;
    if (!block.enabled) return status;
    status = ReadValues(gasket, block.values);
    return SUCCEEDED(status) ? ReadTables(gasket, block) : status;
}

}  // namespace zelmat
