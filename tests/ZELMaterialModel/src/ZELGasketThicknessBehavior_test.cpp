#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"

#include <gmock/gmock.h>

#include <functional>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/src/ZELGasketKeys.h"
#include "tests/ZELMaterialModel/src/ZELGasketRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Gasket = ZELGasketThicknessBehavior;

/// Runs a scalar's setter, then its getter, which has to leave a failing argument as it is.
template <class Value, class Given>
HRESULT RoundTrip(Gasket& gasket, HRESULT (Gasket::*set)(const Given&), HRESULT (Gasket::*get)(Value&),
                  const Value& written, const Value& before) {
    const HRESULT status = (gasket.*set)(written);
    Value read = before;
    EXPECT_EQ((gasket.*get)(read), status);
    EXPECT_EQ(read, SUCCEEDED(status) ? written : before);
    return status;
}

template <class... Arguments>
HRESULT Flag(Gasket& gasket, Arguments... operations) {
    return RoundTrip<unsigned char>(gasket, operations..., 1, 7);
}
template <class... Arguments>
HRESULT Number(Gasket& gasket, Arguments... operations) {
    return RoundTrip<double>(gasket, operations..., 0.25, 7.0);
}
template <class... Arguments>
HRESULT Text(Gasket& gasket, Arguments... operations) {
    return RoundTrip<KORUnicodeString>(gasket, operations..., "gasket.csv", "kept");
}

HRESULT Table(Gasket& gasket, HRESULT (Gasket::*set)(const ZELCftArrayZELCftArrayDouble&),
              HRESULT (Gasket::*get)(ZELCftArrayZELCftArrayDouble&), const ZELRows& rows) {
    const HRESULT status = (gasket.*set)(ZELTableOf(rows));
    ZELCftArrayZELCftArrayDouble table;
    EXPECT_EQ((gasket.*get)(table), status);
    EXPECT_EQ(ZELRowsOf(table), SUCCEEDED(status) ? rows : ZELRows());
    return status;
}

/// What can be set and got, and the last of the keys (by number) that it needs.
struct Operation {
    std::size_t lastKey;
    HRESULT (*run)(Gasket& gasket);
};

const std::vector<Operation> kOperations = {
    {0, [](Gasket& g) { return Flag(g, &Gasket::SetGasketEnabled, &Gasket::GetGasketEnabled); }},
    {1,
     [](Gasket& g) {
         return RoundTrip(g, &Gasket::SetGasketThicknessBehaviorType, &Gasket::GetGasketThicknessBehaviorType,
                          Gasket::InitialThicknessType, Gasket::GasketThicknessType(7));
     }},
    {2,
     [](Gasket& g) {
         return RoundTrip(g, &Gasket::SetGasketYieldOnsetMethodType, &Gasket::GetGasketYieldOnsetMethodType,
                          Gasket::InitialYieldOnsetMethod, Gasket::GasketYieldOnsetMethodType(7));
     }},
    {3,
     [](Gasket& g) {
         return Number(g, &Gasket::SetGasketYieldOnsetMethodRelativeValue,
                       &Gasket::GetGasketYieldOnsetMethodRelativeValue);
     }},
    {4,
     [](Gasket& g) {
         return Number(g, &Gasket::SetGasketYieldOnsetMethodClosureValue,
                       &Gasket::GetGasketYieldOnsetMethodClosureValue);
     }},
    {5,
     [](Gasket& g) {
         return Number(g, &Gasket::SetGasketTensileStiffnessFactor, &Gasket::GetGasketTensileStiffnessFactor);
     }},
    {6,
     [](Gasket& g) {
         return Flag(g, &Gasket::SetGasketThicknessUnLoadingFlag, &Gasket::GetGasketThicknessUnLoadingFlag);
     }},
    {7,
     [](Gasket& g) { return Text(g, &Gasket::SetGasketLoadingDataFile, &Gasket::GetGasketLoadingDataFile); }},
    {8,
     [](Gasket& g) {
         return Flag(g, &Gasket::SetGasketLoadingTemperatureDependentFlag,
                     &Gasket::GetGasketLoadingTemperatureDependentFlag);
     }},
    {11,
     [](Gasket& g) {
         return Table(g, &Gasket::SetGasketLoadingDataArray, &Gasket::GetGasketLoadingDataArray,
                      kZELLoadingRows);
     }},
    {12,
     [](Gasket& g) {
         return Text(g, &Gasket::SetGasketUnLoadingEPDataFile, &Gasket::GetGasketUnLoadingEPDataFile);
     }},
    {13,
     [](Gasket& g) {
         return Flag(g, &Gasket::SetGasketUnLoadingEPTemperatureDependentFlag,
                     &Gasket::GetGasketUnLoadingEPTemperatureDependentFlag);
     }},
    {17,
     [](Gasket& g) {
         return Table(g, &Gasket::SetGasketUnLoadingEPDataArray, &Gasket::GetGasketUnLoadingEPDataArray,
                      kZELUnloadingRows);
     }},
    {18,
     [](Gasket& g) {
         return Text(g, &Gasket::SetGasketUnLoadingDamageDataFile, &Gasket::GetGasketUnLoadingDamageDataFile);
     }},
    {19,
     [](Gasket& g) {
         return Flag(g, &Gasket::SetGasketUnLoadingDamageTemperatureDependentFlag,
                     &Gasket::GetGasketUnLoadingDamageTemperatureDependentFlag);
     }},
    {23,
     [](Gasket& g) {
         return Table(g, &Gasket::SetGasketUnLoadingDamageDataArray,
                      &Gasket::GetGasketUnLoadingDamageDataArray, kZELUnloadingRows);
     }},
};

/// Every operation on which the binding got as far as `keys` keys answers, and no other.
void ExpectAnswersUpTo(Gasket& gasket, std::size_t keys) {
    for (const Operation& operation : kOperations) {
        EXPECT_EQ(operation.run(gasket), operation.lastKey < keys ? S_OK : E_FAIL)
            << "key " << operation.lastKey << " of " << keys;
    }
}

class ZELGasketThicknessBehaviorTest : public ZELStoreTest {
protected:
    ZELFullMaterialTree tree_{Store()};
    ZELDiagnostics diagnostics_;
};

}  // namespace

TEST_P(ZELGasketThicknessBehaviorTest, SetsAndGetsEverything) {
    Gasket gasket(tree_.material.Get());

    ExpectAnswersUpTo(gasket, 24);

    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
    EXPECT_TRUE(GetFlag(tree_.material, "ZELGasketFlag")) << "on the material, not on the gasket";
    EXPECT_EQ(GetWhole(tree_.thickness, "ZELGasketThicknessBehaviorType"), 10);
    EXPECT_EQ(GetWhole(tree_.thickness, "ZELGasketYieldOnsetMethodType"), 20);
    EXPECT_EQ(GetNumber(tree_.thickness, "ZELGasketYieldOnsetMethodRelativeValue"), 0.25);
    EXPECT_EQ(GetNumber(tree_.thickness, "ZELGasketYieldOnsetMethodClosureValue"), 0.25);
    EXPECT_EQ(GetNumber(tree_.thickness, "ZELGasketTensileStiffnessFactor"), 0.25);
    EXPECT_TRUE(GetFlag(tree_.thickness, "ZELGasketThicknessUnLoadingFlag"));
    EXPECT_EQ(GetText(tree_.loading, "ZELGasketLoadingDataFile"), "gasket.csv");
    EXPECT_TRUE(GetFlag(tree_.loading, "ZELGasketLoadingTemperatureDepFlag"));
    EXPECT_EQ(GetText(tree_.unloadingEP, "ZELGasketUnLoadingEPDataFile"), "gasket.csv");
    EXPECT_TRUE(GetFlag(tree_.unloadingEP, "ZELGasketUnLoadingEPTemperatureDepFlag"));
    EXPECT_EQ(GetText(tree_.unloadingDamage, "ZELGasketUnLoadingDamageDataFile"), "gasket.csv");
    EXPECT_TRUE(GetFlag(tree_.unloadingDamage, "ZELGasketUnLoadingDamageTemperatureDepFlag"));
}

TEST_P(ZELGasketThicknessBehaviorTest, StopsAtTheFirstMissingKeyAndAnswersWhatItReachedBefore) {
    for (std::size_t keys = ZELGasketThicknessKeys().size(); keys-- > 0;) {
        const auto& [lateType, attribute] = ZELGasketThicknessKeys()[keys];
        Store().OmitAttribute(lateType, attribute);
        const ZELFullMaterialTree tree(Store());
        Gasket gasket(tree.material.Get());

        ExpectAnswersUpTo(gasket, keys);
    }
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketThicknessBehaviorTest, ReportsAMissingMaterial) {
    Gasket gasket(nullptr);

    EXPECT_THAT(diagnostics_.Lines(), ElementsAre("No material SpecObject !"));
    ExpectAnswersUpTo(gasket, 0);
}

TEST_P(ZELGasketThicknessBehaviorTest, ReportsAMaterialWithoutAttributeAccess) {
    const auto bare = ZELMakeBareFeature();

    Gasket gasket(bare.Get());

    EXPECT_THAT(diagnostics_.Lines(), ElementsAre("Accessing ZELMaterial failed !"));
    ExpectAnswersUpTo(gasket, 0);
}

TEST_P(ZELGasketThicknessBehaviorTest, AnswersNothingWhereAFeatureOfTheTreeIsMissing) {
    const std::vector<std::pair<KORISpecObject_var, const char*>> places = {
        {tree_.thickness, "ZELGasketThicknessBehaviorUnLoadingDamage"},
        {tree_.thickness, "ZELGasketThicknessBehaviorUnLoadingElasticPlastic"},
        {tree_.thickness, "ZELGasketThicknessBehaviorLoading"},
        {tree_.material, "ZELGasketThicknessBehavior"},
    };
    for (const auto& [parent, attribute] : places) {
        Attach(parent, attribute, ZELMakeBareFeature());
        Gasket withoutAccess(tree_.material.Get());
        ExpectAnswersUpTo(withoutAccess, 0);

        Attach(parent, attribute, nullptr);
        Gasket withoutFeature(tree_.material.Get());
        ExpectAnswersUpTo(withoutFeature, 0);
    }
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketThicknessBehaviorTest, AnswersNothingWhereTheMaterialKnowsNoGasket) {
    Store().OmitAttribute("ZELMaterialLT", "ZELGasketThicknessBehavior");
    const auto material = Make("ZELMaterialLT");

    Gasket gasket(material.Get());

    ExpectAnswersUpTo(gasket, 0);
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELGasketThicknessBehaviorTest, ReportsAnObjectThatIsNoFeatureUnderTheMembranesName) {
    const auto object = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    ZELAttachObject(tree_.material, "ZELGasketThicknessBehavior", object);

    Gasket gasket(tree_.material.Get());

    EXPECT_THAT(diagnostics_.Lines(), ElementsAre("No ZELGasketMembraneBehavior object found !"));
    ExpectAnswersUpTo(gasket, 0);
}

TEST_P(ZELGasketThicknessBehaviorTest, StoresAnyKindAndMethod) {
    Gasket gasket(tree_.material.Get());
    Gasket::GasketThicknessType type{};
    Gasket::GasketYieldOnsetMethodType method{};

    EXPECT_EQ(gasket.SetGasketThicknessBehaviorType(Gasket::GasketThicknessType(-3)), S_OK);
    EXPECT_EQ(gasket.SetGasketYieldOnsetMethodType(Gasket::GasketYieldOnsetMethodType(1000000)), S_OK);

    EXPECT_EQ(gasket.GetGasketThicknessBehaviorType(type), S_OK);
    EXPECT_EQ(static_cast<int>(type), -3);
    EXPECT_EQ(gasket.GetGasketYieldOnsetMethodType(method), S_OK);
    EXPECT_EQ(static_cast<int>(method), 1000000);
}

TEST_P(ZELGasketThicknessBehaviorTest, KeepsNothingInMemory) {
    Gasket gasket(tree_.material.Get());
    gasket.SetGasketTensileStiffnessFactor(0.5);
    gasket.SetGasketEnabled(200);
    SetNumber(tree_.thickness, "ZELGasketTensileStiffnessFactor", 0.75);

    double factor = 0.0;
    unsigned char enabled = 0;
    EXPECT_EQ(gasket.GetGasketTensileStiffnessFactor(factor), S_OK);
    EXPECT_EQ(factor, 0.75);
    EXPECT_EQ(gasket.GetGasketEnabled(enabled), S_OK);
    EXPECT_EQ(enabled, 1) << "the store keeps 0 or 1";
}

TEST_P(ZELGasketThicknessBehaviorTest, HoldsItsFeaturesAndKeysAndGivesThemBack) {
    const ZELGasketHoldings before(tree_, ZELGasketThicknessKeys());
    {
        const Gasket gasket(tree_.material.Get());
        const ZELGasketHoldings held(tree_, ZELGasketThicknessKeys());
        EXPECT_EQ(held.material, before.material + 2) << "itself, and its attribute access";
        EXPECT_EQ(held.keys, before.keys + 24);
        EXPECT_EQ(References(tree_.loading), 5) << "container, parent, the test's tree, feature and access";
    }
    const ZELGasketHoldings after(tree_, ZELGasketThicknessKeys());
    EXPECT_EQ(after.material, before.material);
    EXPECT_EQ(after.keys, before.keys);
    EXPECT_EQ(References(tree_.loading), 3);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

TEST_P(ZELGasketThicknessBehaviorTest, CopiesWithoutTakingTheMaterialAndTheKeysThatTheCopyReleases) {
    const ZELGasketHoldings before(tree_, ZELGasketThicknessKeys());
    {
        const Gasket original(tree_.material.Get());
        ZELTakeForCopy(tree_, ZELGasketThicknessKeys());
        Gasket copy(original);
        ExpectAnswersUpTo(copy, 24);
        EXPECT_EQ(References(tree_.loading), 7) << "handles are counted";
    }
    const ZELGasketHoldings after(tree_, ZELGasketThicknessKeys());
    EXPECT_EQ(after.material, before.material);
    EXPECT_EQ(after.keys, before.keys);
    EXPECT_EQ(References(tree_.loading), 3);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

TEST_P(ZELGasketThicknessBehaviorTest, AssignsLikeItCopies) {
    const ZELGasketHoldings before(tree_, ZELGasketThicknessKeys());
    {
        const Gasket original(tree_.material.Get());
        Gasket assigned(nullptr);
        ZELTakeForCopy(tree_, ZELGasketThicknessKeys());
        assigned = original;
        ExpectAnswersUpTo(assigned, 24);
    }
    const ZELGasketHoldings after(tree_, ZELGasketThicknessKeys());
    EXPECT_EQ(after.material, before.material);
    EXPECT_EQ(after.keys, before.keys);
    EXPECT_EQ(References(tree_.loading), 3);
}

ZEL_ON_BOTH_STORES(ZELGasketThicknessBehaviorTest);
