#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORDictionary.h"
#include "framework/KORTie.h"
#include "framework/KORTrace.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELMapStore.h"

using testing::Contains;
using testing::ElementsAre;

extern "C" KORIUnknown* CreateTIEZELIMaterialZELMaterial(KORBaseUnknown* implementation,
                                                         KORBaseUnknown* outer);

namespace {

/// Notes the calls through bindings of ZELIMaterial while it lives.
class Observer final : public KORCallObserver {
public:
    Observer() { Tie_StackCtx::Observe(this); }
    ~Observer() { Tie_StackCtx::Observe(nullptr); }
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    void Called(const KORTieRecord& binding, const char* operation, KORBaseUnknown* implementation) override {
        if (binding.InterfaceId() != IID_ZELIMaterial) return;
        calls.emplace_back(operation);
        called = implementation;
    }

    std::vector<std::string> calls;
    KORBaseUnknown* called = nullptr;
};

template <class Behavior>
void Ask(const ZELIMaterial_var& material,
         void (ZELIMaterial::*operation)(ZELGenHeapObjectProxy<Behavior>&)) {
    ZELGenHeapObjectProxy<Behavior> proxy;
    ((*material).*operation)(proxy);
}

}  // namespace

TEST(ZELMaterialRegistration, IsADataExtensionOfTheMaterialLateType) {
    const KORMetaClass& record = ZELMaterial::MetaObject();

    EXPECT_STREQ(record.ClassName(), "ZELMaterial");
    EXPECT_EQ(static_cast<int>(record.Kind()), 2);
    EXPECT_EQ(record.LateType()->Text(), "ZELMaterialLT");
    EXPECT_STREQ(record.Module().Name(), "ZELMaterialModel");
    EXPECT_EQ(record.Base(), &KORBaseUnknown::MetaObject());
    EXPECT_EQ(&ZELMaterial::MetaObject(), &record) << "one record";
}

TEST(ZELMaterialRegistration, AnswersTheClassWideQueries) {
    EXPECT_STREQ(ZELMaterial::ClassName(), "ZELMaterial");
    EXPECT_EQ(ZELMaterial::ClassId(), KORName::Intern("ZELMaterial"));
    EXPECT_EQ(ZELMaterial::ClassId(), ZELMaterial::MetaObject().ClassId());
}

TEST(ZELMaterialRegistration, SaysWhatAnInstanceIs) {
    ZELMapStore store;
    const ZELMaterialTree tree(store);
    const ZELDiagnostics diagnostics;
    const ZELIMaterial_var interface = tree.material;
    const auto material = KORGetImplementation<ZELMaterial>(interface.Get());

    ASSERT_TRUE(material);
    EXPECT_STREQ(material->IsA(), "ZELMaterial");
    EXPECT_TRUE(material->IsAKindOf("ZELMaterial"));
    EXPECT_TRUE(material->IsAKindOf("KORBaseUnknown"));
    EXPECT_FALSE(material->IsAKindOf("ZELMaterialPropertiesFact"));
    EXPECT_EQ(&material->GetMetaObject(), &ZELMaterial::MetaObject());
}

TEST(ZELMaterialRegistration, HasOneDictionaryEntryForItsInterface) {
    const KORFillDictionary* entry =
        KORFillDictionary::Find(KORName::Intern("ZELMaterialLT"), IID_ZELIMaterial);

    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(&entry->Implementation(), &ZELMaterial::MetaObject());
    EXPECT_EQ(&entry->Interface(), &ZELIMaterial::MetaObject());
    EXPECT_EQ(entry->Creator(), &CreateTIEZELIMaterialZELMaterial);
    EXPECT_EQ(entry->Data(), nullptr);
    EXPECT_EQ(entry->Flag(), 1);
}

TEST(ZELMaterialRegistration, BindsItsInterfaceWithARecordOfTheBindingKind) {
    ZELMapStore store;
    const ZELMaterialTree tree(store);
    const ZELDiagnostics diagnostics;
    const ZELIMaterial_var interface = tree.material;

    const KORTieRecord& record = fct_RetrieveTieRecord(ZELIMaterial::MetaObject(), ZELMaterial::MetaObject());

    EXPECT_EQ(static_cast<int>(record.Kind()), 6);
    EXPECT_EQ(record.InterfaceId(), IID_ZELIMaterial);
    EXPECT_STREQ(record.InterfaceName(), "ZELIMaterial");
    EXPECT_EQ(&record.Implementation(), &ZELMaterial::MetaObject());
}

TEST(ZELMaterialRegistration, BindsAnObjectThatItIsGiven) {
    const ZELDiagnostics diagnostics;
    const auto material = KORBaseUnknown_var::Adopt(ZELMaterial::CreateItself());
    {
        const auto binding =
            KORVar<KORIUnknown>::Adopt(CreateTIEZELIMaterialZELMaterial(material.Get(), nullptr));

        EXPECT_EQ(material->References(), 2);
        EXPECT_EQ(KORGetImplementation<ZELMaterial>(binding.Get()).Get(), material.Get());
    }

    EXPECT_EQ(material->References(), 1);
}

TEST(ZELMaterialRegistration, ReportsAnInstanceWithoutAMaterialAndHoldsNoBehavior) {
    const ZELDiagnostics diagnostics;

    const auto created = KORBaseUnknown_var::Adopt(ZELMaterial::CreateItself());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Construction of ZELMaterial failed !"));
    const auto material = KORGetImplementation<ZELMaterial>(created.Get());
    ASSERT_TRUE(material);
    ZELGenHeapObjectProxy<ZELMaterialElastic> elastic(new ZELMaterialElastic(nullptr));
    ZELGenHeapObjectProxy<ZELMaterialPlastic> plastic;
    ZELGenHeapObjectProxy<ZELMaterialSpecificHeat> specificHeat;
    ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior> gasket;
    material->GetElasticProperties(elastic);
    material->GetPlasticProperties(plastic);
    material->GetSpecificHeatProperties(specificHeat);
    material->GetGasketMembraneElasticProperties(gasket);
    EXPECT_EQ(elastic.GetNumberOfReferences(), 0) << "handed out empty";
    EXPECT_FALSE(plastic.IsObject());
    EXPECT_FALSE(specificHeat.IsObject());
    EXPECT_FALSE(gasket.IsObject());
    bool enabled = true;
    EXPECT_EQ(material->GetHeatGenerationEnabled(enabled), E_FAIL);
    EXPECT_TRUE(enabled);
    EXPECT_EQ(material->SetHeatGenerationEnabled(true), E_FAIL);
}

TEST(ZELMaterialRegistration, ForwardsEveryOperationOfItsInterfaceUnderItsName) {
    ZELMapStore store;
    const ZELMaterialTree tree(store);
    const ZELDiagnostics diagnostics;
    Observer observer;
    const ZELIMaterial_var material = tree.material;
    observer.calls.clear();

    Ask(material, &ZELIMaterial::GetElasticProperties);
    Ask(material, &ZELIMaterial::GetPlasticProperties);
    Ask(material, &ZELIMaterial::GetDensityProperties);
    Ask(material, &ZELIMaterial::GetThermalExpansionProperties);
    Ask(material, &ZELIMaterial::GetConductivityProperties);
    Ask(material, &ZELIMaterial::GetSpecificHeatProperties);
    Ask(material, &ZELIMaterial::GetUserMaterialProperties);
    Ask(material, &ZELIMaterial::GetHyperelasticProperties);
    Ask(material, &ZELIMaterial::GetGasketThicknessBehaviorProperties);
    Ask(material, &ZELIMaterial::GetGasketTransShearElasticProperties);
    Ask(material, &ZELIMaterial::GetGasketMembraneElasticProperties);

    EXPECT_THAT(observer.calls,
                ElementsAre("GetElasticProperties", "GetPlasticProperties", "GetDensityProperties",
                            "GetThermalExpansionProperties", "GetConductivityProperties",
                            "GetSpecificHeatProperties", "GetUserMaterialProperties",
                            "GetHyperelasticProperties", "GetGasketThicknessBehaviorProperties",
                            "GetGasketTransShearElasticProperties", "GetGasketMembraneElasticProperties"));
    EXPECT_EQ(observer.called, KORGetImplementation<ZELMaterial>(material.Get()).Get());
}

TEST(ZELMaterialRegistration, NamesTheAnalysisDataOfAPlatformMaterial) {
    EXPECT_EQ(ZELMaterial::GetApplicativeSpecName(), "ZELMaterialApplicative");
}

TEST(ZELModuleTrace, IsThereForAsLongAsTheModuleIsLoaded) {
    std::vector<std::string> names;
    for (const KORTrace* channel : KORTrace::Channels()) names.push_back(channel->Name());

    EXPECT_THAT(names, Contains("KORZELMaterialPropertiesModelTrace").Times(1));
    const KORTrace& trace = *KORTrace::Channels().front();
    EXPECT_EQ(trace.Description(), "Traces for module ZELMaterialPropertiesModel");
    EXPECT_EQ(trace.Mode(), 1);
    EXPECT_EQ(trace.Output(), "STDERR");
    EXPECT_EQ(trace.Size(), 1024u);
}
