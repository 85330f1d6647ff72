#include "framework/KORMetaClass.h"

#include <gtest/gtest.h>

#include "tests/framework/KORTestParts.h"

namespace {

class DataClass final : public KORBaseUnknown {
    KORDeclareClass
};
KORImplementClass(DataClass, KORClassKind::DataExtension, "MetaLT", "MetaModule");

class ComponentClass final : public KORBaseUnknown {
    KORDeclareClass
};
KORImplementClass(ComponentClass, KORClassKind::Component, "KORnull", "MetaModule");

}  // namespace

TEST(KORMetaClass, DescribesARegisteredClass) {
    EXPECT_STREQ(DataClass::ClassName(), "DataClass");
    EXPECT_EQ(DataClass::ClassId(), KORName::Intern("DataClass"));
    const KORMetaClass& record = DataClass::MetaObject();
    EXPECT_EQ(record.Kind(), KORClassKind::DataExtension);
    EXPECT_EQ(record.LateType()->Text(), "MetaLT");
    EXPECT_EQ(record.Base(), &KORBaseUnknown::MetaObject());
    EXPECT_STREQ(record.Module().Name(), "MetaModule");
}

TEST(KORMetaClass, HasTheKindsOfThePlatform) {
    EXPECT_EQ(static_cast<int>(KORClassKind::Component), 1);
    EXPECT_EQ(static_cast<int>(KORClassKind::DataExtension), 2);
    EXPECT_EQ(static_cast<int>(KORClassKind::CodeExtension), 3);
    EXPECT_EQ(static_cast<int>(KORClassKind::TIE), 6);
}

TEST(KORMetaClass, IsMadeOnceForAClass) {
    const std::size_t before = DataClass::MetaObject().Module().Records();

    const KORMetaClass& again = fct_RetrieveMetaObject("DataClass", KORClassKind::DataExtension,
                                                       KORBaseUnknown::MetaObject(), "MetaLT", "MetaModule");

    EXPECT_EQ(&again, &DataClass::MetaObject());
    EXPECT_EQ(KORModule::Of("MetaModule").Records(), before);
}

TEST(KORMetaClass, AnswersToTheNamesOfTheClassAndOfItsBases) {
    const auto object = KORVar<DataClass>::Adopt(new DataClass);

    EXPECT_STREQ(object->IsA(), "DataClass");
    EXPECT_EQ(&object->GetMetaObject(), &DataClass::MetaObject());
    EXPECT_TRUE(object->IsAKindOf("DataClass"));
    EXPECT_TRUE(object->IsAKindOf("KORBaseUnknown"));
    EXPECT_FALSE(object->IsAKindOf("ComponentClass"));
    EXPECT_FALSE(object->IsAKindOf("dataclass"));
    EXPECT_FALSE(object->IsAKindOf(""));
}

TEST(KORMetaClass, IsTheRootsForAPlainObject) {
    const auto feature = MakeTestFeature("PlainLT");

    EXPECT_STREQ(feature->IsA(), "KORBaseUnknown");
    EXPECT_EQ(KORBaseUnknown::MetaObject().Kind(), KORClassKind::Root);
    EXPECT_EQ(KORBaseUnknown::MetaObject().Base(), nullptr);
}

TEST(KORMetaClass, IsKeptUnderTheLateTypeOrTheComponentsOwnName) {
    EXPECT_EQ(DataClass::MetaObject().DictionaryName()->Text(), "MetaLT");
    EXPECT_EQ(ComponentClass::MetaObject().DictionaryName()->Text(), "ComponentClass");
    EXPECT_EQ(ComponentClass::MetaObject().LateType()->Text(), "KORnull");
}

TEST(KORMetaClass, OfAnInterfaceBelongsToTheInterfaceAlone) {
    const KORMetaClass& record = KORITestValue::MetaObject();

    EXPECT_EQ(record.Kind(), KORClassKind::Interface);
    EXPECT_STREQ(record.ClassName(), "KORITestValue");
    EXPECT_EQ(record.ClassId(), KORITestValue::Iid());
    EXPECT_EQ(&record, &KORITestValue::MetaObject());
    EXPECT_NE(&record, &KORITestName::MetaObject());
}
