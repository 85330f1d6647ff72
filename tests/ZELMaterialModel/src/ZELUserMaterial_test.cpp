#include "ZELMaterialModel/include/ZELUserMaterial.h"

#include <gmock/gmock.h>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

/// The answers of every operation on the user material's own feature, and whether an argument was touched.
struct Answers {
    explicit Answers(ZELUserMaterial& userMaterial) {
        KORUnicodeString type("kept");
        KORUnicodeString file("kept");
        unsigned char unsymmetric = 7;
        int count = 7;
        auto table = ZELTableOf({{7.0}});
        statuses = {userMaterial.GetUserMaterialType(type),
                    userMaterial.SetUserMaterialType("THERMAL"),
                    userMaterial.GetUnSymmMatrixFlag(unsymmetric),
                    userMaterial.SetUnSymmMatrixFlag(1),
                    userMaterial.GetUserMaterialDependentVar(count),
                    userMaterial.SetUserMaterialDependentVar(3),
                    userMaterial.GetPropertyDataFile(file),
                    userMaterial.SetPropertyDataFile("constants.csv"),
                    userMaterial.GetUserMaterialDataArray(table),
                    userMaterial.SetUserMaterialDataArray(ZELTableOf({{1.0}}))};
        untouched = type == "kept" && file == "kept" && unsymmetric == 7 && count == 7 &&
                    ZELRowsOf(table) == ZELRows{{7.0}};
    }
    std::vector<HRESULT> statuses;
    bool untouched = false;
};

class ZELUserMaterialTest : public ZELStoreTest {
protected:
    ZELFullMaterialTree tree_{Store()};
    ZELDiagnostics diagnostics_;
};

}  // namespace

TEST_P(ZELUserMaterialTest, FailsEverythingWithoutAMaterial) {
    ZELUserMaterial userMaterial(nullptr);
    const Answers answers(userMaterial);
    unsigned char enabled = 7;

    EXPECT_THAT(answers.statuses, Each(E_FAIL));
    EXPECT_TRUE(answers.untouched);
    EXPECT_EQ(userMaterial.GetUserMaterialEnabled(enabled), E_FAIL);
    EXPECT_EQ(userMaterial.SetUserMaterialEnabled(1), E_FAIL);
    EXPECT_EQ(enabled, 7);
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELUserMaterialTest, AnswersNoInterfaceForAMaterialWithoutAttributeAccess) {
    const auto bare = ZELMakeBareFeature();
    ZELUserMaterial userMaterial(bare.Get());
    const Answers answers(userMaterial);
    unsigned char enabled = 7;

    EXPECT_EQ(userMaterial.GetUserMaterialEnabled(enabled), E_NOINTERFACE);
    EXPECT_EQ(userMaterial.SetUserMaterialEnabled(1), E_NOINTERFACE);
    EXPECT_EQ(enabled, 7);
    EXPECT_THAT(answers.statuses, Each(E_FAIL)) << "there is no feature of its own";
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELUserMaterialTest, AnswersNoInterfaceForAFeatureWithoutAttributeAccess) {
    Attach(tree_.material, "ZELUserMaterial", ZELMakeBareFeature());
    ZELUserMaterial userMaterial(tree_.material.Get());
    const Answers answers(userMaterial);

    EXPECT_THAT(answers.statuses, Each(E_NOINTERFACE));
    EXPECT_TRUE(answers.untouched);
}

TEST_P(ZELUserMaterialTest, KeepsTheFlagUsableWithoutAFeatureOfItsOwn) {
    const auto material = Make("ZELMaterialLT");
    ZELUserMaterial userMaterial(material.Get());
    const Answers answers(userMaterial);
    unsigned char enabled = 0;

    EXPECT_THAT(answers.statuses, Each(E_FAIL));
    EXPECT_TRUE(answers.untouched);
    EXPECT_EQ(userMaterial.SetUserMaterialEnabled(1), S_OK);
    EXPECT_EQ(userMaterial.GetUserMaterialEnabled(enabled), S_OK);
    EXPECT_EQ(enabled, 1);
    EXPECT_TRUE(GetFlag(material, "ZELUserMaterialFlag"));
}

TEST_P(ZELUserMaterialTest, FailsForMissingAttributesAndLeavesTheArguments) {
    for (const char* attribute : {"UserMaterialType", "UnsymmStiffnessMatrix", "UserMaterialDepVar",
                                  "UserMaterialData", "UserMaterialDataFile"}) {
        Store().OmitAttribute("MRVUserMaterialLT", attribute);
    }
    Store().OmitAttribute("ZELMaterialLT", "ZELUserMaterialFlag");
    const ZELFullMaterialTree bare(Store());
    ZELUserMaterial userMaterial(bare.material.Get());
    const Answers answers(userMaterial);
    unsigned char enabled = 7;

    EXPECT_THAT(answers.statuses, Each(E_FAIL));
    EXPECT_TRUE(answers.untouched);
    EXPECT_EQ(userMaterial.GetUserMaterialEnabled(enabled), E_FAIL);
    EXPECT_EQ(userMaterial.SetUserMaterialEnabled(1), E_FAIL);
    EXPECT_EQ(enabled, 7);
    ZELUserMaterial complete(tree_.material.Get());
    EXPECT_THAT(Answers(complete).statuses, Each(S_OK)) << "what was missing is looked for again";
}

TEST_P(ZELUserMaterialTest, StoresEachValueUnderItsOwnAttributeAndReadsItBack) {
    ZELUserMaterial userMaterial(tree_.material.Get());
    KORUnicodeString text;
    unsigned char flag = 0;
    int count = 0;

    EXPECT_EQ(userMaterial.SetUserMaterialType("MECHANICAL"), S_OK);
    EXPECT_EQ(userMaterial.SetUnSymmMatrixFlag(5), S_OK);
    EXPECT_EQ(userMaterial.SetUserMaterialDependentVar(-4), S_OK) << "no range check";
    EXPECT_EQ(userMaterial.SetPropertyDataFile("constants.csv"), S_OK);

    EXPECT_EQ(GetText(tree_.userMaterial, "UserMaterialType"), "MECHANICAL");
    EXPECT_TRUE(GetFlag(tree_.userMaterial, "UnsymmStiffnessMatrix"));
    EXPECT_EQ(GetWhole(tree_.userMaterial, "UserMaterialDepVar"), -4);
    EXPECT_EQ(GetText(tree_.userMaterial, "UserMaterialDataFile"), "constants.csv");
    EXPECT_EQ(userMaterial.GetUserMaterialType(text), S_OK);
    EXPECT_EQ(text, "MECHANICAL");
    EXPECT_EQ(userMaterial.GetUnSymmMatrixFlag(flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(userMaterial.GetUserMaterialDependentVar(count), S_OK);
    EXPECT_EQ(count, -4);
    EXPECT_EQ(userMaterial.GetPropertyDataFile(text), S_OK);
    EXPECT_EQ(text, "constants.csv");
    EXPECT_EQ(userMaterial.SetUserMaterialType("of my own"), S_OK) << "any text";
}

TEST_P(ZELUserMaterialTest, RoundTripsItsConstants) {
    ZELUserMaterial userMaterial(tree_.material.Get());

    EXPECT_EQ(userMaterial.SetUserMaterialDataArray(ZELTableOf({{210000.0}, {0.3}, {250.0}})), S_OK);

    auto table = ZELTableOf({{7.0, 8.0}});
    EXPECT_EQ(userMaterial.GetUserMaterialDataArray(table), S_OK);
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{210000.0}, {0.3}, {250.0}})) << "the caller's rows are replaced";
}

TEST_P(ZELUserMaterialTest, StoresTheFirstColumnOnly) {
    ZELUserMaterial userMaterial(tree_.material.Get());

    EXPECT_EQ(userMaterial.SetUserMaterialDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0}, {5.0, 6.0, 7.0, 8.0}})),
              S_OK);
    EXPECT_THAT(List(tree_.userMaterial, "UserMaterialData"), Optional(ElementsAre(1.0, 5.0)));

    EXPECT_EQ(userMaterial.SetUserMaterialDataArray(ZELTableOf({{}, {2.0}})), S_OK);
    EXPECT_THAT(List(tree_.userMaterial, "UserMaterialData"), Optional(ElementsAre(0.0, 2.0)));
}

TEST_P(ZELUserMaterialTest, TellsConstantsThatWereNeverStoredFromNone) {
    ZELUserMaterial userMaterial(tree_.material.Get());
    auto table = ZELTableOf({{7.0}});
    EXPECT_EQ(userMaterial.GetUserMaterialDataArray(table), S_OK);
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{7.0}})) << "as the caller passed it";

    EXPECT_EQ(userMaterial.SetUserMaterialDataArray(ZELTableOf({})), S_OK);

    EXPECT_THAT(List(tree_.userMaterial, "UserMaterialData"), Optional(IsEmpty()));
    EXPECT_EQ(userMaterial.GetUserMaterialDataArray(table), S_OK);
    EXPECT_EQ(table.size(), 0);
}

TEST_P(ZELUserMaterialTest, HoldsItsFeaturesAndGivesThemBack) {
    const long material = References(tree_.material);
    const long feature = References(tree_.userMaterial);
    {
        ZELUserMaterial userMaterial(tree_.material.Get());
        userMaterial.SetUserMaterialEnabled(1);
        EXPECT_EQ(References(tree_.material), material + 1);
        EXPECT_EQ(References(tree_.userMaterial), feature + 1);
    }
    EXPECT_EQ(References(tree_.material), material);
    EXPECT_EQ(References(tree_.userMaterial), feature);
}

ZEL_ON_BOTH_STORES(ZELUserMaterialTest);

TEST(ZELUserMaterialCalls, ResolveAKeyOncePerProcess) {
    ZELMapStore store;
    const ZELFullMaterialTree first(store);
    const ZELFullMaterialTree second(store);
    int count = 0;

    ZELUserMaterial(first.material.Get()).SetUserMaterialDependentVar(1);
    ZELUserMaterial(first.material.Get()).GetUserMaterialDependentVar(count);
    ZELUserMaterial(second.material.Get()).SetUserMaterialDependentVar(2);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                ElementsAre("GetAttrKey MRVUserMaterialLT.UserMaterialDepVar"));
    EXPECT_EQ(GetWhole(second.userMaterial, "UserMaterialDepVar"), 2);
}

TEST(ZELUserMaterialFaults, LeaveStoreAndReferencesAsTheyWereWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELFullMaterialTree tree(run.store);
            SetList(tree.userMaterial, "UserMaterialData", {7.0});
            const long material = References(tree.material);
            const long feature = References(tree.userMaterial);
            std::vector<HRESULT> statuses;

            run.Act([&] {
                ZELUserMaterial userMaterial(tree.material.Get());
                unsigned char enabled = 0;
                ZELCftArrayZELCftArrayDouble table;
                statuses.push_back(userMaterial.GetUserMaterialDataArray(table));
                statuses.push_back(userMaterial.GetUserMaterialEnabled(enabled));
                statuses.push_back(userMaterial.SetUserMaterialDataArray(ZELTableOf({{1.0}, {2.0}})));
            });

            if (!run.FaultHit()) {
                EXPECT_THAT(statuses, Each(S_OK));
            }
            const bool written = statuses.size() == 3 && statuses[2] == S_OK;
            EXPECT_THAT(List(tree.userMaterial, "UserMaterialData"),
                        Optional(written ? std::vector{1.0, 2.0} : std::vector{7.0}));
            EXPECT_EQ(References(tree.material), material);
            EXPECT_EQ(References(tree.userMaterial), feature);
        });
    }
}
