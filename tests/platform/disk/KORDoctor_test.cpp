#include "platform/disk/KORDoctor.h"

#include "tests/platform/disk/KORDiskTest.h"

namespace {

using Kind = KORDoctorFinding::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

class KORDoctorTest : public KORDiskTest {
protected:
    void SetUp() override {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            const auto first = Material(made->Document(), "First");
            first->AppendComponent(others, Material(made->Document(), "Second").Get());
        });
        Save(*made);
    }

    /// "kind: text -> repair", each.
    std::vector<std::string> Findings() {
        static const char* const kKinds[] = {"integrity", "table",    "feature",
                                             "reference", "unlisted", "history"};
        KORFileError error;
        const auto findings = KORDoctor::Examine(Path(), error);
        if (!findings) return {error.Text()};
        std::vector<std::string> shown;
        for (const KORDoctorFinding& finding : *findings) {
            shown.push_back(std::string(kKinds[static_cast<int>(finding.kind)]) + ": " + finding.text +
                            " -> " + finding.repair);
        }
        return shown;
    }
};

TEST_F(KORDoctorTest, FindsNothingInASoundDocumentAndChangesNothing) {
    const std::string before = Content();
    EXPECT_THAT(Findings(), IsEmpty());
    EXPECT_EQ(before, Content());
}

TEST_F(KORDoctorTest, FindsAllThatIsWrongAtOnce) {
    Sql("DELETE FROM features WHERE number=2; UPDATE document SET last_feature=4;"
        "INSERT INTO features SELECT 3, type, NULL, NULL, NULL, x'' FROM features WHERE number=1;"
        "INSERT INTO features SELECT 4, 77, 5, NULL, NULL, x'FF' FROM features WHERE number=1;"
        "UPDATE names SET text='' WHERE id=1; UPDATE document SET pressure_unit='Elle'");
    EXPECT_THAT(
        Findings(),
        ElementsAre(
            "table: \"Elle\" is no unit of pressure -> no unit would be chosen",
            "table: row 1 of the table names is out of order -> nothing: what can still be read of the file "
            "is to be copied out with sqlite3's .recover",
            "feature: feature 4 is of a type without a name -> the feature would be removed",
            "reference: feature 4 lies in a container that is not there -> it would lie in the document's "
            "own",
            "feature: feature 4: its attributes cannot be taken apart -> those behind the place would go",
            "reference: feature 1 references feature 2, which is not there -> the reference would be emptied",
            "reference: step 1 references feature 2, which is not there -> this step and all older ones "
            "would "
            "be forgotten",
            "unlisted: feature 3 lies in no container and nothing leads to it -> it would go, as it does "
            "with "
            "the next change"));
}

TEST_F(KORDoctorTest, FindsStepsThatMakeNoSense) {
    Sql("UPDATE steps SET entries=x'0109'; INSERT INTO steps VALUES(9, '', '', '', '', 0, x'');");
    EXPECT_THAT(
        Findings(),
        ElementsAre(
            "history: step 1: its entries cannot be taken apart -> this step and all older ones would "
            "be forgotten",
            "history: step 9 has a number that its document never gave -> this step and all older "
            "ones would be forgotten"));
}

TEST_F(KORDoctorTest, FindsCountersThatAreGone) {
    Sql("DELETE FROM document");
    EXPECT_THAT(Findings(),
                testing::Contains("table: the table document has no row -> the counters would be made "
                                  "from the rows there are"));
}

TEST_F(KORDoctorTest, FindsWhatSqliteFindsBroken) {
    // The last page, that of the steps, begins with a count of cells that it does not have.
    std::string content = Content();
    content[content.size() - 4096 + 4] = '\x7F';
    Touch("d.zeldoc", content);
    const auto findings = Findings();
    ASSERT_FALSE(findings.empty());
    EXPECT_THAT(findings[0], testing::StartsWith("integrity: "));
}

TEST_F(KORDoctorTest, TellsWhyItCannotExamine) {
    Touch("d.zeldoc", "no document");
    EXPECT_THAT(Findings(), ElementsAre(Path() + ": is no document"));
}

}  // namespace
