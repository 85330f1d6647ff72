#include "zelmat/cards/CsvCardReader.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;

TEST(CsvCardReader, TellsTheBlockOfATableByItsColumns) {
    const auto card = CardOf(
        "\xef\xbb\xbf# steel\r\nYoungsModulus [GPa],PoissonRatio [-],Temperature [degC]\r\n"
        "210,0.3,20 # room\r\n\r\n189,0.3,200\r\n");

    EXPECT_EQ(card.name, "card");  // the file's
    ASSERT_TRUE(card.Find("elastic"));
    EXPECT_THAT(Rows(card.Find("elastic")->tables[0]),
                ElementsAre(ElementsAre(210e9, 0.3, 293.15), ElementsAre(189e9, 0.3, 473.15)));
    EXPECT_EQ(card.Find("elastic")->tables[0].origin.Line(1), 5);
}

TEST(CsvCardReader, ReadsSectionsWithSemicolonsAndTabs) {
    const auto card = CardOf(
        "[material]\nname = S235\nsource = EN 1993\n[plastic]\nhardening = isotropic\n"
        "temperature_dependent = false\nyield_stress [MPa];plastic_strain;T [degC]\n"
        "235;0;20\n[density]\ndensity [kg/m3]\ttemperature [K]\n7850\t293.15\n");

    EXPECT_EQ(card.name, "S235");
    EXPECT_THAT(card.sources, ElementsAre("EN 1993"));
    EXPECT_THAT(Rows(card.Find("plastic")->tables[0]), ElementsAre(ElementsAre(235e6, 0.0, 293.15)));
    EXPECT_FALSE(card.Find("plastic")->tables[0].temperatureDependent);
    EXPECT_THAT(Rows(card.Find("density")->tables[0]), ElementsAre(ElementsAre(7850.0, 293.15)));
}

TEST(CsvCardReader, ReadsADecimalCommaOnlyWhenAsked) {
    const CardFile file("density [g/cm^3];T [degC]\n7,85;20\n");
    zelmat::Findings refused;
    EXPECT_FALSE(zelmat::ReadCard(file.Path(), refused));
    EXPECT_EQ(
        file.Shorten(zelmat::FindingLine(refused.All().at(0))),
        "card.json:2: error[not-a-number]: '7,85' has a comma in its number; the decimal sign is a point "
        "(--decimal-comma reads decimal commas)");

    zelmat::Findings findings;
    const auto cards = zelmat::ReadCards(file.Path(), findings, {.decimalComma = true});
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_THAT(Rows(cards[0].Find("density")->tables[0]), ElementsAre(ElementsAre(7850.0, 293.15)));
}

TEST(CsvCardReader, NamesTheLineOfEveryMistake) {
    EXPECT_THAT(
        FindingsOf("[density]\ndensity,temperature\n1\n1,x\n[density]\n[elastic]\nkind = 1\nkind = 2\n"
                   "\"open\n"),
        ElementsAre("card.json:3: error[ragged-row]: the row has 1 values (expected 2, as the header has)",
                    "card.json:4: error[not-a-number]: 'x' does not begin with a number",
                    "card.json:5: error[repeated-section]: the section 'density' is there twice",
                    "card.json:8: error[repeated-key]: the key 'kind' is there twice",
                    "card.json:9: error[open-quote]: a double quote is not closed"));
    EXPECT_THAT(
        FindingsOf("colour,taste\n1,2\n"),
        ElementsAre(
            "card.json:1: error[unknown-table]: no table has just the columns 'colour', 'taste' (give the "
            "table a section, such as [elastic])"));
}

TEST(CsvCardReader, RefusesBytesThatAreNoText) {
    EXPECT_THAT(FindingsOf("[density]\n\xff\xfe\n"),
                ElementsAre("card.json:2: error[not-utf8]: the text is not UTF-8 from here (byte 11)"));
    EXPECT_THAT(FindingsOf(std::string("[density]\nden\0sity\n", 18)),
                ElementsAre("card.json:2: error[no-text]: the line holds a NUL byte"));
}

TEST(CsvCardReader, TellsASectionThatStandsInTheWayOfAnother) {
    EXPECT_THAT(FindingsOf("[material]\ndensity = 5\n[density]\ndensity\n1\n"),
                ElementsAre("card.json:3: error[repeated-section]: the section 'density' is there twice"));
    EXPECT_THAT(
        FindingsOf("[gasket]\nloading = 3\n[gasket.loading]\npressure\n1\n"),
        ElementsAre("card.json:3: error[repeated-section]: the section 'gasket.loading' is there twice"));
    EXPECT_THAT(FindingsOf("density = 5\ndensity,temperature\n1,2\n"),
                ElementsAre("card.json:2: error[repeated-section]: there is a second table of density"));
    EXPECT_FALSE(FindingsOf("[hyperelastic.x]\nyield = 1\n").empty());
    EXPECT_FALSE(FindingsOf("[.]\na,b\n[a.]\n1\n").empty());
}

TEST(CsvCardReader, WantsTheUnitOfEveryColumnThatHasOne) {
    EXPECT_THAT(FindingsOf("E,nu,T [degC]\n210,0.3,20\n"),
                testing::ElementsAre(testing::HasSubstr("card.json:1: error[no-unit]: the column \"E\" has "
                                                        "no unit (expected E [Pa], units that do: Pa, ")));
    EXPECT_THAT(FindingsOf("[elastic]\n\nE [GPa],nu,T\n210,0.3,20\n"),
                testing::ElementsAre(testing::HasSubstr(
                    "card.json:3: error[no-unit]: the column \"T\" has no unit (expected T [K], ")));
    // The card may name it for all of its tables.
    EXPECT_THAT(FindingsOf("[units]\nstress = MPa\ntemperature = degC\n[elastic]\nE,nu,T\n210000,0.3,20\n"),
                testing::IsEmpty());
}

TEST(CsvCardReader, NamesTheColumnsOfATableThatThereIsNot) {
    EXPECT_THAT(FindingsOf("E [GPa],,nu,mood\n1,1,0.3,2\n"),
                testing::Contains(testing::HasSubstr(
                    "error[unknown-table]: no table has just the columns 'E', '', 'nu', 'mood'")));
}

TEST(CsvCardReader, TakesBlocksUnderTheNamesOfTheFieldAndTheLineThatSpreadsheetsWrite) {
    EXPECT_THAT(Rows(CardOf("sep=;\n[Elasticity]\nE [GPa];nu\n210;0.3\n").Find("elastic")->tables.front()),
                testing::ElementsAre(testing::ElementsAre(210e9, 0.3)));
    EXPECT_THAT(Rows(CardOf("[Elastic]\nE [GPa],nu\n210,0.3\n").Find("elastic")->tables.front()),
                testing::ElementsAre(testing::ElementsAre(210e9, 0.3)));
}

TEST(CsvCardReader, PassesOverTheEmptyColumnsThatSpreadsheetsAdd) {
    for (const char* text :
         {"E [GPa],nu,,\n210,0.3,,\n200,0.28\n", "E [GPa]\tnu\t\n210\t0.3\t\n200\t0.28\t\n"}) {
        EXPECT_THAT(Rows(CardOf(text).Find("elastic")->tables[0]),
                    ElementsAre(ElementsAre(210e9, 0.3), ElementsAre(200e9, 0.28)))
            << text;
    }
    EXPECT_THAT(FindingsOf("E [GPa],nu,\n210,0.3,5\n"),
                ElementsAre("card.json:2: error[ragged-row]: the row has 3 values (expected 2, as the header "
                            "has)"));
}

TEST(CsvCardReader, NamesAColumnThatIsThereTwice) {
    EXPECT_THAT(
        FindingsOf("E [GPa],YoungsModulus [MPa],nu\n210,210000,0.3\n"),
        ElementsAre("card.json:1: error[repeated-column]: the column 'YoungsModulus' is there twice"));
}

TEST(CsvCardReader, SaysThatTheQuoteOfAValueIsOpen) {
    EXPECT_THAT(FindingsOf("[material]\nname = \"Steel\n[elastic]\nE [GPa],nu\n210,0.3\n"),
                ElementsAre("card.json:2: error[open-quote]: a double quote is not closed (a text in double "
                            "quotes is as in JSON, all on one line)"));
}

TEST(CsvCardReader, SaysThatAQuoteIsOpen) {
    EXPECT_THAT(FindingsOf("\"E [GPa],nu\n210,0.3\n").front(),
                testing::HasSubstr("card.json:1: error[open-quote]"));
}

TEST(ReadCards, SayWhatUtf16Is) {
    EXPECT_THAT(FindingsOf(std::string("\xff\xfe{\0}\0", 6)),
                testing::ElementsAre("card.json:1: error[not-utf8]: the text is UTF-16 (save it as UTF-8)"));
    EXPECT_THAT(FindingsOf(std::string("\xfe\xff\0{\0}", 6)),
                testing::ElementsAre("card.json:1: error[not-utf8]: the text is UTF-16 (save it as UTF-8)"));
}

}  // namespace
