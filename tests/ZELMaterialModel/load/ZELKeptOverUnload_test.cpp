#include "framework/KORTie.h"
#include "tests/ZELMaterialModel/load/ZELHandedOut.h"

namespace {

/// Counts the calls through bindings while it lives.
class Observer final : public KORCallObserver {
public:
    Observer() : outer_(Tie_StackCtx::Observe(this)) {}
    ~Observer() { Tie_StackCtx::Observe(outer_); }
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    void Called(const KORTieRecord&, const char*, KORBaseUnknown*) override { ++calls; }
    int calls = 0;

private:
    KORCallObserver* outer_;
};

}  // namespace

TEST_F(ZELKeptOverUnload, EveryValueStaysGoodWhenTheModuleIsUnloaded) {
    const auto library = Load();
    values_.Take(features_);

    ASSERT_EQ(library->Unload(), S_OK);

    EXPECT_FALSE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(Records(), 0u);
    values_.ExpectGood(features_);
}

TEST_F(ZELKeptOverUnload, TheModuleGoesOnWhenItIsLoadedTwiceAndUnloadedOnce) {
    const auto first = Load();
    const auto second = Load();
    values_.Take(features_);
    const std::size_t records = Records();

    ASSERT_EQ(first->Unload(), S_OK);
    EXPECT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(Records(), records);
    values_.ExpectGood(features_);
    values_.Take(features_);

    ASSERT_EQ(second->Unload(), S_OK);
    EXPECT_FALSE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(Records(), 0u);
    values_.ExpectGood(features_);
}

TEST_F(ZELKeptOverUnload, TheModuleGoesOnWhileAnotherHolderHasOpenedIt) {
    const auto library = Load();
    void* const holder = dlopen(ZEL_MODULE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(holder, nullptr);
    values_.Take(features_);

    ASSERT_EQ(library->Unload(), S_OK);
    values_.ExpectGood(features_);
    values_.Take(features_);

    dlclose(holder);
    EXPECT_FALSE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(Records(), 0u);
    values_.ExpectGood(features_);
}

TEST_F(ZELKeptOverUnload, TheModuleGoesOnWhileALibraryThatLinksItIsThere) {
    const auto library = Load();
    auto caller = std::make_unique<ZELCaller>();
    values_.Take(features_);

    ASSERT_EQ(library->Unload(), S_OK);
    EXPECT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(caller->Find<ZELHoldDensity>("HoldDensity")(features_.material.Get()), 1);
    caller->Find<ZELDropDensity>("DropDensity")();
    values_.ExpectGood(features_);

    caller = nullptr;
    EXPECT_FALSE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    EXPECT_EQ(Records(), 0u);
    values_.ExpectGood(features_);
}

TEST_F(ZELKeptOverUnload, NothingIsLeftBehindWhenCallsAreObservedAndTheModuleComesBack) {
    Observer observer;
    int calls = 0;
    for (int round = 1; round <= 3; ++round) {  // a context left behind shows as a leak
        const auto library = Load();
        values_ = {};
        values_.Take(features_);
        EXPECT_GT(std::exchange(calls, observer.calls), round - 2);

        ASSERT_EQ(library->Unload(), S_OK);

        EXPECT_EQ(Records(), 0u);
        values_.ExpectGood(features_);
    }
}

TEST_F(ZELKeptOverUnload, TheLibraryMayEndBeforeWhatItHandedOutAndTheStoreAfterBoth) {
    auto values = std::make_unique<ZELHandedOut>();
    auto library = Load();
    values->Take(features_);

    library = nullptr;
    EXPECT_FALSE(ZELIsInProcess(ZEL_MODULE_LIBRARY));
    values->ExpectGood(features_);
    values = nullptr;

    EXPECT_EQ(References(features_.layer), 3) << "the store's container, the layup and this handle";
}

TEST_F(ZELKeptOverUnload, TheStoreMayEndBeforeTheLibraryAndThatBeforeTheValues) {
    auto store = std::make_unique<ZELMapStore>();
    auto features = std::make_unique<ZELFeaturesToAsk>(*store);
    auto library = Load();
    values_.Take(*features);
    ZELILayup_var held = features->layup;

    store = nullptr;
    library = nullptr;
    EXPECT_TRUE(ZELIsInProcess(ZEL_MODULE_LIBRARY)) << "an interface is held";
    values_.ExpectGood(*features);
    held = nullptr;
}
