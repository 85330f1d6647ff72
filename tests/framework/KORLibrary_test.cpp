#include "framework/KORLibrary.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

#include "framework/KORDictionary.h"
#include "framework/KORTrace.h"
#include "tests/framework/KORTestParts.h"

using testing::HasSubstr;

// KOR_TEST_MODULE is the path of a small library with the class "LoadedClass", which implements KORITestValue
// on features of type "LoadedLT" and exports its creator.
namespace {

std::unique_ptr<KORLibrary> Load() {
    std::string error;
    auto library = KORLibrary::Load(KOR_TEST_MODULE, "LoadedModule", error);
    EXPECT_NE(library, nullptr) << error;
    return library;
}

}  // namespace

TEST(KORLibrary, SaysWhichFileCouldNotBeLoaded) {
    std::string error;

    EXPECT_EQ(KORLibrary::Load("no_such_folder/no_such_library.so", "NoModule", error), nullptr);

    EXPECT_THAT(error, HasSubstr("no_such_library.so"));
}

TEST(KORLibrary, RegistersItsClassesWhileItIsLoaded) {
    const std::size_t entries = KORFillDictionary::Count();
    const std::size_t traces = KORTrace::Channels().size();
    const auto feature = MakeTestFeature("LoadedLT");
    EXPECT_EQ(KORITestValue_var(feature), nullptr);

    for (int round = 1; round <= 3; ++round) {
        const auto library = Load();
        EXPECT_EQ(KORFillDictionary::Count(), entries + 1);
        EXPECT_EQ(KORTrace::Channels().size(), traces + 1);
        KORITestValue_var value = feature;
        ASSERT_NE(value, nullptr);
        value->SetValue(round);
        EXPECT_EQ(value->Value(), round);
        EXPECT_EQ(KORModule::Of("LoadedModule").Records(), 2u) << "the class and its binding";
        value = nullptr;

        EXPECT_EQ(library->Unload(), S_OK);
        EXPECT_EQ(KORFillDictionary::Count(), entries);
        EXPECT_EQ(KORTrace::Channels().size(), traces);
        EXPECT_EQ(KORModule::Of("LoadedModule").Records(), 0u);
        EXPECT_EQ(KORITestValue_var(feature), nullptr);
    }
    EXPECT_EQ(feature->References(), 1);
}

TEST(KORLibrary, IsNotUnloadedUnderItsLivingObjects) {
    const auto library = Load();
    KORITestValue_var value = MakeTestFeature("LoadedLT");
    ASSERT_NE(value, nullptr);

    EXPECT_EQ(library->Unload(), E_FAIL);
    EXPECT_EQ(value->Value(), 1) << "it still works";

    value = nullptr;
    EXPECT_EQ(library->Unload(), S_OK);
    EXPECT_EQ(library->Unload(), E_FAIL) << "it is not loaded any more";
}

TEST(KORLibrary, KeepsTheRecordsWhileAnotherHoldsTheLibrary) {
    const auto feature = MakeTestFeature("LoadedLT");
    const auto first = Load();
    const auto second = Load();
    EXPECT_NE(KORITestValue_var(feature), nullptr);
    ASSERT_EQ(KORModule::Of("LoadedModule").Records(), 2u);

    EXPECT_EQ(first->Unload(), S_OK);
    EXPECT_EQ(KORModule::Of("LoadedModule").Records(), 2u);
    const KORITestValue_var value = feature;
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->Value(), 1);
    EXPECT_EQ(second->Unload(), E_FAIL) << "its objects are counted for all holders";
}

TEST(KORLibrary, TakesTheRecordsAlongWhenAHolderByAnotherRoadIsTheLast) {
    const std::size_t entries = KORFillDictionary::Count();
    void* holder = dlopen(KOR_TEST_MODULE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(holder, nullptr);
    const auto library = Load();
    const auto feature = MakeTestFeature("LoadedLT");
    EXPECT_NE(KORITestValue_var(feature), nullptr);

    EXPECT_EQ(library->Unload(), S_OK);
    EXPECT_EQ(KORModule::Of("LoadedModule").Records(), 2u);
    EXPECT_EQ(KORITestValue_var(feature)->Value(), 1);

    dlclose(holder);
    EXPECT_EQ(KORModule::Of("LoadedModule").Records(), 0u);
    EXPECT_EQ(KORFillDictionary::Count(), entries);
    EXPECT_EQ(KORITestValue_var(feature), nullptr);
}

TEST(KORLibrary, LeavesNoCallContextBehindWhenItsCallsWereObserved) {
    struct Counter final : KORCallObserver {
        void Called(const KORTieRecord&, const char*, KORBaseUnknown*) override { ++calls; }
        int calls = 0;
    } counter;
    KORCallObserver* const outer = Tie_StackCtx::Observe(&counter);
    const auto feature = MakeTestFeature("LoadedLT");

    for (int round = 1; round <= 3; ++round) {  // what is left behind shows as a leak
        const auto library = Load();
        EXPECT_EQ(KORITestValue_var(feature)->Value(), 1);
        EXPECT_EQ(library->Unload(), S_OK);
    }

    Tie_StackCtx::Observe(outer);
    EXPECT_EQ(counter.calls, 3);
    EXPECT_EQ(KORModule::Of("LoadedModule").Records(), 0u);
}

TEST(KORLibrary, FindsExportedSymbolsWhileItIsLoaded) {
    const auto library = Load();

    EXPECT_NE(library->Symbol("CreateTIEKORITestValueLoadedClass"), nullptr);
    EXPECT_EQ(library->Symbol("NoSuchSymbol"), nullptr);

    ASSERT_EQ(library->Unload(), S_OK);
    EXPECT_EQ(library->Symbol("CreateTIEKORITestValueLoadedClass"), nullptr);
}

TEST(KORLibrary, UnloadsWhenItsObjectGoes) {
    const std::size_t entries = KORFillDictionary::Count();

    Load().reset();

    EXPECT_EQ(KORFillDictionary::Count(), entries);
}

TEST(KORModule, IsOneForEachName) {
    EXPECT_EQ(&KORModule::Of("ModuleOfThatName"), &KORModule::Of("ModuleOfThatName"));
    EXPECT_NE(&KORModule::Of("ModuleOfThatName"), &KORModule::Of("ModuleOfAnotherName"));
    EXPECT_STREQ(KORModule::Of("ModuleOfThatName").Name(), "ModuleOfThatName");
}

TEST(KORModule, CountsItsObjects) {
    KORModule& module = KORModule::Of("CountedModule");

    module.ObjectMade();
    module.ObjectMade();
    module.ObjectGone();
    EXPECT_EQ(module.LiveObjects(), 1);

    module.ObjectGone();
    EXPECT_EQ(module.LiveObjects(), 0);
}
