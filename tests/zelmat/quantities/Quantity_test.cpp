#include "zelmat/quantities/Quantity.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace zelmat {
namespace {

std::string Refusal(const std::string& unit, const char* quantity) {
    const auto read = ReadUnit(unit, *FindQuantity(quantity));
    return read ? "read" : read.Error().text;
}

TEST(Quantity, EveryUnitThatIsOfferedWouldDo) {
    for (const Quantity& quantity : Quantities()) {
        for (const Unit& unit : quantity.units) {
            EXPECT_TRUE(ReadUnit(unit.Spelling(), quantity)) << quantity.name << " " << unit.Spelling();
        }
        EXPECT_EQ(quantity.units.front().Spelling(), quantity.stored.Spelling()) << quantity.name;
        EXPECT_TRUE(quantity.family.empty() || FindQuantity(quantity.family)) << quantity.name;
    }
}

TEST(Quantity, ThereIsOneForEveryUnitOfTheCatalog) {
    std::ifstream catalog(ZELMAT_CATALOG);
    const std::string text{std::istreambuf_iterator<char>(catalog), {}};
    const std::regex unit("\"unit\": \"([^\"]*)\"");
    std::set<std::string> units;
    for (std::sregex_iterator at(text.begin(), text.end(), unit), end; at != end; ++at)
        units.insert((*at)[1]);

    EXPECT_EQ(units, (std::set<std::string>{"-", "1/K", "J/(kg K)", "K", "Pa", "Pa/m", "W/(m K)", "deg",
                                            "kg/m3", "m"}));
    for (const std::string& one : units) EXPECT_TRUE(FindQuantityStoredIn(one)) << one;
}

TEST(Quantity, IsFoundByNameAndByTheUnitThatItIsStoredIn) {
    EXPECT_EQ(FindQuantity("stress")->stored.Spelling(), "Pa");
    EXPECT_EQ(FindQuantity("Stress"), nullptr);
    EXPECT_EQ(FindQuantityStoredIn("Pa")->name, "stress");
    EXPECT_EQ(FindQuantityStoredIn("K")->name, "temperature");
    EXPECT_EQ(FindQuantityStoredIn("-")->name, "number");
    EXPECT_EQ(FindQuantityStoredIn("1/Pa")->name, "compressibility");
    EXPECT_EQ(FindQuantityStoredIn("furlong"), nullptr);
}

TEST(Quantity, AUnitOfAnotherDimensionIsRefusedWithThoseThatWouldDo) {
    EXPECT_EQ(Refusal("K", "stress"),
              "stress: the unit 'K' measures something else; expected Pa, kPa, MPa, GPa, N/mm^2, bar, psi, "
              "ksi, Msi or "
              "kgf/mm^2");
    EXPECT_EQ(Refusal("kg/mm^2", "stress"),
              "stress: the unit 'kg/mm^2' measures something else (a mass for a force: kgf, lbf?); expected "
              "Pa, kPa, "
              "MPa, GPa, N/mm^2, bar, psi, ksi, Msi or kgf/mm^2");
    EXPECT_EQ(Refusal("%", "angle"), "angle: the unit '%' measures something else; expected deg, rad or gon");
    EXPECT_EQ(Refusal("deg", "number"),
              "pure number: the unit 'deg' measures something else; expected -, % or ppm");
    EXPECT_EQ(Refusal("W K/m", "conductivity").substr(0, 62),
              "thermal conductivity: the unit 'W K/m' measures something else");
}

TEST(Quantity, AUnitThatIsNoneIsRefusedWithThoseThatWouldDo) {
    EXPECT_EQ(Refusal("C", "temperature"),
              "temperature: the unit 'C' is ambiguous: for 'C' write 'degC' (a temperature) or 'coulomb' (a "
              "charge); "
              "expected K, degC, degF or degR");
    EXPECT_EQ(
        Refusal("", "length"),
        "length: a unit is missing ('-' stands for a pure number); expected m, mm, cm, µm, in, mil or ft");
}

TEST(Quantity, ATemperatureIsNoMultipleOfAScale) {
    EXPECT_EQ(Refusal("1e3 degC", "temperature"),
              "temperature: the unit '1e3 degC' is a difference, not a point of a scale; expected K, degC, "
              "degF or degR");
    EXPECT_EQ(Refusal("1e3 degC", "temperature_difference"), "read");
    EXPECT_EQ(Refusal("mK", "temperature"), "read");
}

}  // namespace
}  // namespace zelmat
