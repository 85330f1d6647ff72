#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELShared/ZELCftArrayZELCftArrayDouble.h"
#include "framework/KORDictionary.h"
#include "framework/KORTrace.h"
#include "tests/ZELMaterialModel/load/ZELHandedOut.h"

namespace {

/// What the framework keeps of loaded modules.
struct Registrations {
    std::size_t entries = KORFillDictionary::Count();
    std::size_t records = KORModule::Of(kZELLoadedModule).Records();
    std::size_t traces = KORTrace::Channels().size();
    long objects = KORModule::Of(kZELLoadedModule).LiveObjects();

    friend bool operator==(const Registrations&, const Registrations&) = default;
};

/// A program that knows the module by its interfaces and its path only.
class ZELModuleLoad : public testing::Test {
protected:
    ZELModuleLoad() {
        Attach(material_, "ZELDensity", density_);
        Load();
    }
    void Load() {
        std::string error;
        library_ = KORLibrary::Load(ZEL_MODULE_LIBRARY, kZELLoadedModule, error);
        EXPECT_EQ(error, "");
    }
    void ExpectGone() {
        EXPECT_EQ(Registrations(), before_);
        EXPECT_FALSE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
        EXPECT_FALSE(ZELIMaterial_var(material_));
    }

    /// The add-on's shared library belongs to the process, not to the module: it stays when the module goes.
    const ZELCftArrayZELCftArrayDouble ofSharedLibrary_{0, nullptr};

    ZELDiagnostics diagnostics_;
    ZELMapStore store_;
    KORISpecObject_var material_ = store_.Make("ZELMaterialLT");
    KORISpecObject_var density_ = store_.Make("ZELDensityLT");
    const Registrations before_;
    std::unique_ptr<KORLibrary> library_;
};

}  // namespace

TEST_F(ZELModuleLoad, BringsTheModulesInterfacesWithTheLibrary) {
    ASSERT_TRUE(library_);
    EXPECT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_GT(Registrations().entries, before_.entries);
    EXPECT_EQ(Registrations().traces, before_.traces + 1);

    EXPECT_TRUE(ZELIMaterial_var(material_));
}

TEST_F(ZELModuleLoad, TakesEverythingAwayWhenItIsUnloadedUnused) {
    ASSERT_TRUE(library_);

    EXPECT_EQ(library_->Unload(), S_OK);

    ExpectGone();
}

TEST_F(ZELModuleLoad, TakesEverythingAwayWhenItIsUnloadedAfterUseAndComesBack) {
    for (int round = 1; round <= 3; ++round) {
        ASSERT_TRUE(library_);
        {
            const ZELCaller caller;
            const auto storeDensity = caller.Find<ZELStoreDensity>("StoreDensity");
            ASSERT_NE(storeDensity, nullptr);
            EXPECT_EQ(storeDensity(material_.Get(), 7000.0 + round), 7000.0 + round);
        }
        EXPECT_EQ(KORModule::Of(kZELLoadedModule).LiveObjects(), 0);

        EXPECT_EQ(library_->Unload(), S_OK);

        ExpectGone();
        EXPECT_THAT(List(density_, "DensityData"), testing::Optional(testing::ElementsAre(7000.0 + round)));
        Load();
    }
}

TEST_F(ZELModuleLoad, StaysWhileAnInterfaceIsHeld) {
    ASSERT_TRUE(library_);
    ZELIMaterial_var material = material_;
    ASSERT_TRUE(material);

    EXPECT_EQ(library_->Unload(), E_FAIL);

    EXPECT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(ZELIMaterial_var(material_), material) << "and goes on";
    material = nullptr;
    EXPECT_EQ(library_->Unload(), S_OK);
    ExpectGone();
}

TEST_F(ZELModuleLoad, StaysWhileABehaviorIsHeld) {
    ASSERT_TRUE(library_);
    {
        const ZELCaller caller;
        EXPECT_EQ(caller.Find<ZELHoldDensity>("HoldDensity")(material_.Get()), 1) << "no extension any more";

        EXPECT_EQ(library_->Unload(), E_FAIL);

        EXPECT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
        EXPECT_EQ(caller.Find<ZELStoreDensity>("StoreDensity")(material_.Get(), 7850.0), 7850.0);
        caller.Find<ZELDropDensity>("DropDensity")();
    }

    EXPECT_EQ(library_->Unload(), S_OK);
    ExpectGone();
}

TEST_F(ZELModuleLoad, IsUnloadedWithItsLibraryObject) {
    ASSERT_TRUE(library_);

    library_ = nullptr;

    ExpectGone();
}

TEST_F(ZELModuleLoad, IsNotUnloadedASecondTime) {
    ASSERT_TRUE(library_);
    EXPECT_EQ(library_->Unload(), S_OK);

    EXPECT_EQ(library_->Unload(), E_FAIL);
    EXPECT_EQ(library_->Symbol("CreateTIEZELIMaterialZELMaterial"), nullptr);
}
