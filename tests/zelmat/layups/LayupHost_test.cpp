#include "zelmat/layups/LayupHost.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CatalogFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zelmat::LayupHost;
using zelmat::StoredLayer;

zelmat::LayupCard TwoPlies() {
    zelmat::LayupCard card;
    card.file = "card.json";
    card.name = "Two plies";
    card.materials = {{"Carbon", {}, {}}, {"Glass", {}, {}}};
    card.layers = {{.material = "Carbon", .thickness = 0.001, .angle = 0.0},
                   {.material = "Glass", .thickness = 0.002, .angle = -45.0}};
    return card;
}

TEST(LayupHost, GivesBackWhatItWasGiven) {
    zelmat::Findings findings;
    LayupHost host(CatalogFolderOfTheModule());

    ASSERT_TRUE(host.Make(TwoPlies(), findings));
    const auto stored = host.Read();

    ASSERT_TRUE(stored);
    EXPECT_THAT(findings.All(), IsEmpty());
    EXPECT_EQ(stored->name, "Layup-1");
    EXPECT_THAT(stored->layers,
                ElementsAre(StoredLayer{"Carbon", 0.001, 0.0}, StoredLayer{"Glass", 0.002, -45.0}));
    EXPECT_TRUE(stored->valid);
    EXPECT_EQ(stored->verdict, S_OK);
    EXPECT_TRUE(stored->unused);
}

TEST(LayupHost, TellsALayupThatCannotBeUsed) {
    zelmat::Findings findings;
    zelmat::LayupCard card = TwoPlies();
    card.layers[1].material.reset();
    LayupHost host(CatalogFolderOfTheModule());

    ASSERT_TRUE(host.Make(card, findings));
    const auto stored = host.Read();

    ASSERT_TRUE(stored);
    EXPECT_FALSE(stored->valid);
    EXPECT_EQ(stored->verdict, E_FAIL);
    EXPECT_EQ(stored->layers[1].material, std::nullopt);
}

TEST(LayupHost, KnowsWhetherACompositeSectionUsesTheLayup) {
    zelmat::Findings findings;
    LayupHost host(CatalogFolderOfTheModule());
    ASSERT_TRUE(host.Make(TwoPlies(), findings));

    EXPECT_TRUE(host.AddSection(0));
    EXPECT_TRUE(host.Read()->unused) << "a homogeneous section";
    EXPECT_TRUE(host.AddSection(1));
    EXPECT_FALSE(host.Read()->unused);
}

TEST(LayupHost, HasNothingToReadAndNoPlaceForASectionBeforeALayupIsMade) {
    LayupHost host(CatalogFolderOfTheModule());

    EXPECT_FALSE(host.AddSection(1));
    EXPECT_EQ(host.Read(), std::nullopt);
}

TEST(LayupHost, TakesTenThousandLayers) {
    zelmat::Findings findings;
    zelmat::LayupCard card = TwoPlies();
    card.layers.assign(10000, card.layers[1]);
    LayupHost host(CatalogFolderOfTheModule());

    ASSERT_TRUE(host.Make(card, findings));
    const auto stored = host.Read();

    ASSERT_TRUE(stored);
    EXPECT_THAT(stored->layers, SizeIs(10000));
    EXPECT_EQ(stored->layers.back(), (StoredLayer{"Glass", 0.002, -45.0}));
    EXPECT_TRUE(stored->valid);
}

TEST(LayupHost, ReportsACatalogThatCannotBeRead) {
    zelmat::Findings findings;
    LayupHost host("/nowhere");

    EXPECT_FALSE(host.Make(TwoPlies(), findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All()[0].code, "bad-catalog");
    EXPECT_EQ(findings.Exit(), zelmat::EXIT_UNREADABLE);
}

TEST(LayupHost, ReportsACatalogThatLacksWhatLayupsNeed) {
    for (const char* name : {"\"ZELLayupLT\"", "\"ZELLayupLayerLT\"", "\"LayerList\"", "\"UserMaterial\"",
                             "\"Thickness\"", "\"OrientationAngle\""}) {
        const CatalogFolder folder(name, "\"Other\"");
        zelmat::Findings findings;
        LayupHost host(folder.Path());

        EXPECT_FALSE(host.Make(TwoPlies(), findings)) << name;

        ASSERT_EQ(findings.All().size(), 1u) << name;
        EXPECT_EQ(findings.All()[0].text, "the layup Two plies cannot be made from it") << name;
        EXPECT_THAT(findings.All()[0].details, ElementsAre("status 0x80004005"));
    }
}

}  // namespace
