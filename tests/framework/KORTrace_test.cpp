#include "framework/KORTrace.h"

#include <gmock/gmock.h>

#include <memory>

using testing::ElementsAre;

TEST(KORTrace, IsDescribedByWhatItWasMadeOf) {
    const KORTrace trace("TestTrace", "Traces for a test", 1, "STDERR", 1024);

    EXPECT_EQ(trace.Name(), "TestTrace");
    EXPECT_EQ(trace.Description(), "Traces for a test");
    EXPECT_EQ(trace.Mode(), 1);
    EXPECT_EQ(trace.Output(), "STDERR");
    EXPECT_EQ(trace.Size(), 1024u);
}

TEST(KORTrace, IsKnownFromConstructionToDestruction) {
    const std::size_t before = KORTrace::Channels().size();
    auto first = std::make_unique<KORTrace>("First", "", 1, "STDERR", 1u);
    const KORTrace second("Second", "", 1, "STDERR", 1);
    ASSERT_EQ(KORTrace::Channels().size(), before + 2);
    EXPECT_EQ(KORTrace::Channels()[before], first.get());
    EXPECT_EQ(KORTrace::Channels()[before + 1], &second);

    first.reset();

    ASSERT_EQ(KORTrace::Channels().size(), before + 1);
    EXPECT_EQ(KORTrace::Channels()[before], &second);
}
