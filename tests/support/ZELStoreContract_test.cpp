#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <memory>

#include "interfaces/KORIAlias.h"
#include "interfaces/KORICatalog.h"
#include "interfaces/KORILinkableObject.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

/// What the module relies on in any store. "TestLT" has one attribute of each kind.
class ZELStoreContract : public ZELStoreTest {
protected:
    ZELStoreContract() {
        Store().DefineType("TestLT", {{"Flag", ZELKind::Boolean, true},
                                      {"Order", ZELKind::Integer, 3},
                                      {"Factor", ZELKind::Double, 1.5},
                                      {"File", ZELKind::String},
                                      {"Data", ZELKind::ListOfDoubles},
                                      {"Part", ZELKind::Component},
                                      {"Parts", ZELKind::ListOfComponents},
                                      {"Bare", ZELKind::Boolean}});
        Store().DefineType("OtherLT", {{"Flag", ZELKind::Boolean, false}, {"Data", ZELKind::Double, 2.5}});
        feature_ = Make("TestLT");
        access_ = Access(feature_);
    }

    /// The key of an attribute, given back at once: a key needs no reference to be used.
    KORISpecAttrKey* Key(const char* name) {
        KORISpecAttrKey* key = access_->GetAttrKey(name);
        if (key) key->Release();
        return key;
    }

    KORISpecObject_var feature_;
    KORISpecAttrAccess_var access_;
};

}  // namespace

TEST_P(ZELStoreContract, GivesANewFeatureItsTypeAndTheDefaultsOfTheCatalog) {
    EXPECT_EQ(feature_->GetType(), "TestLT");
    EXPECT_TRUE(GetFlag(feature_, "Flag"));
    EXPECT_EQ(GetWhole(feature_, "Order"), 3);
    EXPECT_EQ(GetNumber(feature_, "Factor"), 1.5);
    EXPECT_EQ(GetText(feature_, "File"), "");
    EXPECT_EQ(List(feature_, "Data"), std::nullopt);
    EXPECT_EQ(Component(feature_, "Part"), nullptr);
    EXPECT_EQ(Components(feature_, "Parts"), std::nullopt);
    EXPECT_FALSE(GetFlag(feature_, "Bare"));
}

TEST_P(ZELStoreContract, MakesNoFeatureOfATypeThatTheCatalogLacks) {
    EXPECT_EQ(Make("NoSuchLT"), nullptr);
    EXPECT_EQ(Store().LiveFeatures(), 1);
}

TEST_P(ZELStoreContract, OmitsTypesAndAttributesFromFeaturesMadeAfterwards) {
    Store().OmitAttribute("TestLT", "Factor");
    Store().OmitType("OtherLT");

    const auto later = Access(Make("TestLT"));

    EXPECT_EQ(later->GetAttrKey("Factor"), nullptr);
    EXPECT_NE(Key("Factor"), nullptr) << "made before";
    EXPECT_EQ(Make("OtherLT"), nullptr);
}

TEST_P(ZELStoreContract, HoldsFeaturesInItsContainer) {
    EXPECT_EQ(References(feature_), 3) << "the container, the test's handle, the test's access";
    EXPECT_EQ(Store().LiveFeatures(), 1);

    feature_ = nullptr;
    access_ = nullptr;

    EXPECT_EQ(Store().LiveFeatures(), 1);
}

TEST_P(ZELStoreContract, LetsGoOfAFeatureThatIsRemoved) {
    auto other = Make("OtherLT");
    Store().Remove(other);

    EXPECT_EQ(References(other), 1);
    EXPECT_EQ(other->GetFeatContainer(), nullptr);
    EXPECT_EQ(GetNumber(other, "Data"), 2.5) << "it keeps its values";
    EXPECT_EQ(Store().LiveFeatures(), 2);

    other = nullptr;
    EXPECT_EQ(Store().LiveFeatures(), 1);
}

TEST_P(ZELStoreContract, HasTheTypesOfTheModulesCatalog) {
    const auto material = Make("ZELMaterialLT");
    const auto elastic = Make("ZELElasticLT");
    ASSERT_NE(material, nullptr);
    ASSERT_NE(elastic, nullptr);

    Attach(material, "ZELElastic", elastic);

    EXPECT_EQ(Component(material, "ZELElastic"), elastic);
    EXPECT_EQ(List(elastic, "YoungData"), std::nullopt);
}

TEST_P(ZELStoreContract, AnswersContainerAndDocumentOfAFeature) {
    const auto container = KORBaseUnknown_var::Adopt(feature_->GetFeatContainer());

    EXPECT_EQ(KORIContainer_var(container), Store().Container());
    EXPECT_EQ(Store().Container()->GetDocument(), Store().Document());
    EXPECT_EQ(KORILinkableObject_var(feature_)->GetDocument(), Store().Document());
    EXPECT_EQ(KORBaseUnknown_var::Adopt(Store().Document()->GetFeatContainer()), container);
}

TEST_P(ZELStoreContract, HasOneKeyPerNameForEveryTypeAndCountsIt) {
    const auto other = Access(Make("OtherLT"));
    const auto before = Key("Flag")->References();

    KORISpecAttrKey* key = access_->GetAttrKey("Flag");
    KORISpecAttrKey* same = other->GetAttrKey("Flag");

    EXPECT_EQ(key, same);
    EXPECT_EQ(key->Text(), "Flag");
    EXPECT_EQ(key->References(), before + 2);
    key->Release();
    same->Release();
    EXPECT_EQ(key->References(), before);
}

TEST_P(ZELStoreContract, HasNoKeyForANameThatTheTypeLacks) {
    EXPECT_EQ(access_->GetAttrKey("NoSuchAttribute"), nullptr);
    EXPECT_EQ(access_->GetAttrKey(""), nullptr);
}

TEST_P(ZELStoreContract, ReadsBackEveryKindOfValue) {
    access_->SetBoolean(Key("Flag"), false, 0);
    access_->SetInteger(Key("Order"), -7, 0);
    access_->SetDouble(Key("Factor"), 7850.25, 0);
    access_->SetString(Key("File"), "stahl_\xC3\xA4.csv", 0);

    EXPECT_FALSE(access_->GetBoolean(Key("Flag"), 0));
    EXPECT_EQ(access_->GetInteger(Key("Order"), 0), -7);
    EXPECT_EQ(access_->GetDouble(Key("Factor"), 0), 7850.25);
    EXPECT_EQ(access_->GetString(Key("File"), 0), "stahl_\xC3\xA4.csv");
}

TEST_P(ZELStoreContract, KeepsNumbersToTheLastBit) {
    access_->SetDouble(Key("Factor"), -0.0, 0);
    EXPECT_TRUE(std::signbit(access_->GetDouble(Key("Factor"), 0)));
    access_->SetDouble(Key("Factor"), std::numeric_limits<double>::quiet_NaN(), 0);
    EXPECT_TRUE(std::isnan(access_->GetDouble(Key("Factor"), 0)));
    access_->SetDouble(Key("Factor"), std::numeric_limits<double>::denorm_min(), 0);
    EXPECT_EQ(access_->GetDouble(Key("Factor"), 0), 4.9406564584124654e-324);
}

TEST_P(ZELStoreContract, TellsNeverValuedEmptyAndValuedListsApart) {
    EXPECT_EQ(access_->GetListOfDouble(Key("Data")), nullptr);
    EXPECT_EQ(access_->GetListSize(Key("Data")), 0);

    access_->SetListOfDouble(Key("Data"), KORRawColldouble());
    EXPECT_THAT(List(feature_, "Data"), Optional(IsEmpty()));

    access_->SetListOfDouble(Key("Data"), ListOf({1.0, 2.0}));
    EXPECT_THAT(List(feature_, "Data"), Optional(ElementsAre(1.0, 2.0)));
    EXPECT_EQ(access_->GetListSize(Key("Data")), 2);

    access_->RemoveAllValues(Key("Data"));
    EXPECT_THAT(List(feature_, "Data"), Optional(IsEmpty()));

    access_->RemoveValue(Key("Data"));
    EXPECT_EQ(List(feature_, "Data"), std::nullopt);
}

TEST_P(ZELStoreContract, EmptiesAListThatWasNeverValued) {
    access_->RemoveAllValues(Key("Data"));
    access_->RemoveAllValues(Key("Parts"));

    EXPECT_THAT(List(feature_, "Data"), Optional(IsEmpty()));
    EXPECT_THAT(Components(feature_, "Parts"), Optional(IsEmpty()));
}

TEST_P(ZELStoreContract, RemovesValuesOfEveryKind) {
    const auto part = Make("OtherLT");
    Attach(feature_, "Part", part);
    AppendComponent(feature_, "Parts", part);
    SetText(feature_, "File", "a.csv");
    ASSERT_EQ(References(part), 4);

    for (const char* name : {"Flag", "Order", "Factor", "File", "Part", "Parts"}) {
        access_->RemoveValue(Key(name));
    }

    EXPECT_FALSE(GetFlag(feature_, "Flag"));
    EXPECT_EQ(GetWhole(feature_, "Order"), 0);
    EXPECT_EQ(GetNumber(feature_, "Factor"), 0.0);
    EXPECT_EQ(GetText(feature_, "File"), "");
    EXPECT_EQ(Component(feature_, "Part"), nullptr);
    EXPECT_EQ(Components(feature_, "Parts"), std::nullopt);
    EXPECT_EQ(References(part), 2);
}

TEST_P(ZELStoreContract, KeepsItsListApartFromTheCallers) {
    KORRawColldouble given = ListOf({1.0, 2.0});
    access_->SetListOfDouble(Key("Data"), given);
    given.Append(3.0);
    EXPECT_THAT(List(feature_, "Data"), Optional(ElementsAre(1.0, 2.0)));

    const std::unique_ptr<KORRawColldouble> handedOut(access_->GetListOfDouble(Key("Data")));
    handedOut->RemoveAll();
    handedOut->Append(9.0);
    EXPECT_THAT(List(feature_, "Data"), Optional(ElementsAre(1.0, 2.0)));
}

TEST_P(ZELStoreContract, ReplacesAListAsAWhole) {
    access_->SetListOfDouble(Key("Data"), ListOf({1.0, 2.0, 3.0}));
    access_->SetListOfDouble(Key("Data"), ListOf({4.0}));

    EXPECT_THAT(List(feature_, "Data"), Optional(ElementsAre(4.0)));
}

TEST_P(ZELStoreContract, CountsTheReferenceOfAComponentAttribute) {
    const auto part = Make("OtherLT");
    const auto replacement = Make("OtherLT");
    ASSERT_EQ(References(part), 2);

    Attach(feature_, "Part", part);
    EXPECT_EQ(References(part), 3);

    Attach(feature_, "Part", replacement);
    EXPECT_EQ(References(part), 2);
    EXPECT_EQ(Component(feature_, "Part"), replacement);

    access_->SetComponent(Key("Part"), nullptr, 0);
    EXPECT_EQ(Component(feature_, "Part"), nullptr);
    EXPECT_EQ(References(replacement), 2);
}

TEST_P(ZELStoreContract, HandsOutAComponentWithAReferenceForTheCaller) {
    const auto part = Make("OtherLT");
    Attach(feature_, "Part", part);

    KORISpecObject* byName = access_->GetSpecObject("Part", 0);
    KORBaseUnknown* byKey = access_->GetComponent(Key("Part"), 0);

    EXPECT_EQ(byName, part.Get());
    EXPECT_EQ(References(part), 5);
    byName->Release();
    byKey->Release();
    EXPECT_EQ(References(part), 3);
}

TEST_P(ZELStoreContract, AnswersNoFeatureForAComponentThatIsNone) {
    const auto container = KORBaseUnknown_var(Store().Container());
    access_->SetComponent(Key("Part"), container.Get(), 0);

    EXPECT_EQ(access_->GetSpecObject("Part", 0), nullptr);
    EXPECT_EQ(KORBaseUnknown_var::Adopt(access_->GetComponent(Key("Part"), 0)), container);
    EXPECT_EQ(access_->GetSpecObject("NoSuchAttribute", 0), nullptr);
    access_->SetComponent(Key("Part"), nullptr, 0);
}

TEST_P(ZELStoreContract, AppendsToAListOfComponentsInOrder) {
    const auto first = Make("OtherLT");
    const auto second = Make("OtherLT");
    const auto container = KORBaseUnknown_var(Store().Container());
    AppendComponent(feature_, "Parts", first);
    access_->AppendComponent(Key("Parts"), nullptr);
    AppendComponent(feature_, "Parts", second);
    access_->AppendComponent(Key("Parts"), container.Get());

    EXPECT_EQ(access_->GetListSize(Key("Parts")), 4);
    const auto parts = Components(feature_, "Parts");
    ASSERT_TRUE(parts);
    EXPECT_THAT(*parts, ElementsAre(first, nullptr, second, nullptr));
    EXPECT_EQ(KORBaseUnknown_var::Adopt(access_->GetComponent(Key("Parts"), 1)), KORBaseUnknown_var(first));
    EXPECT_EQ(access_->GetComponent(Key("Parts"), 2), nullptr);
    EXPECT_EQ(KORBaseUnknown_var::Adopt(access_->GetComponent(Key("Parts"), 4)), container);
    EXPECT_EQ(access_->GetComponent(Key("Parts"), 5), nullptr);
    EXPECT_EQ(access_->GetComponent(Key("Parts"), 0), nullptr);
    EXPECT_EQ(access_->GetComponent(Key("Parts"), -1), nullptr);
    access_->RemoveAllValues(Key("Parts"));
    EXPECT_THAT(Components(feature_, "Parts"), Optional(IsEmpty()));
}

TEST_P(ZELStoreContract, ReadsAKeyOfAnotherTypeOrKindAsNeverValued) {
    const auto other = Access(Make("OtherLT"));
    KORISpecAttrKey* factor = Key("Factor");
    KORISpecAttrKey* data = Key("Data");

    EXPECT_EQ(other->GetDouble(factor, 0), 0.0) << "OtherLT has no Factor";
    EXPECT_EQ(other->GetListOfDouble(data), nullptr) << "Data is a double there";
    EXPECT_EQ(other->GetDouble(data, 0), 2.5);
    EXPECT_EQ(access_->GetInteger(factor, 0), 0);
    EXPECT_FALSE(access_->GetBoolean(factor, 0));
    EXPECT_EQ(access_->GetString(factor, 0), "");
    EXPECT_EQ(access_->GetComponent(factor, 0), nullptr);
    EXPECT_EQ(access_->GetListOfComponents(data), nullptr);
    EXPECT_EQ(access_->GetListSize(factor), 0);
}

TEST_P(ZELStoreContract, IgnoresWritesWithAKeyOfAnotherTypeOrKind) {
    const auto otherFeature = Make("OtherLT");
    const auto other = Access(otherFeature);
    const auto part = KORBaseUnknown_var(Make("OtherLT"));

    other->SetDouble(Key("Factor"), 9.0, 0);
    other->SetListOfDouble(Key("Data"), ListOf({9.0}));
    access_->SetBoolean(Key("Factor"), true, 0);
    access_->SetInteger(Key("Factor"), 9, 0);
    access_->SetString(Key("Factor"), "nine", 0);
    access_->SetDouble(Key("Flag"), 0.0, 0);
    access_->SetComponent(Key("Parts"), part.Get(), 0);
    access_->AppendComponent(Key("Part"), part.Get());
    access_->RemoveAllValues(Key("Factor"));

    EXPECT_EQ(other->GetDouble(Key("Factor"), 0), 0.0);
    EXPECT_EQ(GetNumber(otherFeature, "Data"), 2.5);
    EXPECT_EQ(GetNumber(feature_, "Factor"), 1.5);
    EXPECT_TRUE(GetFlag(feature_, "Flag"));
    EXPECT_EQ(Components(feature_, "Parts"), std::nullopt);
    EXPECT_EQ(Component(feature_, "Part"), nullptr);
    EXPECT_EQ(part->References(), 2);
}

TEST_P(ZELStoreContract, KeepsAnAliasBesideTheName) {
    const KORIAlias_var alias = feature_;
    EXPECT_EQ(alias->GetAlias(), "");

    alias->SetAlias("Layup-1");

    EXPECT_EQ(alias->GetAlias(), "Layup-1");
    EXPECT_EQ(feature_->GetName(), "TestLT");
}

TEST_P(ZELStoreContract, InstantiatesFromTheCatalog) {
    KORICatalog_var catalog;
    ASSERT_EQ(
        AccessCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", Store().Container().Get(), catalog),
        S_OK);
    void* found = nullptr;
    ASSERT_EQ(catalog->RetrieveStartUp("TestLT", "KORISpecObject", &found), S_OK);
    const auto startUp = KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
    EXPECT_EQ(startUp->GetType(), "TestLT");
    EXPECT_EQ(startUp->GetFeatContainer(), nullptr);
    EXPECT_EQ(Store().LiveFeatures(), 1) << "a start-up is no feature";

    const auto made = KORISpecObject_var::Adopt(startUp->Instantiate("mine", Store().Container().Get()));

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetName(), "mine");
    EXPECT_EQ(made->GetType(), "TestLT");
    EXPECT_EQ(GetNumber(made, "Factor"), 1.5);
    EXPECT_EQ(References(made), 2);
    EXPECT_EQ(Store().LiveFeatures(), 2);
}

TEST_P(ZELStoreContract, RefusesWhatCannotBeInstantiated) {
    KORICatalog_var catalog;
    EXPECT_EQ(AccessCatalog("NoSuchCatalog.KORfct", "ZELMAR", Store().Container().Get(), catalog), E_FAIL);
    EXPECT_EQ(AccessCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", nullptr, catalog), E_FAIL);
    EXPECT_EQ(catalog, nullptr);
    ASSERT_EQ(
        AccessCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", Store().Container().Get(), catalog),
        S_OK);

    void* found = this;
    EXPECT_EQ(catalog->RetrieveStartUp("NoSuchLT", "KORISpecObject", &found), E_FAIL);
    EXPECT_EQ(found, nullptr);
    found = this;
    EXPECT_EQ(catalog->RetrieveStartUp("TestLT", "KORIContainer", &found), E_FAIL);
    EXPECT_EQ(found, nullptr);
    ASSERT_EQ(catalog->RetrieveStartUp("TestLT", "KORISpecObject", &found), S_OK);
    const auto startUp = KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
    EXPECT_EQ(startUp->Instantiate("mine", nullptr), nullptr);
    EXPECT_EQ(feature_->Instantiate("mine", Store().Container().Get()), nullptr) << "it is no start-up";
    EXPECT_EQ(Store().LiveFeatures(), 1);
}

TEST_P(ZELStoreContract, HasOneIdentityPerFeature) {
    const KORBaseUnknown_var identity = feature_;

    EXPECT_EQ(KORBaseUnknown_var(access_), identity);
    EXPECT_EQ(KORBaseUnknown_var(KORIAlias_var(access_)), identity);
    EXPECT_EQ(KORISpecObject_var(identity), feature_);
}

TEST_P(ZELStoreContract, RefusesInterfacesThatFeaturesDoNotHave) {
    void* found = this;

    EXPECT_EQ(feature_->QueryInterface(IID_KORIContainer, &found), E_NOINTERFACE);

    EXPECT_EQ(found, nullptr);
}

TEST_P(ZELStoreContract, LeavesHandlesSafeWhenTheStoreIsGone) {
    SetList(feature_, "Data", {1.0});
    Attach(feature_, "Part", feature_);
    const KORILinkableObject_var linkable = feature_;

    CloseStore();

    EXPECT_EQ(access_->GetListOfDouble(Key("Data")), nullptr);
    EXPECT_EQ(access_->GetSpecObject("Part", 0), nullptr);
    EXPECT_EQ(feature_->GetFeatContainer(), nullptr);
    EXPECT_EQ(linkable->GetDocument(), nullptr);
    EXPECT_EQ(References(feature_), 3) << "the three handles here";
}

ZEL_ON_BOTH_STORES(ZELStoreContract);
