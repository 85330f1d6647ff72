#include "zelmat/text/TablePrinter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string Printed(const zelmat::TablePrinter& table) {
    std::ostringstream out;
    table.Print(out);
    return out.str();
}

TEST(TablePrinter, SetsEveryColumnFlushRightUnderItsHeader) {
    zelmat::TablePrinter table({"density [kg/m3]", "T [K]"});
    table.AddRow({"7850", "293.15"});
    table.AddRow({"7700.5", "9"});

    EXPECT_EQ(Printed(table),
              "  density [kg/m3]   T [K]\n"
              "             7850  293.15\n"
              "           7700.5       9\n");
}

TEST(TablePrinter, PrintsTheHeaderOfATableWithoutRows) {
    EXPECT_EQ(Printed(zelmat::TablePrinter({"a", "b"})), "  a  b\n");
}

TEST(TablePrinter, CountsCharactersNotBytes) {
    zelmat::TablePrinter table({"σ [µPa]"});
    table.AddRow({"1234567"});
    table.AddRow({"12345678"});

    EXPECT_EQ(zelmat::TextWidth("σ [µPa]"), 7u);
    EXPECT_EQ(Printed(table),
              "   σ [µPa]\n"
              "   1234567\n"
              "  12345678\n");
}

TEST(TablePrinter, SetsColumnsOfWordsFlushLeftAndEndsNoLineInBlanks) {
    zelmat::TablePrinter table({"material", "rows", "notes"});
    table.SetLeft(0);
    table.SetLeft(2);
    table.AddRow({"steel", "12", "a note"});
    table.AddRow({"natural rubber", "1", ""});

    EXPECT_EQ(Printed(table),
              "  material        rows  notes\n"
              "  steel             12  a note\n"
              "  natural rubber     1\n");
}

}  // namespace
