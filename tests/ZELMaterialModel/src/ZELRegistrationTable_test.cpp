#include <gtest/gtest.h>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEHyperelasticMaterialModel.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEJohnsonCookData.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayup.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupLayer.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupValidity.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEMRVMaterialUpgrade.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFactInst.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "tests/support/ZELDiagnostics.h"

namespace {

struct Row {
    const char* name;
    int kind;
    const char* lateType;
    const KORMetaClass& record;
    KORBaseUnknown* (*create)();
};

/// The factory component is not made by CreateItself.
KORBaseUnknown* NewFactory() {
    return new ZELMaterialPropertiesFact;
}

const Row kRows[] = {
    {"ZELMaterialPropertiesFact", 1, "KORnull", ZELMaterialPropertiesFact::MetaObject(), NewFactory},
    {"ZELMaterialPropertiesFactInst", 3, "ZELMaterialPropertiesFact",
     ZELMaterialPropertiesFactInst::MetaObject(), ZELMaterialPropertiesFactInst::CreateItself},
    {"ZELMaterial", 2, "ZELMaterialLT", ZELMaterial::MetaObject(), ZELMaterial::CreateItself},
    {"ZELEMRVMaterialUpgrade", 2, "ZELMaterialLT", ZELEMRVMaterialUpgrade::MetaObject(),
     ZELEMRVMaterialUpgrade::CreateItself},
    {"ZELEHyperelasticMaterialModel", 2, "ZELHyperelasticMaterialModelLT",
     ZELEHyperelasticMaterialModel::MetaObject(), ZELEHyperelasticMaterialModel::CreateItself},
    {"ZELEJohnsonCookData", 3, "ZELPlasticJohnsonCookLT", ZELEJohnsonCookData::MetaObject(),
     ZELEJohnsonCookData::CreateItself},
    {"ZELELayup", 2, "ZELLayupLT", ZELELayup::MetaObject(), ZELELayup::CreateItself},
    {"ZELELayupValidity", 2, "ZELLayupLT", ZELELayupValidity::MetaObject(), ZELELayupValidity::CreateItself},
    {"ZELELayupLayer", 2, "ZELLayupLayerLT", ZELELayupLayer::MetaObject(), ZELELayupLayer::CreateItself},
};

}  // namespace

TEST(ZELRegistrationTable, SaysOfEveryClassWhatItIsAndWhatItExtends) {
    for (const Row& row : kRows) {
        EXPECT_STREQ(row.record.ClassName(), row.name);
        EXPECT_EQ(static_cast<int>(row.record.Kind()), row.kind) << row.name;
        EXPECT_EQ(row.record.LateType()->Text(), row.lateType) << row.name;
        EXPECT_STREQ(row.record.Module().Name(), "ZELMaterialModel") << row.name;
        EXPECT_EQ(row.record.Base(), &KORBaseUnknown::MetaObject()) << row.name;
        EXPECT_EQ(row.record.ClassId()->Text(), row.name);
    }
}

TEST(ZELRegistrationTable, IsAnsweredByInstances) {
    const ZELDiagnostics diagnostics;  // a material without a feature says so
    for (const Row& row : kRows) {
        const auto instance = KORBaseUnknown_var::Adopt(row.create());

        EXPECT_STREQ(instance->IsA(), row.name);
        EXPECT_TRUE(instance->IsAKindOf(row.name));
        EXPECT_TRUE(instance->IsAKindOf("KORBaseUnknown")) << row.name;
        EXPECT_FALSE(instance->IsAKindOf("KORIUnknown")) << row.name;
        EXPECT_EQ(&instance->GetMetaObject(), &row.record) << row.name;
        EXPECT_EQ(instance->References(), 1) << row.name;
    }
}

TEST(ZELRegistrationTable, HasNoInstanceOfTheFactoryForTheFramework) {
    EXPECT_EQ(ZELMaterialPropertiesFact::CreateItself(), nullptr);
}
