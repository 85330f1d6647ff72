#include "ZELShared/ZELDlgUnit.h"

#include <gtest/gtest.h>

#include "tests/support/ZELFakeUnits.h"
#include "tests/support/ZELTestServices.h"

TEST(ZELDlgUnit, GivesAParameterOfItsUnitType) {
    ZELTestServices services;
    const ZELFakeUnits units(services.Table(), 1e6);

    const ZELDlgUnit unit("PRESSURE");
    const auto parameter = KORIVdxParameter_var::Adopt(unit.GetParameter());

    EXPECT_EQ(units.AskedFor(), "PRESSURE");
    ASSERT_TRUE(parameter);
    const auto magnitude = KORIVdxMagnitude_var::Adopt(parameter->GetMagnitude());
    const auto current = KORIVdxUnit_var::Adopt(magnitude->GetCurrentUnit());
    EXPECT_EQ(current->ConvertToStored(2.0), 2e6);
}

TEST(ZELDlgUnit, GivesTheSameParameterEachTimeWithAReferenceOfItsOwn) {
    ZELTestServices services;
    const ZELFakeUnits units(services.Table(), 1.0);
    const long before = units.References();
    {
        const ZELDlgUnit unit("LENGTH");
        const auto first = KORIVdxParameter_var::Adopt(unit.GetParameter());
        const auto second = KORIVdxParameter_var::Adopt(unit.GetParameter());

        EXPECT_EQ(first, second);
        EXPECT_EQ(units.References(), before + 3) << "the unit's and one for each of the two";
    }

    EXPECT_EQ(units.References(), before);
}

TEST(ZELDlgUnit, GivesNoParameterWithoutAUnitsService) {
    const ZELTestServices services;

    EXPECT_EQ(ZELDlgUnit("PRESSURE").GetParameter(), nullptr);
}

TEST(ZELDlgUnit, GivesNoParameterWhenTheServiceIsNone) {
    ZELTestServices services;
    const auto other = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    services.Table().units = other.Get();

    EXPECT_EQ(ZELDlgUnit("PRESSURE").GetParameter(), nullptr);
}

TEST(ZELDlgUnit, GivesNoParameterOfAnUnknownUnitType) {
    ZELTestServices services;
    const ZELFakeUnits units(services.Table(), 1.0, ZELFakeUnits::Lacking::Parameter);

    EXPECT_EQ(ZELDlgUnit("FLAVOUR").GetParameter(), nullptr);
}
