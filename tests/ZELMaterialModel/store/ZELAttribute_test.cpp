#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"

#include <gmock/gmock.h>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;

namespace {

constexpr KORUnicodeString kFlag = KORUnicodeString::Literal("Flag");
constexpr KORUnicodeString kOrder = KORUnicodeString::Literal("Order");
constexpr KORUnicodeString kFactor = KORUnicodeString::Literal("Factor");
constexpr KORUnicodeString kFile = KORUnicodeString::Literal("File");
constexpr KORUnicodeString kData = KORUnicodeString::Literal("Data");
constexpr KORUnicodeString kPart = KORUnicodeString::Literal("Part");

/// What a caller holds in memory, one value of every kind, none of them a default.
struct Memory {
    unsigned char flag = 1;
    int order = 4;
    double factor = 2.5;
    KORUnicodeString file = "before.csv";
    std::unique_ptr<KORRawColldouble> data = std::make_unique<KORRawColldouble>(ListOf({9.0}));
    KORBaseUnknown_var part = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
};

template <class Key>
std::vector<HRESULT> ReadAll(KORISpecObject* feature, Memory& memory) {
    return {
        ZELGetValue(feature, Key(kFlag), memory.flag),     ZELGetValue(feature, Key(kOrder), memory.order),
        ZELGetValue(feature, Key(kFactor), memory.factor), ZELGetValue(feature, Key(kFile), memory.file),
        ZELGetValue(feature, Key(kData), memory.data),     ZELGetValue(feature, Key(kPart), memory.part)};
}

template <class Key>
std::vector<HRESULT> WriteAll(KORISpecObject* feature, const Memory& memory) {
    return {
        ZELSetValue(feature, Key(kFlag), memory.flag),     ZELSetValue(feature, Key(kOrder), memory.order),
        ZELSetValue(feature, Key(kFactor), memory.factor), ZELSetValue(feature, Key(kFile), memory.file),
        ZELSetValue(feature, Key(kData), *memory.data),    ZELSetValue(feature, Key(kPart), memory.part)};
}

void ExpectUntouched(const Memory& memory, const KORBaseUnknown* part) {
    EXPECT_EQ(memory.flag, 1);
    EXPECT_EQ(memory.order, 4);
    EXPECT_EQ(memory.factor, 2.5);
    EXPECT_EQ(memory.file, "before.csv");
    EXPECT_THAT(Values(*memory.data), ElementsAre(9.0));
    EXPECT_EQ(memory.part.Get(), part);
}

void DefineTypes(ZELTestStore& store) {
    store.DefineType("FullLT", {{"Flag", ZELKind::Boolean},
                                {"Order", ZELKind::Integer},
                                {"Factor", ZELKind::Double},
                                {"File", ZELKind::String},
                                {"Data", ZELKind::ListOfDoubles},
                                {"Part", ZELKind::Component}});
    store.DefineType("EmptyLT", {{"Other", ZELKind::Boolean}});
    store.DefineType("MixedLT", {{"Flag", ZELKind::Double}});
}

class ZELAttributeSequence : public ZELStoreTest {
protected:
    ZELAttributeSequence() {
        DefineTypes(Store());
        full_ = Make("FullLT");
        empty_ = Make("EmptyLT");
    }

    KORISpecObject_var full_;
    KORISpecObject_var empty_;  ///< lacks every attribute that is asked for
};

}  // namespace

TEST_P(ZELAttributeSequence, ReadsBackEveryKindOfValueThatItWrote) {
    const auto part = Make("EmptyLT");
    Memory written;
    written.part = part;

    EXPECT_THAT(WriteAll<ZELKeySlot>(full_.Get(), written), ElementsAre(0, 0, 0, 0, 0, 0));
    Memory read;
    read.flag = 0, read.order = 0, read.factor = 0.0, read.file = "", read.data = nullptr,
    read.part = nullptr;
    EXPECT_THAT(ReadAll<ZELKeySlot>(full_.Get(), read), ElementsAre(0, 0, 0, 0, 0, 0));

    ExpectUntouched(read, KORBaseUnknown_var(part).Get());
    EXPECT_TRUE(GetFlag(full_, "Flag"));
    EXPECT_EQ(GetWhole(full_, "Order"), 4);
    EXPECT_EQ(GetNumber(full_, "Factor"), 2.5);
    EXPECT_EQ(GetText(full_, "File"), "before.csv");
    EXPECT_THAT(List(full_, "Data"), testing::Optional(ElementsAre(9.0)));
    EXPECT_EQ(Component(full_, "Part"), part);
}

TEST_P(ZELAttributeSequence, ReadsWhatWasNeverValuedAsZeroAndNull) {
    Memory memory;

    EXPECT_THAT(ReadAll<ZELKeyOnce>(full_.Get(), memory), ElementsAre(0, 0, 0, 0, 0, 0));

    EXPECT_EQ(memory.flag, 0);
    EXPECT_EQ(memory.order, 0);
    EXPECT_EQ(memory.factor, 0.0);
    EXPECT_EQ(memory.file, "");
    EXPECT_EQ(memory.data, nullptr);
    EXPECT_FALSE(memory.part);
}

TEST_P(ZELAttributeSequence, AnswersNoInterfaceWithoutAFeatureAndLeavesMemory) {
    Memory memory;
    const KORBaseUnknown* part = memory.part.Get();
    const auto all = testing::AllOf(testing::SizeIs(6), testing::Each(E_NOINTERFACE));

    EXPECT_THAT(ReadAll<ZELKeySlot>(nullptr, memory), all);
    EXPECT_THAT(ReadAll<ZELKeyOnce>(nullptr, memory), all);
    EXPECT_THAT(WriteAll<ZELKeySlot>(nullptr, memory), all);

    ExpectUntouched(memory, part);
}

TEST_P(ZELAttributeSequence, AnswersNoInterfaceWithoutAttributeAccessAndLeavesMemory) {
    const auto bare = ZELMakeBareFeature();
    Memory memory;
    const KORBaseUnknown* part = memory.part.Get();
    const auto all = testing::AllOf(testing::SizeIs(6), testing::Each(E_NOINTERFACE));

    EXPECT_THAT(ReadAll<ZELKeySlot>(bare.Get(), memory), all);
    EXPECT_THAT(ReadAll<ZELKeyOnce>(bare.Get(), memory), all);
    EXPECT_THAT(WriteAll<ZELKeySlot>(bare.Get(), memory), all);

    ExpectUntouched(memory, part);
    EXPECT_EQ(References(bare), 1);
}

TEST_P(ZELAttributeSequence, AnswersFailForAMissingAttributeAndLeavesMemory) {
    Memory memory;
    const KORBaseUnknown* part = memory.part.Get();
    const auto all = testing::AllOf(testing::SizeIs(6), testing::Each(E_FAIL));

    EXPECT_THAT(ReadAll<ZELKeySlot>(empty_.Get(), memory), all);
    EXPECT_THAT(ReadAll<ZELKeyOnce>(empty_.Get(), memory), all);
    EXPECT_THAT(WriteAll<ZELKeySlot>(empty_.Get(), memory), all);

    ExpectUntouched(memory, part);
}

TEST_P(ZELAttributeSequence, DoesNotRunTheOperationWhenItFails) {
    int runs = 0;
    const auto operation = [&](KORISpecAttrAccess&, KORISpecAttrKey*) { ++runs; };

    EXPECT_EQ(ZELUseAttribute(nullptr, ZELKeySlot(kFlag), operation), E_NOINTERFACE);
    EXPECT_EQ(ZELUseAttribute(empty_.Get(), ZELKeySlot(kFlag), operation), E_FAIL);
    EXPECT_EQ(runs, 0);

    EXPECT_EQ(ZELUseAttribute(full_.Get(), ZELKeySlot(kFlag), operation), S_OK);
    EXPECT_EQ(runs, 1);
}

TEST_P(ZELAttributeSequence, MakesAFlagOrNumberZeroWhenItsAttributeIsMissing) {
    unsigned char flag = 1;
    int order = 4;
    double factor = 2.5;

    EXPECT_EQ(ZELReadField(empty_.Get(), ZELKeySlot(kFlag), flag), E_FAIL);
    EXPECT_EQ(ZELReadField(empty_.Get(), ZELKeySlot(kOrder), order), E_FAIL);
    EXPECT_EQ(ZELReadField(empty_.Get(), ZELKeySlot(kFactor), factor), E_FAIL);

    EXPECT_EQ(flag, 0);
    EXPECT_EQ(order, 0);
    EXPECT_EQ(factor, 0.0);
}

TEST_P(ZELAttributeSequence, LeavesAFlagOrNumberWhenThereIsNoAttributeAccess) {
    const auto bare = ZELMakeBareFeature();
    unsigned char flag = 1;
    double factor = 2.5;

    EXPECT_EQ(ZELReadField(bare.Get(), ZELKeySlot(kFlag), flag), E_NOINTERFACE);
    EXPECT_EQ(ZELReadField(nullptr, ZELKeySlot(kFactor), factor), E_NOINTERFACE);

    EXPECT_EQ(flag, 1);
    EXPECT_EQ(factor, 2.5);
}

TEST_P(ZELAttributeSequence, ReadsAFieldThatIsThere) {
    SetNumber(full_, "Factor", -3.5);
    double factor = 2.5;

    EXPECT_EQ(ZELReadField(full_.Get(), ZELKeySlot(kFactor), factor), S_OK);

    EXPECT_EQ(factor, -3.5);
}

TEST_P(ZELAttributeSequence, StoresAnyByteOtherThanZeroAsTrueAndReadsItBackAsOne) {
    unsigned char flag = 0;

    EXPECT_EQ(ZELSetValue(full_.Get(), ZELKeySlot(kFlag), static_cast<unsigned char>(255)), S_OK);

    EXPECT_TRUE(GetFlag(full_, "Flag"));
    EXPECT_EQ(ZELGetValue(full_.Get(), ZELKeySlot(kFlag), flag), S_OK);
    EXPECT_EQ(flag, 1);
}

TEST_P(ZELAttributeSequence, ClearsAComponentWithAnEmptyHandle) {
    Attach(full_, "Part", empty_);

    EXPECT_EQ(ZELSetValue(full_.Get(), ZELKeySlot(kPart), KORBaseUnknown_var()), S_OK);

    EXPECT_EQ(Component(full_, "Part"), nullptr);
}

TEST_P(ZELAttributeSequence, KeepsAKeySlotEmptyAfterAMissAndResolvesItOnALaterFeature) {
    ZELKeySlot slot(kFactor);
    double factor = 2.5;

    EXPECT_EQ(ZELSetValue(empty_.Get(), slot, 8.0), E_FAIL);
    EXPECT_EQ(ZELSetValue(full_.Get(), slot, 8.0), S_OK);
    EXPECT_EQ(ZELGetValue(full_.Get(), slot, factor), S_OK);

    EXPECT_EQ(factor, 8.0);
}

TEST_P(ZELAttributeSequence, UsesAResolvedKeyOnAFeatureThatLacksTheAttributeAsNeverValued) {
    ZELKeySlot slot(kFactor);
    double factor = 2.5;
    EXPECT_EQ(ZELSetValue(full_.Get(), slot, 8.0), S_OK);

    EXPECT_EQ(ZELSetValue(empty_.Get(), slot, 9.0), S_OK);
    EXPECT_EQ(ZELReadField(empty_.Get(), slot, factor), S_OK);

    EXPECT_EQ(factor, 0.0);
    EXPECT_EQ(GetNumber(full_, "Factor"), 8.0);
}

TEST_P(ZELAttributeSequence, ReadsAnAttributeOfAnotherKindAsNeverValuedAndDoesNotOverwriteIt) {
    const auto mixed = Make("MixedLT");
    SetNumber(mixed, "Flag", 6.5);
    unsigned char flag = 1;

    EXPECT_EQ(ZELSetValue(mixed.Get(), ZELKeySlot(kFlag), flag), S_OK);
    EXPECT_EQ(ZELGetValue(mixed.Get(), ZELKeySlot(kFlag), flag), S_OK);

    EXPECT_EQ(flag, 0);
    EXPECT_EQ(GetNumber(mixed, "Flag"), 6.5);
}

TEST_P(ZELAttributeSequence, GivesAKeyBackAfterEachOperationThatKeepsNone) {
    const KORName* name = KORName::Intern("Factor");
    const auto before = name->References();

    EXPECT_EQ(ZELSetValue(full_.Get(), ZELKeyOnce(kFactor), 8.0), S_OK);
    EXPECT_EQ(ZELSetValue(empty_.Get(), ZELKeyOnce(kFactor), 8.0), E_FAIL);
    {
        ZELKeyOnce key(kFactor);
        EXPECT_EQ(ZELSetValue(full_.Get(), key, 9.0), S_OK);
        EXPECT_EQ(name->References(), before + 1) << "until the end of the key's scope";
    }

    EXPECT_EQ(name->References(), before);
}

TEST_P(ZELAttributeSequence, KeepsOneReferenceOnTheKeyOfASlot) {
    const KORName* name = KORName::Intern("Factor");
    const auto before = name->References();
    ZELKeySlot slot(kFactor);
    double factor = 0.0;

    EXPECT_EQ(ZELSetValue(full_.Get(), slot, 8.0), S_OK);
    EXPECT_EQ(ZELGetValue(full_.Get(), slot, factor), S_OK);

    EXPECT_EQ(name->References(), before + 1);
    name->Release();
}

TEST_P(ZELAttributeSequence, LeavesTheFeatureWithAsManyReferencesAsItHad) {
    Memory memory;
    memory.part = nullptr;
    const long full = References(full_);
    const long empty = References(empty_);

    WriteAll<ZELKeyOnce>(full_.Get(), memory);
    ReadAll<ZELKeyOnce>(full_.Get(), memory);
    WriteAll<ZELKeyOnce>(empty_.Get(), memory);
    ReadAll<ZELKeyOnce>(empty_.Get(), memory);

    EXPECT_EQ(References(full_), full);
    EXPECT_EQ(References(empty_), empty);
}

TEST(ZELAttributeCalls, AskForAKeyOncePerSlotWhateverTheFeature) {
    ZELMapStore store;
    DefineTypes(store);
    const auto first = store.Make("FullLT");
    const auto second = store.Make("FullLT");
    ZELKeySlot slot(kFactor);
    double factor = 0.0;

    ZELSetValue(first.Get(), slot, 8.0);
    ZELSetValue(second.Get(), slot, 9.0);
    ZELGetValue(first.Get(), slot, factor);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"), ElementsAre("GetAttrKey FullLT.Factor"));
    EXPECT_EQ(GetNumber(first, "Factor"), 8.0);
    EXPECT_EQ(GetNumber(second, "Factor"), 9.0);
}

TEST(ZELAttributeCalls, AskForAKeyAgainAfterAMiss) {
    ZELMapStore store;
    DefineTypes(store);
    const auto empty = store.Make("EmptyLT");
    const auto full = store.Make("FullLT");
    ZELKeySlot slot(kFactor);

    ZELSetValue(empty.Get(), slot, 8.0);
    ZELSetValue(empty.Get(), slot, 8.0);
    ZELSetValue(full.Get(), slot, 8.0);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                ElementsAre("GetAttrKey EmptyLT.Factor not found", "GetAttrKey EmptyLT.Factor not found",
                            "GetAttrKey FullLT.Factor"));
}

TEST(ZELAttributeCalls, AskForAKeyEveryTimeWhereNoneIsKept) {
    ZELMapStore store;
    DefineTypes(store);
    const auto full = store.Make("FullLT");

    ZELSetValue(full.Get(), ZELKeyOnce(kFactor), 8.0);
    ZELSetValue(full.Get(), ZELKeyOnce(kFactor), 9.0);

    EXPECT_THAT(store.Calls().Log(),
                ElementsAre("QueryInterface FullLT KORISpecAttrAccess", "GetAttrKey FullLT.Factor",
                            "SetDouble FullLT.Factor 8", "QueryInterface FullLT KORISpecAttrAccess",
                            "GetAttrKey FullLT.Factor", "SetDouble FullLT.Factor 9"));
}

TEST(ZELAttribute, AnswersFailForEveryFailureWhereTheClassKnowsNoOther) {
    EXPECT_EQ(ZELFailOnly(E_NOINTERFACE), E_FAIL);
    EXPECT_EQ(ZELFailOnly(E_FAIL), E_FAIL);
    EXPECT_EQ(ZELFailOnly(S_OK), S_OK);
    EXPECT_EQ(ZELFailOnly(0x00040000), 0x00040000);
}

TEST(ZELAttributeFaults, LeaveValueKeysAndReferencesAsTheyWereWhateverFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            DefineTypes(run.store);
            const auto full = run.store.Make("FullLT");
            const long references = References(full);
            const auto keys = KORName::Intern("Factor")->References();
            HRESULT status = S_OK;

            run.Act([&] { status = ZELSetValue(full.Get(), ZELKeyOnce(kFactor), 8.0); });

            if (!run.Threw()) {
                const HRESULT missing = run.FailedCall().starts_with("GetAttrKey") ? E_FAIL : S_OK;
                EXPECT_EQ(status, run.FailedCall().starts_with("QueryInterface") ? E_NOINTERFACE : missing);
            }
            EXPECT_EQ(GetNumber(full, "Factor"), run.FaultHit() ? 0.0 : 8.0);
            EXPECT_EQ(References(full), references);
            EXPECT_EQ(KORName::Intern("Factor")->References(), keys);
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 3 : 2);
    }
}

ZEL_ON_BOTH_STORES(ZELAttributeSequence);
