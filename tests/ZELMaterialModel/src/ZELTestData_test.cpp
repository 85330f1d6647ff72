#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTestData.h"

#include <gmock/gmock.h>

#include "tests/ZELMaterialModel/src/ZELTestDataMaterial.h"
#include "tests/support/ZELStores.h"

using testing::IsEmpty;
using testing::Optional;

namespace {

class ZELTestDataTest : public ZELStoreTest {
protected:
    HRESULT Find(const KORISpecObject_var& material) {
        found_ = nullptr;
        return ZELFindTestDataContainer(material.Get(), found_);
    }
    HRESULT Carry() { return ZELCarryTestData(from_.material.Get(), to_.material.Get()); }

    const KORIContainer_var own_ = Store().Container();
    const KORIContainer_var foreign_ = Store().AddContainer("TestData");
    ZELTestDataMaterial from_{Store(), foreign_};
    ZELTestDataMaterial to_{Store(), own_};
    KORBaseUnknown_var found_;
};

}  // namespace

TEST_P(ZELTestDataTest, LieWhereTheFirstOfThemLies) {
    from_.AddTestData(Store(), own_, {1.0});
    from_.AddTestData(Store(), foreign_, {2.0});

    EXPECT_EQ(Find(from_.material), S_OK);

    EXPECT_EQ(found_, KORBaseUnknown_var(own_));
}

TEST_P(ZELTestDataTest, LieNowhereWhereThereAreNone) {
    EXPECT_EQ(Find(from_.material), E_FAIL) << "a list that was never valued";

    from_.AddTestData(Store(), own_, {1.0});
    const auto access = Access(from_.model);
    KORISpecAttrKey* list = access->GetAttrKey("HyperelasticMatModelData");
    access->RemoveAllValues(list);
    EXPECT_EQ(Find(from_.material), E_FAIL) << "an empty list";

    access->AppendComponent(list, nullptr);
    EXPECT_EQ(Find(from_.material), E_FAIL) << "an empty entry";
    list->Release();

    Attach(from_.hyperelasticity, "HyperelasticModel_v2", nullptr);
    EXPECT_EQ(Find(from_.material), E_FAIL) << "no model";
    Attach(from_.material, "ZELHyperelasticity", nullptr);
    EXPECT_EQ(Find(from_.material), E_FAIL) << "no hyperelasticity";
    EXPECT_EQ(Find(nullptr), E_FAIL);
    EXPECT_FALSE(found_);
}

TEST_P(ZELTestDataTest, LieNowhereOnAModelThatCannotListThem) {
    Attach(from_.hyperelasticity, "HyperelasticModel_v2", from_.density);

    EXPECT_EQ(Find(from_.material), E_FAIL);
}

TEST_P(ZELTestDataTest, AreCopiedToAnotherMaterialAndListedOnce) {
    from_.AddTestData(Store(), foreign_, {1.0, 2.0});
    from_.AddTestData(Store(), foreign_, {3.0});
    to_.AddTestData(Store(), own_, {9.0});
    to_.SwitchOn(true);

    EXPECT_EQ(Carry(), S_OK);

    EXPECT_EQ(ZELTestDataOf(to_.model), (ZELRows{{1.0, 2.0}, {3.0}})) << "in place of what it had";
    EXPECT_EQ(ZELTestDataContainers(to_.model), std::vector(2, KORBaseUnknown_var(own_)));
    EXPECT_THAT(Components(from_.model, "HyperelasticMatModelData"), Optional(IsEmpty()));
}

TEST_P(ZELTestDataTest, AreUnlistedOnAMaterialThatIsSwitchedOff) {
    from_.AddTestData(Store(), foreign_, {1.0});
    to_.AddTestData(Store(), own_, {9.0});
    const long features = Store().LiveFeatures();

    EXPECT_EQ(Carry(), S_OK);

    EXPECT_EQ(ZELTestDataOf(to_.model), ZELRows());
    EXPECT_EQ(ZELTestDataOf(from_.model), (ZELRows{{1.0}})) << "nothing is taken from the first";
    EXPECT_EQ(Store().LiveFeatures(), features) << "nothing is copied";
}

TEST_P(ZELTestDataTest, AreLeftAloneWhereThereAreNone) {
    to_.AddTestData(Store(), own_, {9.0});
    to_.SwitchOn(true);

    EXPECT_EQ(Carry(), S_OK);

    EXPECT_EQ(ZELTestDataOf(to_.model), (ZELRows{{9.0}}));
    EXPECT_EQ(Components(from_.model, "HyperelasticMatModelData"), std::nullopt) << "still never valued";
}

TEST_P(ZELTestDataTest, CannotBeCarriedWithoutAModelOnEitherSide) {
    from_.AddTestData(Store(), foreign_, {1.0});
    to_.SwitchOn(true);
    Attach(to_.hyperelasticity, "HyperelasticModel_v2", nullptr);
    EXPECT_EQ(Carry(), E_FAIL);
    EXPECT_EQ(ZELTestDataOf(from_.model), (ZELRows{{1.0}}));

    Attach(to_.hyperelasticity, "HyperelasticModel_v2", to_.model);
    to_.AddTestData(Store(), own_, {9.0});
    Attach(from_.hyperelasticity, "HyperelasticModel_v2", nullptr);
    EXPECT_EQ(Carry(), E_FAIL);
    EXPECT_EQ(ZELTestDataOf(to_.model), (ZELRows{{9.0}}));
}

TEST_P(ZELTestDataTest, AreKeptOnTheFirstMaterialWhereTheyCannotBeCopied) {
    from_.AddTestData(Store(), foreign_, {1.0});
    const auto removed = from_.AddTestData(Store(), own_, {2.0});
    Store().Remove(removed);
    to_.AddTestData(Store(), own_, {9.0});
    to_.SwitchOn(true);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(Carry(), E_FAIL) << "one of them lies in no container";

    EXPECT_EQ(ZELTestDataOf(from_.model), (ZELRows{{1.0}, {2.0}}));
    EXPECT_EQ(ZELTestDataOf(to_.model), ZELRows()) << "reset before the copy was tried";
    EXPECT_EQ(Store().LiveFeatures(), features) << "none is copied unless all are";
}

TEST_P(ZELTestDataTest, AreCopiedInTheirOrderFromSeveralContainersAlsoFromTheTarget) {
    const KORIContainer_var third = Store().AddContainer("More");
    from_.AddTestData(Store(), foreign_, {1.0});
    from_.AddTestData(Store(), own_, {2.0});
    from_.AddTestData(Store(), third, {3.0});
    from_.AddTestData(Store(), foreign_, {4.0});
    const auto originals = Components(from_.model, "HyperelasticMatModelData");
    to_.SwitchOn(true);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(Carry(), S_OK);

    EXPECT_EQ(ZELTestDataOf(to_.model), (ZELRows{{1.0}, {2.0}, {3.0}, {4.0}}));
    EXPECT_EQ(ZELTestDataContainers(to_.model), std::vector(4, KORBaseUnknown_var(own_)));
    EXPECT_THAT(Components(to_.model, "HyperelasticMatModelData").value(),
                testing::Each(testing::Not(testing::AnyOfArray(*originals))));
    EXPECT_THAT(Components(from_.model, "HyperelasticMatModelData"), Optional(IsEmpty()));
    EXPECT_EQ(Store().LiveFeatures(), features + 4);
}

TEST_P(ZELTestDataTest, AreListedByOneModelThatTwoMaterialsShare) {
    from_.AddTestData(Store(), foreign_, {1.0, 2.0});
    from_.AddTestData(Store(), foreign_, {3.0});
    Attach(to_.hyperelasticity, "HyperelasticModel_v2", from_.model);
    to_.SwitchOn(true);

    EXPECT_EQ(Carry(), S_OK);

    EXPECT_EQ(ZELTestDataOf(from_.model), (ZELRows{{1.0, 2.0}, {3.0}})) << "filled, and not cleared again";
    EXPECT_EQ(ZELTestDataContainers(from_.model), std::vector(2, KORBaseUnknown_var(own_)));
}

TEST_P(ZELTestDataTest, AreKeptByASharedModelWhereTheyCannotBeCopied) {
    const auto removed = from_.AddTestData(Store(), own_, {1.0});
    Store().Remove(removed);
    Attach(to_.hyperelasticity, "HyperelasticModel_v2", from_.model);
    to_.SwitchOn(true);

    EXPECT_EQ(Carry(), E_FAIL);

    EXPECT_EQ(ZELTestDataOf(from_.model), (ZELRows{{1.0}}));
}

TEST_P(ZELTestDataTest, AreUnlistedByASharedModelOfAMaterialThatIsSwitchedOff) {
    from_.AddTestData(Store(), foreign_, {1.0});
    Attach(to_.hyperelasticity, "HyperelasticModel_v2", from_.model);
    from_.SwitchOn(true);

    EXPECT_EQ(Carry(), S_OK);

    EXPECT_THAT(Components(from_.model, "HyperelasticMatModelData"), Optional(IsEmpty()));
}

TEST_P(ZELTestDataTest, TakeAlongWhatTheyReferenceWithoutListingIt) {
    Store().DefineType("TestDataLT",
                       {{"MaterialModelRowData", ZELKind::ListOfDoubles}, {"Next", ZELKind::Component}});
    const auto listed = Store().MakeIn(foreign_, "TestDataLT");
    const auto referenced = Store().MakeIn(foreign_, "TestDataLT");
    Attach(listed, "Next", referenced);
    AppendComponent(from_.model, "HyperelasticMatModelData", listed);
    to_.SwitchOn(true);

    EXPECT_EQ(Carry(), S_OK);

    const auto copies = Components(to_.model, "HyperelasticMatModelData");
    ASSERT_TRUE(copies);
    ASSERT_EQ(copies->size(), 1u);
    const auto next = Component((*copies)[0], "Next");
    ASSERT_TRUE(next);
    EXPECT_NE(next, referenced);
    EXPECT_EQ(ZELContainerOf(next), KORBaseUnknown_var(own_));
}

TEST_P(ZELTestDataTest, MoveWithinOneMaterialToItsOwnContainer) {
    to_.AddTestData(Store(), foreign_, {1.0, 2.0});
    to_.AddTestData(Store(), foreign_, {3.0});
    to_.SwitchOn(true);

    EXPECT_EQ(ZELCarryTestData(to_.material.Get(), to_.material.Get()), S_OK);

    EXPECT_EQ(ZELTestDataOf(to_.model), (ZELRows{{1.0, 2.0}, {3.0}}));
    EXPECT_EQ(ZELTestDataContainers(to_.model), std::vector(2, KORBaseUnknown_var(own_)));
}

TEST_P(ZELTestDataTest, LeaveNoReferenceBehind) {
    const auto data = from_.AddTestData(Store(), foreign_, {1.0});
    to_.SwitchOn(true);
    const long model = References(to_.model);
    const long material = References(to_.material);

    EXPECT_EQ(Carry(), S_OK);

    EXPECT_EQ(References(to_.model), model);
    EXPECT_EQ(References(to_.material), material);
    EXPECT_EQ(References(data), 2) << "its container and this test";
}

ZEL_ON_BOTH_STORES(ZELTestDataTest);
