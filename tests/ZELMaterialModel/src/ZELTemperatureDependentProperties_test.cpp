#include "ZELMaterialModel/include/ZELTemperatureDependentProperties.h"

#include <gtest/gtest.h>

TEST(ZELTemperatureDependentProperties, IsNotTemperatureDependentAndHasNoDataFileAtFirst) {
    const ZELTemperatureDependentProperties properties;

    EXPECT_EQ(properties.GetTemperatureDependent(), 0);
    EXPECT_EQ(properties.GetDataFile(), "");
}

TEST(ZELTemperatureDependentProperties, FailsEveryStoreOperationThatNoBehaviorOverrides) {
    ZELTemperatureDependentProperties properties;

    EXPECT_EQ(properties.GetPropertyDataFile(), E_FAIL);
    EXPECT_EQ(properties.SetPropertyDataFile(), E_FAIL);
    EXPECT_EQ(properties.GetPropertyTemperatureDependent(), E_FAIL);
    EXPECT_EQ(properties.SetPropertyTemperatureDependent(), E_FAIL);
}

TEST(ZELTemperatureDependentProperties, KeepsInMemoryWhatTheStoreDidNotTake) {
    ZELTemperatureDependentProperties properties;

    EXPECT_EQ(properties.SetTemperatureDependent(1), E_FAIL);
    EXPECT_EQ(properties.SetDataFile("steel.csv"), E_FAIL);

    EXPECT_EQ(properties.GetTemperatureDependent(), 1);
    EXPECT_EQ(properties.GetDataFile(), "steel.csv");
}

TEST(ZELTemperatureDependentProperties, CopiesBothFields) {
    ZELTemperatureDependentProperties properties;
    properties.SetTemperatureDependent(1);
    properties.SetDataFile("steel.csv");

    const ZELTemperatureDependentProperties copy(properties);
    ZELTemperatureDependentProperties assigned;
    assigned = properties;
    properties.SetDataFile("copper.csv");

    EXPECT_EQ(copy.GetTemperatureDependent(), 1);
    EXPECT_EQ(copy.GetDataFile(), "steel.csv");
    EXPECT_EQ(assigned.GetTemperatureDependent(), 1);
    EXPECT_EQ(assigned.GetDataFile(), "steel.csv");
}
