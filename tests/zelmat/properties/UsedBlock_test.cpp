#include "zelmat/properties/UsedBlock.h"
#include "tests/zelmat/properties/SampleCard.h"

namespace {

using testing::EndsWith;

TEST(UsedBlock, IsInTheStoredMeaningAndTellsTheConversion) {
    const auto rubber = SampleCard("natural_rubber_treloar");
    zelmat::Findings findings;
    const auto block = zelmat::UsedBlock(rubber, "hyperelastic", findings);

    ASSERT_TRUE(block.has_value());
    EXPECT_NEAR(block->tables.front().columns.front().values.front(), 409500.0, 1e-6);
    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All().front().code, "ogden-converted");
    EXPECT_EQ(zelmat::FitsOf(rubber).size(), rubber.fits.size());
}

TEST(UsedBlock, NamesTheBlocksThatThereAreInsteadOfAMissingOne) {
    zelmat::Findings findings;
    EXPECT_FALSE(zelmat::UsedBlock(SampleCard("copper_ofhc"), "gasket", findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_THAT(
        zelmat::FindingLine(findings.All().front()),
        EndsWith("copper_ofhc.json: error[no-such-block]: 'OFHC copper' has no block 'gasket' (it has "
                 "elastic, plastic, density, conductivity, specific_heat)"));
}

TEST(UsedBlock, IsNotOneThatIsSwitchedOff) {
    auto copper = SampleCard("copper_ofhc");
    copper.blocks.front().enabled = false;
    zelmat::Findings findings;
    EXPECT_FALSE(zelmat::UsedBlock(copper, "elastic", findings));

    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All().front().code, "switched-off");
    EXPECT_EQ(findings.All().front().text, "elastic of 'OFHC copper' is switched off");
}

}  // namespace
