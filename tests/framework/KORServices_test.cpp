#include "framework/KORServices.h"

#include <gtest/gtest.h>

#include "framework/KORError.h"
#include "framework/KORFatalError.h"

TEST(KORServices, HasACurrentTableAlways) {
    EXPECT_EQ(&KORServices::Current(), &KORServices::Current());
}

TEST(KORServicesScope, MakesATableTheCurrentOneAndRestoresTheOneBefore) {
    KORServices& before = KORServices::Current();
    KORServices outer;
    KORServices inner;
    {
        const KORServicesScope outerScope(outer);
        EXPECT_EQ(&KORServices::Current(), &outer);
        {
            const KORServicesScope innerScope(inner);
            EXPECT_EQ(&KORServices::Current(), &inner);
        }
        EXPECT_EQ(&KORServices::Current(), &outer);
    }
    EXPECT_EQ(&KORServices::Current(), &before);
}

TEST(KORServicesScope, KeepsTheErrorsOfTwoPlatformsApart) {
    KORServices first;
    KORServices second;
    HRESULT code = S_OK;
    {
        const KORServicesScope scope(first);
        code = KORError::GetReturn(2, nullptr, nullptr, "first platform", 7);
        KORFatalError("AssertionFailed:false", "first platform", 8);
    }
    {
        const KORServicesScope scope(second);
        EXPECT_EQ(KORError::Find(code), nullptr);
        EXPECT_TRUE(second.fatalReports.empty());
    }
    EXPECT_EQ(first.errors.Find(code)->line, 7);
    EXPECT_EQ(first.fatalReports.size(), 1u);
}
