// In which slot of its interface callers find each operation. They were compiled against that order and do
// not notice when it changes: they call another operation.

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELTemperatureDependentProperties.h"
#include "interfaces/KORISamUpgrade.h"
#include "interfaces/KORISamValidity.h"
#include "interfaces/KORISpecAttrAccess.h"

#if defined(__x86_64__)

namespace {

/// A pointer to a virtual operation is one more than the offset of its slot, by the platform's C++ ABI.
template <class Operation>
std::size_t SlotOf(Operation operation) {
    std::size_t offset = 0;
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*);
}

template <class... Operations>
std::vector<std::size_t> SlotsOf(Operations... operations) {
    return {SlotOf(operations)...};
}

/// Consecutive slots behind those that every interface begins with: query, add, release and the four dispatch
/// operations.
std::vector<std::size_t> FirstSlots(std::size_t count) {
    std::vector<std::size_t> slots;
    for (std::size_t slot = 7; slot < 7 + count; ++slot) slots.push_back(slot);
    return slots;
}

}  // namespace

TEST(ZELSlotOrder, OfTheMaterialIsThatOfItsBehaviors) {
    using I = ZELIMaterial;
    EXPECT_EQ(SlotsOf(&I::GetElasticProperties, &I::GetPlasticProperties, &I::GetDensityProperties,
                      &I::GetThermalExpansionProperties, &I::GetConductivityProperties,
                      &I::GetSpecificHeatProperties, &I::GetUserMaterialProperties,
                      &I::GetHyperelasticProperties, &I::GetGasketThicknessBehaviorProperties,
                      &I::GetGasketTransShearElasticProperties, &I::GetGasketMembraneElasticProperties),
              FirstSlots(11));
}

TEST(ZELSlotOrder, OfJohnsonCookDataIsThatOfTheirTable) {
    using I = ZELIJohnsonCookData;
    EXPECT_EQ(SlotsOf(&I::GetCoeffA, &I::SetCoeffA, &I::GetCoeffB, &I::SetCoeffB, &I::GetCoeffN,
                      &I::SetCoeffN, &I::GetCoeffM, &I::SetCoeffM, &I::GetMeltingTemperature,
                      &I::SetMeltingTemperature, &I::GetTransitionTemperature, &I::SetTransitionTemperature),
              FirstSlots(12));
}

TEST(ZELSlotOrder, OfAHyperelasticModelEndsWithItsRows) {
    using I = ZELIHyperelasticMaterialModel;
    EXPECT_EQ(
        SlotsOf(&I::GetStrainEnergyPotentialOrder, &I::SetStrainEnergyPotentialOrder,
                &I::GetPropertyTemperatureDependent, &I::SetPropertyTemperatureDependent,
                &I::GetPropertyDataFile, &I::SetPropertyDataFile, &I::GetPropertyData, &I::SetPropertyData),
        FirstSlots(8));
}

TEST(ZELSlotOrder, OfLayupsAndLayersStandsAsItIs) {
    using Layup = ZELILayup;
    EXPECT_EQ(SlotsOf(&Layup::SetLayers, &Layup::GetLayers, &Layup::IsUnused), FirstSlots(3));

    using Layer = ZELILayupLayer;
    EXPECT_EQ(SlotsOf(&Layer::SetMaterial, &Layer::GetMaterial, &Layer::SetThickness, &Layer::GetThickness,
                      &Layer::SetOrientationAngle, &Layer::GetOrientationAngle, &Layer::GetMaterialData),
              FirstSlots(7));
}

TEST(ZELSlotOrder, OfUpgradeAndValidityIsThePlatforms) {
    EXPECT_EQ(SlotsOf(&KORISamUpgrade::IsUpgradeNeeded, &KORISamUpgrade::Upgrade), FirstSlots(2));
    EXPECT_EQ(SlotsOf(&KORISamValidity::IsValid), FirstSlots(1));
}

TEST(ZELSlotOrder, OfAttributeAccessBeginsWithTheKeyAndTheScalars) {
    using I = KORISpecAttrAccess;
    EXPECT_EQ(
        SlotsOf(&I::GetAttrKey, &I::SetDouble, &I::SetBoolean, &I::SetString, &I::GetDouble, &I::GetBoolean,
                &I::GetString, &I::GetSpecObject, &I::SetListOfDouble, &I::GetListOfDouble),
        FirstSlots(10));
}

TEST(ZELSlotOrder, OfATableBehaviorHasTheStoreOperationsBehindItsDestructor) {
    using Base = ZELTemperatureDependentProperties;
    EXPECT_EQ(SlotsOf(&Base::GetPropertyDataFile, &Base::SetPropertyDataFile,
                      &Base::GetPropertyTemperatureDependent, &Base::SetPropertyTemperatureDependent),
              (std::vector<std::size_t>{2, 3, 4, 5}))
        << "a destructor takes two slots";
}

#endif
