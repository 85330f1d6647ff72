#include <gmock/gmock.h>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::HasSubstr;
using NewOfDocument = DocumentFolder;

TEST_F(NewOfDocument, MakesAnEmptyDocument) {
    EXPECT_EQ(Run({"new", Path("a.zeldoc")}), "made: a.zeldoc\n");
    EXPECT_EQ(Run({"list", Path("a.zeldoc")}), "materials: 0\n");
}

TEST_F(NewOfDocument, RefusesAFileThatIsThere) {
    const std::string document = DocumentOf({"copper_ofhc.json"});
    const std::string before = Contents(document);

    EXPECT_THAT(Refusal(3, {"new", document}), HasSubstr("a.zeldoc: error[not-made]"));
    EXPECT_TRUE(Contents(document) == before);
    EXPECT_THAT(Refusal(3, {"new", Path("none/a.zeldoc")}), HasSubstr("error[not-made]"));
}

TEST_F(NewOfDocument, WantsADocumentOrACardAndNotBoth) {
    EXPECT_THAT(Refusal(2, {"new"}), HasSubstr("error[usage]"));
    EXPECT_THAT(Refusal(2, {"new", Path("a.zeldoc"), "--card", "A"}), HasSubstr("error[usage]"));
}

}  // namespace
