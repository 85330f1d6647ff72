#include <gmock/gmock.h>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayup.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupLayer.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupValidity.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFactInst.h"
#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "framework/KORDictionary.h"
#include "framework/KORICreateInstance.h"
#include "framework/KORTieRecord.h"
#include "interfaces/KORISamValidity.h"
#include "tests/ZELMaterialModel/ZELFactory.h"
#include "tests/support/ZELAllocationFault.h"
#include "tests/support/ZELMapStore.h"

extern "C" {
KORIUnknown* CreateTIEZELIMaterialPropertiesFactZELMaterialPropertiesFact(KORBaseUnknown*, KORBaseUnknown*);
KORIUnknown* CreateTIEKORICreateInstanceZELMaterialPropertiesFactInst(KORBaseUnknown*, KORBaseUnknown*);
KORIUnknown* CreateTIEZELILayupZELELayup(KORBaseUnknown*, KORBaseUnknown*);
KORIUnknown* CreateTIEKORISamValidityZELELayupValidity(KORBaseUnknown*, KORBaseUnknown*);
KORIUnknown* CreateTIEZELILayupLayerZELELayupLayer(KORBaseUnknown*, KORBaseUnknown*);
}

namespace {

/// A row of the registration table.
struct Row {
    const char* className;
    int kind;
    const char* lateType;
    const char* dictionaryName;
    const KORMetaClass& (*record)();
    const char* (*name)();
    KORClassId (*id)();
    const KORMetaClass& (*interface)();
    KORIID interfaceId;
    KORTieCreator creator;
};

template <class Class, class Interface>
Row RowOf(const char* className, int kind, const char* lateType, const char* dictionaryName,
          KORTieCreator creator) {
    return {className,          kind,
            lateType,           dictionaryName,
            &Class::MetaObject, &Class::ClassName,
            &Class::ClassId,    &Interface::MetaObject,
            Interface::Iid(),   creator};
}

std::vector<Row> Rows() {
    return {
        RowOf<ZELMaterialPropertiesFact, ZELIMaterialPropertiesFact>(
            "ZELMaterialPropertiesFact", 1, "KORnull", "ZELMaterialPropertiesFact",
            CreateTIEZELIMaterialPropertiesFactZELMaterialPropertiesFact),
        RowOf<ZELMaterialPropertiesFactInst, KORICreateInstance>(
            "ZELMaterialPropertiesFactInst", 3, "ZELMaterialPropertiesFact", "ZELMaterialPropertiesFact",
            CreateTIEKORICreateInstanceZELMaterialPropertiesFactInst),
        RowOf<ZELELayup, ZELILayup>("ZELELayup", 2, "ZELLayupLT", "ZELLayupLT", CreateTIEZELILayupZELELayup),
        RowOf<ZELELayupValidity, KORISamValidity>("ZELELayupValidity", 2, "ZELLayupLT", "ZELLayupLT",
                                                  CreateTIEKORISamValidityZELELayupValidity),
        RowOf<ZELELayupLayer, ZELILayupLayer>("ZELELayupLayer", 2, "ZELLayupLayerLT", "ZELLayupLayerLT",
                                              CreateTIEZELILayupLayerZELELayupLayer)};
}

}  // namespace

TEST(ZELLayupRegistration, GivesEveryClassARecord) {
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.className);
        const KORMetaClass& record = row.record();

        EXPECT_STREQ(record.ClassName(), row.className);
        EXPECT_STREQ(row.name(), row.className);
        EXPECT_EQ(row.id(), KORName::Intern(row.className));
        EXPECT_EQ(static_cast<int>(record.Kind()), row.kind);
        EXPECT_EQ(record.LateType()->Text(), row.lateType);
        EXPECT_STREQ(record.Module().Name(), "ZELMaterialModel");
        EXPECT_EQ(record.Base(), &KORBaseUnknown::MetaObject());
        EXPECT_TRUE(record.IsAKindOf(row.className));
        EXPECT_TRUE(record.IsAKindOf("KORBaseUnknown"));
        EXPECT_FALSE(record.IsAKindOf("ZELMaterial"));
        EXPECT_EQ(&row.record(), &record) << "one record";
    }
}

TEST(ZELLayupRegistration, GivesEveryInterfaceADictionaryEntry) {
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.className);
        const KORFillDictionary* entry =
            KORFillDictionary::Find(KORName::Intern(row.dictionaryName), row.interfaceId);

        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(&entry->Implementation(), &row.record());
        EXPECT_EQ(&entry->Interface(), &row.interface());
        EXPECT_EQ(entry->Creator(), row.creator);
        EXPECT_EQ(entry->Data(), nullptr);
        EXPECT_EQ(entry->Flag(), 1);
    }
}

TEST(ZELLayupRegistration, GivesEveryBindingARecord) {
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.className);
        const KORTieRecord& record = fct_RetrieveTieRecord(row.interface(), row.record());

        EXPECT_EQ(static_cast<int>(record.Kind()), 6);
        EXPECT_EQ(record.InterfaceId(), row.interfaceId);
        EXPECT_EQ(&record.Implementation(), &row.record());
    }
}

TEST(ZELLayupRegistration, GivesNoBindingWhenItCannotBeAllocated) {
    for (const Row& row : Rows()) {
        const ZELAllocationFault fault(1);

        EXPECT_EQ(row.creator(nullptr, nullptr), nullptr) << row.className;
        EXPECT_TRUE(fault.Hit()) << row.className;
    }
}

TEST(ZELLayupRegistration, MakesInstancesForTheFrameworkButNoFactory) {
    EXPECT_EQ(ZELMaterialPropertiesFact::CreateItself(), nullptr);
    for (auto* create : {&ZELELayup::CreateItself, &ZELELayupValidity::CreateItself,
                         &ZELELayupLayer::CreateItself, &ZELMaterialPropertiesFactInst::CreateItself}) {
        const auto instance = KORBaseUnknown_var::Adopt(create());
        ASSERT_TRUE(instance);
        EXPECT_EQ(instance->References(), 1);
    }
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

TEST(ZELLayupRegistration, ReachesTwoObjectsThroughTheTwoInterfacesOfALayup) {
    ZELMapStore store;
    const auto feature = store.Make("ZELLayupLT");
    const ZELILayup_var layup = feature;
    const KORISamValidity_var validity = feature;

    const auto layers = KORGetImplementation<ZELELayup>(layup.Get());
    const auto verdict = KORGetImplementation<ZELELayupValidity>(validity.Get());

    ASSERT_TRUE(layers);
    ASSERT_TRUE(verdict);
    EXPECT_STREQ(layers->IsA(), "ZELELayup");
    EXPECT_STREQ(verdict->IsA(), "ZELELayupValidity");
    EXPECT_EQ(KORISamValidity_var(layup), validity) << "one component";
}

TEST(ZELLayupRegistration, KeepsOneExtensionToALayupWhileSomebodyHoldsIt) {
    ZELMapStore store;
    const auto feature = store.Make("ZELLayupLT");
    const ZELILayup_var layup = feature;

    EXPECT_EQ(ZELILayup_var(feature), layup);
    EXPECT_EQ(KORGetImplementation<ZELELayup>(ZELILayup_var(feature).Get()),
              KORGetImplementation<ZELELayup>(layup.Get()));
}

TEST(ZELLayupRegistration, MakesTheFactoryComponentThroughItsInstanceFactory) {
    const auto factory = ZELFactory();
    const auto component = KORBaseUnknown_var(factory);

    EXPECT_STREQ(component->IsA(), "ZELMaterialPropertiesFact");
    EXPECT_TRUE(component->IsAKindOf("ZELMaterialPropertiesFact"));
    EXPECT_TRUE(component->IsAKindOf("KORBaseUnknown"));
    EXPECT_FALSE(component->IsAKindOf("ZELMaterialPropertiesFactInst"));
    EXPECT_NE(KORBaseUnknown_var(ZELFactory()), component) << "a new one each time";
}
