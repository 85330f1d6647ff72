#include "ZELShared/ZELNameUtil.h"

#include <gtest/gtest.h>

#include "framework/KORImplements.h"
#include "interfaces/KORIAlias.h"
#include "interfaces/KORISpecObject.h"

namespace {

/// A feature with an instance name and perhaps an alias.
class Named final : public KORImplements<KORISpecObject, KORIAlias> {
public:
    Named(const char* name, const char* alias) : name_(name), alias_(alias) {}

    KORUnicodeString GetType() override { return "NamedLT"; }
    KORUnicodeString GetName() override { return name_; }
    KORBaseUnknown* GetFeatContainer() override { return nullptr; }
    KORISpecObject* Instantiate(const KORUnicodeString&, KORIContainer*) override { return nullptr; }
    void SetAlias(const KORUnicodeString& alias) override { alias_ = alias; }
    KORUnicodeString GetAlias() override { return alias_; }

private:
    KORUnicodeString name_;
    KORUnicodeString alias_;
};

KORBaseUnknown_var Make(const char* name, const char* alias) {
    return KORBaseUnknown_var::Adopt(new Named(name, alias));
}

KORListValKORBaseUnknown_var ListOf(std::initializer_list<KORBaseUnknown_var> objects) {
    KORListValKORBaseUnknown_var list;
    for (const auto& object : objects) list.Append(object);
    return list;
}

KORUnicodeString Next(const char* prefix, const KORListValKORBaseUnknown_var& existing) {
    KORUnicodeString name(prefix);
    EXPECT_EQ(ZELNameUtil::GetNextUniqueName(name, existing), S_OK);
    return name;
}

}  // namespace

TEST(ZELNameUtil, NumbersFromOne) {
    EXPECT_EQ(Next("Layup-", {}), "Layup-1");
    EXPECT_EQ(Next("Layup-", ListOf({Make("a", "Wing"), Make("b", "Layup-")})), "Layup-1");
}

TEST(ZELNameUtil, TakesTheSmallestFreeNumber) {
    const auto taken = ListOf({Make("a", "Layup-3"), Make("b", "Layup-1"), Make("c", "Layup-10")});

    EXPECT_EQ(Next("Layup-", taken), "Layup-2");
}

TEST(ZELNameUtil, GoesOnBehindTheLastOneWhenNoneIsFree) {
    const auto taken = ListOf({Make("a", "Layup-1"), Make("b", "Layup-2"), Make("c", "Layup-2")});

    EXPECT_EQ(Next("Layup-", taken), "Layup-3");
}

TEST(ZELNameUtil, JudgesByTheAliasAndByTheNameWhereThereIsNone) {
    EXPECT_EQ(Next("Layup-", ListOf({Make("Layup-1", "Wing")})), "Layup-1") << "the alias is the name";
    EXPECT_EQ(Next("Layup-", ListOf({Make("Layup-1", "")})), "Layup-2");
}

TEST(ZELNameUtil, DoesNotConfuseWhatOnlyLooksAlike) {
    const auto taken =
        ListOf({Make("a", "Layup-01"), Make("b", "layup-1"), Make("c", "Layup-1 "), Make("d", "Layup-11")});

    EXPECT_EQ(Next("Layup-", taken), "Layup-1");
}

TEST(ZELNameUtil, PassesObjectsWithoutANameOver) {
    const auto taken = ListOf({nullptr, KORBaseUnknown_var::Adopt(new KORBaseUnknown), Make("", "")});

    EXPECT_EQ(Next("Layup-", taken), "Layup-1");
}

TEST(ZELNameUtil, FailsForAnEmptyPrefixAndLeavesIt) {
    KORUnicodeString name;

    EXPECT_EQ(ZELNameUtil::GetNextUniqueName(name, {}), E_FAIL);

    EXPECT_EQ(name, "");
}

TEST(ZELNameUtil, FindsItsWayThroughTenThousandNames) {
    KORListValKORBaseUnknown_var taken;
    for (int i = 1; i <= 10000; ++i) taken.Append(Make("a", ("Layup-" + std::to_string(i)).c_str()));

    EXPECT_EQ(Next("Layup-", taken), "Layup-10001");
}

TEST(ZELNameUtil, LeavesNoReferenceBehind) {
    const auto object = Make("a", "Layup-1");

    Next("Layup-", ListOf({object}));

    EXPECT_EQ(object->References(), 1);
}
