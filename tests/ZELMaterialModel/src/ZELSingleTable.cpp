#include "tests/ZELMaterialModel/src/ZELSingleTable.h"

#include "ZELMaterialModel/include/ZELMaterialConductivity.h"
#include "ZELMaterialModel/include/ZELMaterialDensity.h"
#include "ZELMaterialModel/include/ZELMaterialSpecificHeat.h"
#include "ZELMaterialModel/include/ZELMaterialThermalExpansion.h"

namespace {

#define ZEL_SINGLE_TABLE(Thing)                                                                       \
    class Thing##Table final : public ZELSingleTable {                                                \
    public:                                                                                           \
        explicit Thing##Table(KORISpecObject* material) : behavior_(material) {}                      \
        static std::unique_ptr<ZELSingleTable> Make(KORISpecObject* material) {                       \
            return std::make_unique<Thing##Table>(material);                                          \
        }                                                                                             \
        ZELTemperatureDependentProperties& Properties() override { return behavior_; }                \
        int GetEnabled() const override { return behavior_.Get##Thing##Enabled(); }                   \
        ZELRows GetDataArray() override { return ZELRowsOf(behavior_.Get##Thing##DataArray()); }      \
        HRESULT SetEnabled(unsigned char enabled) override {                                          \
            return behavior_.Set##Thing##Enabled(enabled);                                            \
        }                                                                                             \
        HRESULT SetDataArray(const ZELRows& rows) override {                                          \
            return behavior_.Set##Thing##DataArray(ZELTableOf(rows));                                 \
        }                                                                                             \
        HRESULT GetPropertyEnabled() override { return behavior_.GetProperty##Thing##Enabled(); }     \
        HRESULT SetPropertyEnabled() override { return behavior_.SetProperty##Thing##Enabled(); }     \
        HRESULT GetPropertyDataArray() override { return behavior_.GetProperty##Thing##DataArray(); } \
        HRESULT SetPropertyDataArray() override { return behavior_.SetProperty##Thing##DataArray(); } \
        HRESULT InitProperties() override { return behavior_.Init##Thing##Properties(); }             \
                                                                                                      \
    private:                                                                                          \
        ZELMaterial##Thing behavior_;                                                                 \
    };

ZEL_SINGLE_TABLE(Density)
ZEL_SINGLE_TABLE(Conductivity)
ZEL_SINGLE_TABLE(SpecificHeat)
ZEL_SINGLE_TABLE(ThermalExpansion)

#undef ZEL_SINGLE_TABLE

}  // namespace

std::vector<ZELSingleTableCase> ZELSingleTableCases() {
    return {
        {
            .thing = "Density",
            .make = DensityTable::Make,
            .component = "ZELDensity",
            .flag = "ZELDensityFlag",
            .lateType = "ZELDensityLT",
            .values = "DensityData",
            .noFeature = "No ZELDensity object found !",
            .cannotReadEnabled = "Can't get property density enabled",
            .cannotReadTable = "Can't get property density data array",
            .cannotReadReferenceTemperature = nullptr,
            .cannotReadDataFile = "Can't get property density data file",
            .inconsistent = "The Density data is inconsistent !",
        },
        {
            .thing = "Conductivity",
            .make = ConductivityTable::Make,
            .component = "ZELConductivity",
            .flag = "ZELConductivityFlag",
            .lateType = "ZELConductivityLT",
            .values = "ConductivityData",
            .noFeature = "No ZELConductivity object found !",
            .cannotReadEnabled = "Can't get property Conductivity enabled",
            .cannotReadTable = "Can't get property Conductivity data array",
            .cannotReadReferenceTemperature = nullptr,
            .cannotReadDataFile = "Can't get property Conductivity data file",
            .inconsistent = "The Conductivity data is inconsistent !",
        },
        {
            .thing = "SpecificHeat",
            .make = SpecificHeatTable::Make,
            .component = "ZELSpecificHeat",
            .flag = "ZELSpecificHeatFlag",
            .lateType = "ZELSpecificHeatLT",
            .values = "SpecificHeatData",
            .noFeature = "No ZELSpecificHeat object found !",
            .cannotReadEnabled = "Can't get property SpecificHeat enabled",
            .cannotReadTable = "Can't get property SpecificHeat data array",
            .cannotReadReferenceTemperature = nullptr,
            .cannotReadDataFile = "Can't get property SpecificHeat data file",
            .inconsistent = "The SpecificHeat data is inconsistent !",
        },
        {
            .thing = "ThermalExpansion",
            .make = ThermalExpansionTable::Make,
            .component = "ZELThermalExpansion",
            .flag = "ZELThermalExpansionFlag",
            .lateType = "ZELThermalExpansionLT",
            .values = "ThermalExpansionData",
            .noFeature = "No ZELThermalExpansion object found !",
            .cannotReadEnabled = "Can't get property thermal expansion enabled",
            .cannotReadTable = "Can't get property ThermalExpansion data array",
            .cannotReadReferenceTemperature = "Can't get property ReferenceTemperature",
            .cannotReadDataFile = "Can't get property ThermalExpansion data file",
            .inconsistent = "The ThermalExpansion data is inconsistent !",
        },
    };
}
