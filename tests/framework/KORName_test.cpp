#include "framework/KORName.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

TEST(KORName, IsTheSameObjectForTheSameText) {
    const std::string text = "YoungData";

    EXPECT_EQ(KORName::Intern("YoungData"), KORName::Intern(text));
    EXPECT_NE(KORName::Intern("YoungData"), KORName::Intern("PoissonData"));
    EXPECT_NE(KORName::Intern("YoungData"), KORName::Intern("youngData"));
}

TEST(KORName, KeepsItsTextWhenTheCallersIsGone) {
    const KORName* name = nullptr;
    {
        std::string text = "DensityData and more";
        name = KORName::Intern(std::string_view(text).substr(0, 11));
        text.assign(20, '*');
    }

    EXPECT_EQ(name->Text(), "DensityData");
    EXPECT_STREQ(name->c_str(), "DensityData");
}

TEST(KORName, TakesTheEmptyTextForAName) {
    EXPECT_EQ(KORName::Intern(""), KORName::Intern(std::string_view()));
    EXPECT_EQ(KORName::Intern("")->Text(), "");
}

TEST(KORName, IsFoundOnlyOnceItWasInterned) {
    EXPECT_EQ(KORName::Find("a name that nobody interned"), nullptr);

    const KORName* name = KORName::Intern("a name that somebody interned");

    EXPECT_EQ(KORName::Find("a name that somebody interned"), name);
    EXPECT_EQ(KORName::Find("a name that nobody interned"), nullptr) << "asking does not intern";
}

TEST(KORName, IsFoundByWhatStandsThereAndNotByWhereItStands) {
    const KORName* one = KORName::Intern("text one");
    const KORName* two = KORName::Intern("text two");
    char text[] = "text one";

    EXPECT_EQ(KORName::Find(static_cast<const char*>(text)), one);
    text[5] = 't', text[6] = 'w', text[7] = 'o';
    EXPECT_EQ(KORName::Find(static_cast<const char*>(text)), two);
    text[4] = '\0';
    EXPECT_EQ(KORName::Find(static_cast<const char*>(text)), nullptr);
}

TEST(KORName, IsFoundByAConstantsLengthAndNotUpToItsFirstZero) {
    const KORName* whole = KORName::Intern("constant text");
    const KORName* part = KORName::Intern("constant");
    constexpr std::string_view kText = "constant text";

    EXPECT_EQ(KORName::FindConstant(kText), whole);
    EXPECT_EQ(KORName::FindConstant(kText), whole);
    EXPECT_EQ(KORName::FindConstant(kText.substr(0, 8)), part);
    EXPECT_EQ(KORName::FindConstant(std::string_view("constant\0text", 13)), nullptr);
    EXPECT_EQ(KORName::FindConstant("a constant that nobody interned"), nullptr);
}

TEST(KORName, IsTheEmptyOneForNoText) {
    const char* const none = nullptr;
    EXPECT_EQ(KORName::Find(none), KORName::Find(std::string_view()));

    const KORName* empty = KORName::Intern("");

    EXPECT_EQ(KORName::Find(none), empty);
    EXPECT_EQ(KORName::Find(none), empty) << "also when asked again";
    EXPECT_EQ(KORName::Find(""), empty);
}

TEST(KORName, IsNumberedInOrderOfFirstUse) {
    const std::uint32_t first = KORName::Intern("numbered first")->Number();

    EXPECT_EQ(KORName::Intern("numbered second")->Number(), first + 1);
    EXPECT_EQ(KORName::Intern("numbered first")->Number(), first);
    EXPECT_EQ(KORName::Intern("numbered third")->Number(), first + 2);
}

TEST(KORName, StaysTheSameObjectHoweverManyNamesComeAfterIt) {
    const KORName* early = KORName::Intern("early");
    std::vector<const KORName*> names;
    for (int i = 0; i < 5000; ++i) names.push_back(KORName::Intern("name " + std::to_string(i)));

    EXPECT_EQ(KORName::Find("early"), early);
    for (int i = 0; i < 5000; ++i) {
        ASSERT_EQ(KORName::Find("name " + std::to_string(i)), names[static_cast<std::size_t>(i)]);
        ASSERT_EQ(names[static_cast<std::size_t>(i)]->Text(), "name " + std::to_string(i));
    }
}

TEST(KORName, CountsWhatWasHandedOut) {
    const KORName* name = KORName::Intern("counted");
    EXPECT_EQ(name->References(), 0);

    name->AddRef();
    name->AddRef();
    EXPECT_EQ(name->References(), 2);

    name->Release();
    name->Release();
    EXPECT_EQ(name->References(), 0);
    EXPECT_EQ(KORName::Find("counted"), name) << "the count keeps nothing alive";
}
