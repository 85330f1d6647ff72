#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELHyperelasticUnits.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELFakeUnits.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kWide = 100;

/// The factors for a pressure factor of 4, so that every number is exact.
std::vector<double> Factors(const char* model, int order, int width = kWide) {
    return ZELHyperelasticUnitFactors(model, order, 4.0, width);
}

/// `pressures` times 4 and then `compressibilities` times a quarter.
std::vector<double> Row(int pressures, int compressibilities) {
    std::vector<double> row(static_cast<std::size_t>(pressures), 4.0);
    row.insert(row.end(), static_cast<std::size_t>(compressibilities), 0.25);
    return row;
}

}  // namespace

TEST(ZELHyperelasticUnitFactors, AreFixedForModelsWithoutAnOrder) {
    for (const int order : {-1, 0, 1, 2, 3, 4, 5, 6, 7}) {
        EXPECT_THAT(Factors("ARRUDA_BOYCE", order), ElementsAre(4.0, 1.0, 0.25));
        EXPECT_THAT(Factors("MOONEY_RIVLIN", order), ElementsAre(4.0, 4.0, 0.25));
        EXPECT_THAT(Factors("NEO_HOOKE", order), ElementsAre(4.0, 0.25));
        EXPECT_THAT(Factors("VAN_DER_WAALS", order), ElementsAre(4.0, 1.0, 1.0, 1.0, 0.25));
        EXPECT_THAT(Factors("YEOH", order), ElementsAre(4.0, 4.0, 4.0, 0.25, 0.25, 0.25));
    }
}

TEST(ZELHyperelasticUnitFactors, PairPressuresWithExponentsForOgden) {
    EXPECT_THAT(Factors("OGDEN", 1), ElementsAre(4.0, 1.0, 0.25));
    EXPECT_THAT(Factors("OGDEN", 2), ElementsAre(4.0, 1.0, 4.0, 1.0, 0.25, 0.25));
    EXPECT_THAT(Factors("OGDEN", 3), ElementsAre(4.0, 1.0, 4.0, 1.0, 4.0, 1.0, 0.25, 0.25, 0.25));
    EXPECT_EQ(Factors("OGDEN", 4).size(), 12u);
    EXPECT_EQ(Factors("OGDEN", 5).size(), 15u);
    EXPECT_EQ(Factors("OGDEN", 6).size(), 18u);
    EXPECT_EQ(Factors("OGDEN", 7).size(), 21u);
    EXPECT_EQ(Factors("OGDEN", 7)[13], 1.0);
    EXPECT_EQ(Factors("OGDEN", 7)[14], 0.25);
}

TEST(ZELHyperelasticUnitFactors, CountTheCoefficientsOfAFullPolynomialUpToOrderSix) {
    EXPECT_EQ(Factors("POLYNOMIAL", 1), Row(2, 1));
    EXPECT_EQ(Factors("POLYNOMIAL", 2), Row(5, 2));
    EXPECT_EQ(Factors("POLYNOMIAL", 3), Row(9, 3));
    EXPECT_EQ(Factors("POLYNOMIAL", 4), Row(14, 4));
    EXPECT_EQ(Factors("POLYNOMIAL", 5), Row(20, 5));
    EXPECT_EQ(Factors("POLYNOMIAL", 6), Row(27, 6));
    EXPECT_EQ(Factors("POLYNOMIAL", 7), Row(2, 7)) << "an order that the table does not have";
    EXPECT_EQ(Factors("POLYNOMIAL", 0), Row(2, 0));
    EXPECT_EQ(Factors("POLYNOMIAL", -1), Row(2, 0));
}

TEST(ZELHyperelasticUnitFactors, CountTheCoefficientsOfAReducedPolynomial) {
    EXPECT_EQ(Factors("REDUCED_POLYNOMIAL", 1), Row(1, 1));
    EXPECT_EQ(Factors("REDUCED_POLYNOMIAL", 2), Row(2, 2));
    EXPECT_EQ(Factors("REDUCED_POLYNOMIAL", 3), Row(3, 3));
    EXPECT_EQ(Factors("REDUCED_POLYNOMIAL", 4), Row(4, 4));
    EXPECT_EQ(Factors("REDUCED_POLYNOMIAL", 5), Row(5, 5));
    EXPECT_EQ(Factors("REDUCED_POLYNOMIAL", 6), Row(6, 6));
    EXPECT_EQ(Factors("REDUCED_POLYNOMIAL", 7), Row(7, 7));
}

TEST(ZELHyperelasticUnitFactors, AreNoneForOtherModels) {
    EXPECT_THAT(Factors("", 3), IsEmpty());
    EXPECT_THAT(Factors("mooney_rivlin", 3), IsEmpty());
    EXPECT_THAT(Factors("MOONEY_RIVLIN ", 3), IsEmpty());
}

TEST(ZELHyperelasticUnitFactors, GrowNoWiderThanTheTableWhateverTheOrderIs) {
    const int huge = std::numeric_limits<int>::max();
    EXPECT_THAT(Factors("OGDEN", huge, 3), ElementsAre(4.0, 1.0, 4.0));
    EXPECT_THAT(Factors("REDUCED_POLYNOMIAL", huge, 3), ElementsAre(4.0, 4.0, 4.0));
    EXPECT_THAT(Factors("POLYNOMIAL", huge, 3), ElementsAre(4.0, 4.0, 0.25));
    EXPECT_THAT(Factors("MOONEY_RIVLIN", 1, 2), ElementsAre(4.0, 4.0));
    for (const char* model : {"OGDEN", "REDUCED_POLYNOMIAL"}) {
        EXPECT_THAT(Factors(model, std::numeric_limits<int>::min()), IsEmpty());
        EXPECT_THAT(Factors(model, 0), IsEmpty());
        EXPECT_THAT(Factors(model, 2, 0), IsEmpty());
        EXPECT_THAT(Factors(model, 2, -1), IsEmpty());
    }
}

TEST(ZELScaleColumns, MultiplyEachColumnAndCopyThoseBeyondTheFactors) {
    const auto table = ZELTableOf({{1.0, 2.0, 8.0, 293.15}, {3.0, 4.0, 16.0, 373.15}});

    const auto scaled = ZELScaleColumns(table, {4.0, 4.0, 0.25});

    EXPECT_EQ(ZELRowsOf(scaled), (ZELRows{{4.0, 8.0, 2.0, 293.15}, {12.0, 16.0, 4.0, 373.15}}));
    EXPECT_EQ(ZELRowsOf(table), (ZELRows{{1.0, 2.0, 8.0, 293.15}, {3.0, 4.0, 16.0, 373.15}}));
}

TEST(ZELScaleColumns, TakeRowsOfAnyLength) {
    EXPECT_EQ(ZELRowsOf(ZELScaleColumns(ZELTableOf({{1.0}, {}, {1.0, 2.0, 3.0}}), {4.0, 0.25})),
              (ZELRows{{4.0}, {}, {4.0, 0.5, 3.0}}));
    EXPECT_EQ(ZELRowsOf(ZELScaleColumns(ZELTableOf({{1.0, 2.0}}), {})), (ZELRows{{1.0, 2.0}}));
    EXPECT_EQ(ZELScaleColumns(ZELTableOf({}), {4.0}).size(), 0);
}

TEST(ZELScaleColumns, CarryWhatIsNoNumber) {
    const double infinity = std::numeric_limits<double>::infinity();
    const auto scaled =
        ZELScaleColumns(ZELTableOf({{std::nan(""), infinity, -infinity, -0.0}}), {4.0, 4.0, 0.25, 4.0});

    EXPECT_TRUE(std::isnan(scaled[0][0]));
    EXPECT_EQ(scaled[0][1], infinity);
    EXPECT_EQ(scaled[0][2], -infinity);
    EXPECT_TRUE(std::signbit(scaled[0][3]));
}

TEST(ZELCurrentPressureFactor, IsOneCurrentUnitInStoredUnits) {
    ZELTestServices services;
    const ZELFakeUnits units(services.Table(), 1e6);
    const long references = units.References();
    double factor = 0.0;

    EXPECT_TRUE(ZELCurrentPressureFactor(factor));

    EXPECT_EQ(factor, 1e6);
    EXPECT_EQ(units.AskedFor(), "PRESSURE");
    EXPECT_EQ(units.References(), references);
}

TEST(ZELCurrentPressureFactor, IsNotFoundWhereALinkOfTheLookUpIsMissing) {
    for (const auto lacking :
         {ZELFakeUnits::Lacking::Parameter, ZELFakeUnits::Lacking::Magnitude, ZELFakeUnits::Lacking::Unit}) {
        ZELTestServices services;
        const ZELFakeUnits units(services.Table(), 1e6, lacking);
        const long references = units.References();
        double factor = 7.0;

        EXPECT_FALSE(ZELCurrentPressureFactor(factor));

        EXPECT_EQ(factor, 7.0);
        EXPECT_EQ(units.References(), references);
    }
}

TEST(ZELCurrentPressureFactor, IsNotFoundWithoutAUnitsService) {
    ZELTestServices services;
    const auto noService = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    double factor = 7.0;
    EXPECT_FALSE(ZELCurrentPressureFactor(factor));

    services.Table().units = noService.Get();
    EXPECT_FALSE(ZELCurrentPressureFactor(factor)) << "an object, but no units service";
    EXPECT_EQ(factor, 7.0);
}
