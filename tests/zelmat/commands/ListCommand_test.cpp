#include <gmock/gmock.h>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::HasSubstr;
using ListCommand = DocumentFolder;

TEST_F(ListCommand, HasALineForEachMaterial) {
    const std::string document = DocumentOf({"copper_ofhc.json", "natural_rubber_treloar.json"});
    const std::string out = Run({"list", document});

    EXPECT_THAT(out, HasSubstr("1  OFHC copper"));
    EXPECT_THAT(out,
                HasSubstr("density 1, thermal_expansion 1, conductivity 1, specific_heat 1, hyperelastic 1"));
    EXPECT_THAT(out, HasSubstr("10 fits, test_data"));
    EXPECT_THAT(out, HasSubstr("materials: 2"));
}

}  // namespace
