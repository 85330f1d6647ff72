#include "platform/store/KORUndoEntries.h"

#include <gtest/gtest.h>

#include "tests/platform/KORTestDocument.h"

namespace {

class KORUndoEntriesTest : public KORTestDocument {
protected:
    const KORVar<KORFeature> feature = NewFeature();
    const std::int32_t handles = feature->References();
    KORUndoEntries entries;

    /// Entries of the numbers 0, 1, 2 ... in slots 1, 2, 1, 2 ...
    void Fill(int amount) {
        for (int i = 0; i < amount; ++i) {
            entries.Append(*feature, static_cast<KORSlot>(1 + i % 2),
                           KORValue::OfListOfDoubles(KORNumbers({1.0 * i})));
        }
    }
};

TEST_F(KORUndoEntriesTest, KeepWhatTheyHoldWhileTheyGrow) {
    Fill(1000);

    ASSERT_EQ(1000u, entries.size());
    for (std::size_t i = 0; i < 1000; ++i) {
        EXPECT_EQ(feature, entries[i].feature);
        EXPECT_EQ(i % 2 == 0 ? 1 : 2, entries[i].Slot());
        EXPECT_EQ(static_cast<double>(i), entries[i].other.ListOfDoubles()[1]);
    }
    EXPECT_EQ(handles + 1000, feature->References());
}

TEST_F(KORUndoEntriesTest, HandAllOverAndAreEmptyThen) {
    Fill(100);

    KORUndoEntries all = entries.TakeAll();

    EXPECT_TRUE(entries.empty());
    EXPECT_TRUE(entries.TakeAll().empty());
    EXPECT_EQ(100u, all.size());
    EXPECT_EQ(99.0, all[99].other.ListOfDoubles()[1]);
    EXPECT_EQ(handles + 100, feature->References());
    Fill(3);
    EXPECT_EQ(3u, entries.size());
    EXPECT_EQ(0.0, all[0].other.ListOfDoubles()[1]) << "the room is used again, not what was handed over";
    all = KORUndoEntries();
    entries.Clear();
    EXPECT_EQ(handles, feature->References());
}

// Many are handed over with their block, and not copied.
TEST_F(KORUndoEntriesTest, HandVeryManyOverAndAreEmptyThen) {
    for (int turn = 0; turn < 2; ++turn) {
        Fill(1000);

        KORUndoEntries all = entries.TakeAll();

        EXPECT_TRUE(entries.empty());
        ASSERT_EQ(1000u, all.size());
        Fill(20);
        EXPECT_EQ(20u, entries.size());
        EXPECT_EQ(0.0, all[0].other.ListOfDoubles()[1]);
        EXPECT_EQ(999.0, all[999].other.ListOfDoubles()[1]);
        EXPECT_EQ(handles + 1020, feature->References());
        entries.Clear();
    }
    EXPECT_EQ(handles, feature->References());
}

TEST_F(KORUndoEntriesTest, GiveTheLastOneOut) {
    Fill(2);

    const KORUndoEntry last = entries.TakeLast();

    EXPECT_EQ(1.0, last.other.ListOfDoubles()[1]);
    EXPECT_EQ(2, last.Slot());
    EXPECT_EQ(1u, entries.size());
    EXPECT_EQ(handles + 2, feature->References());
}

TEST_F(KORUndoEntriesTest, KeepTheirSlotWhenTheirValueIsExchanged) {
    entries.Append(*feature, 0x8001, KORValue::OfDouble(1.0));
    entries.begin()->other.SetStamp(0xFFFFFFFF);
    EXPECT_EQ(0x8001, entries[0].Slot());

    entries.begin()->other = KORValue::OfListOfDoubles(KORNumbers({2.0}));

    EXPECT_EQ(0x8001, entries[0].Slot());
    EXPECT_EQ(2.0, entries[0].other.ListOfDoubles()[1]);
    entries.begin()->other.SetStamp(0);
    EXPECT_EQ(0x8001, entries[0].Slot());
    EXPECT_EQ(KORAttributeKind::ListOfDoubles, entries[0].other.Kind());
    EXPECT_EQ(KORValueState::Valued, entries[0].other.State());
}

}  // namespace
