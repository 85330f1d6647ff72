#include "framework/KORDictionary.h"

#include <gmock/gmock.h>

#include "tests/framework/KORTestParts.h"
#include "tests/support/ZELTestServices.h"

using testing::AllOf;
using testing::HasSubstr;

namespace {

class FirstClass final : public KORBaseUnknown {
    KORDeclareClass
};
KORImplementClass(FirstClass, KORClassKind::DataExtension, "DictionaryLT", "DictionaryModule");

class SecondClass final : public KORBaseUnknown {
    KORDeclareClass
};
KORImplementClass(SecondClass, KORClassKind::DataExtension, "DictionaryLT", "DictionaryModule");

class ComponentClass final : public KORBaseUnknown {
    KORDeclareClass
};
KORImplementClass(ComponentClass, KORClassKind::Component, "KORnull", "DictionaryModule");

KORIUnknown* NoBinding(KORBaseUnknown*, KORBaseUnknown*) {
    return nullptr;
}

const KORName* LateType() {
    return KORName::Intern("DictionaryLT");
}

}  // namespace

TEST(KORFillDictionary, IsFoundByLateTypeAndInterfaceWhileItLives) {
    const std::size_t before = KORFillDictionary::Count();
    {
        const int data = 0;
        const KORFillDictionary entry(FirstClass::MetaObject(), KORITestValue::MetaObject(), &NoBinding,
                                      &data, 1);

        EXPECT_EQ(KORFillDictionary::Find(LateType(), IID_KORITestValue), &entry);
        EXPECT_EQ(KORFillDictionary::Count(), before + 1);
        EXPECT_EQ(&entry.Implementation(), &FirstClass::MetaObject());
        EXPECT_EQ(&entry.Interface(), &KORITestValue::MetaObject());
        EXPECT_EQ(entry.Creator(), &NoBinding);
        EXPECT_EQ(entry.Data(), &data);
        EXPECT_EQ(entry.Flag(), 1);
    }
    EXPECT_EQ(KORFillDictionary::Find(LateType(), IID_KORITestValue), nullptr);
    EXPECT_EQ(KORFillDictionary::Count(), before);
}

TEST(KORFillDictionary, IsNotFoundUnderOtherTypesAndInterfaces) {
    const KORFillDictionary entry(FirstClass::MetaObject(), KORITestValue::MetaObject(), &NoBinding, nullptr,
                                  1);

    EXPECT_EQ(KORFillDictionary::Find(LateType(), IID_KORITestName), nullptr);
    EXPECT_EQ(KORFillDictionary::Find(KORName::Intern("KORITestValue"), IID_KORITestValue), nullptr);
    EXPECT_EQ(
        KORFillDictionary::Find(KORName::Intern("a type named after everything else"), IID_KORITestValue),
        nullptr);
    EXPECT_EQ(KORFillDictionary::Find(LateType(), KORName::Intern("an interface named after all others")),
              nullptr);
    EXPECT_EQ(KORFillDictionary::Find(nullptr, IID_KORITestValue), nullptr);
}

TEST(KORFillDictionary, KeepsComponentsUnderTheirOwnName) {
    const KORFillDictionary entry(ComponentClass::MetaObject(), KORITestValue::MetaObject(), &NoBinding,
                                  nullptr, 1);

    EXPECT_EQ(KORFillDictionary::Find(KORName::Intern("ComponentClass"), IID_KORITestValue), &entry);
    EXPECT_EQ(KORFillDictionary::Find(KORName::Intern("KORnull"), IID_KORITestValue), nullptr);
}

TEST(KORFillDictionary, LetsTwoClassesShareALateTypeByInterface) {
    const ZELTestServices services;
    const KORFillDictionary first(FirstClass::MetaObject(), KORITestValue::MetaObject(), &NoBinding, nullptr,
                                  1);
    const KORFillDictionary second(SecondClass::MetaObject(), KORITestName::MetaObject(), &NoBinding, nullptr,
                                   1);

    EXPECT_EQ(KORFillDictionary::Find(LateType(), IID_KORITestValue), &first);
    EXPECT_EQ(KORFillDictionary::Find(LateType(), IID_KORITestName), &second);
    EXPECT_TRUE(services.FatalReports().empty());
}

TEST(KORFillDictionary, RefusesASecondEntryAndNamesBothClasses) {
    const ZELTestServices services;
    const std::size_t before = KORFillDictionary::Count();
    const KORFillDictionary first(FirstClass::MetaObject(), KORITestValue::MetaObject(), &NoBinding, nullptr,
                                  1);
    {
        const KORFillDictionary second(SecondClass::MetaObject(), KORITestValue::MetaObject(), &NoBinding,
                                       nullptr, 1);

        EXPECT_EQ(KORFillDictionary::Find(LateType(), IID_KORITestValue), &first);
        EXPECT_EQ(KORFillDictionary::Count(), before + 1);
        ASSERT_EQ(services.FatalReports().size(), 1u);
        EXPECT_THAT(std::string(services.FatalReports()[0].text.View()),
                    AllOf(HasSubstr("FirstClass"), HasSubstr("SecondClass"), HasSubstr("KORITestValue"),
                          HasSubstr("DictionaryLT")));
    }
    EXPECT_EQ(KORFillDictionary::Find(LateType(), IID_KORITestValue), &first)
        << "the refused entry takes nothing away when it goes";
    EXPECT_EQ(KORFillDictionary::Count(), before + 1);
}
