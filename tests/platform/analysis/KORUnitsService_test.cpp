#include "platform/analysis/KORUnitsService.h"

#include <gtest/gtest.h>

#include "platform/document/KORPlatform.h"

namespace {

constexpr const char* kKeywords[] = {"PRESSURE",
                                     "ACCELERATION",
                                     "ANGLE",
                                     "ANGULAR ACCELERATION",
                                     "ANGULAR STIFFNESS",
                                     "ANGULAR VELOCITY",
                                     "TRANSLATIONAL VELOCITY",
                                     "CONVECTIVE FILM COEFF",
                                     "DENSITY",
                                     "FORCE",
                                     "HEAT CAPACITY",
                                     "HEAT FLUX",
                                     "BODY HEAT FLUX",
                                     "HEAT RATE",
                                     "INVERSE TEMPERATURE",
                                     "LENGTH",
                                     "MASS",
                                     "MASS LINEAR DENSITY",
                                     "MASS SURFACE DENSITY",
                                     "MASS VOLUME DENSITY",
                                     "MOMENT",
                                     "STIFFNESS CONSTANT",
                                     "TEMPRTRE",
                                     "TEMPERATURE DIFFERENCE",
                                     "THERMAL CONDUCTIVITY",
                                     "TIME",
                                     "FREQUENCY",
                                     "HERTZSQUARE",
                                     "AREA",
                                     "INERTIA",
                                     "INERTIAMOMENT",
                                     "DAMPING CONSTANT",
                                     "ANGULAR DAMPING",
                                     "SPEED",
                                     "INVERSE PRESSURE",
                                     "VOLFORCE",
                                     "METER",
                                     "KILOGRAM",
                                     "SECOND",
                                     "KELVIN",
                                     "ENERGY",
                                     "VOLUME"};

/// What one of a unit is in the stored unit, by published tables.
constexpr struct {
    const char* type;
    const char* symbol;
    double value;
    double stored;
} kPublished[] = {
    {"PRESSURE", "Pa", 1.0, 1.0},
    {"PRESSURE", "kPa", 1.0, 1e3},
    {"PRESSURE", "MPa", 1.0, 1e6},
    {"PRESSURE", "GPa", 1.0, 1e9},
    {"PRESSURE", "psi", 1.0, 6894.757293168361},
    {"PRESSURE", "ksi", 1.0, 6894757.293168361},
    {"PRESSURE", "bar", 1.0, 1e5},
    {"INVERSE PRESSURE", "1/MPa", 1.0, 1e-6},
    {"LENGTH", "in", 1.0, 0.0254},
    {"FORCE", "lbf", 1.0, 4.4482216152605},
    {"MASS", "lb", 1.0, 0.45359237},
    {"DENSITY", "g/cm3", 7.85, 7850.0},
    {"DENSITY", "lb/in3", 1.0, 27679.904710203125},
    {"TEMPRTRE", "degC", 20.0, 293.15},
    {"TEMPRTRE", "degF", 32.0, 273.15},
    {"TEMPERATURE DIFFERENCE", "degF", 9.0, 5.0},
    {"HEAT CAPACITY", "Btu/(lb degF)", 1.0, 4186.8},
    {"ENERGY", "Btu", 1.0, 1055.05585262},
    {"THERMAL CONDUCTIVITY", "Btu/(h ft degF)", 1.0, 1.7307346663713912},
    {"ANGLE", "deg", 180.0, 3.14159265358979323846},
    {"ANGULAR VELOCITY", "rpm", 60.0, 6.28318530717958647692},
    {"SPEED", "km/h", 36.0, 10.0},
    {"MOMENT", "lbf in", 1.0, 0.1129848290276167},
};

class KORUnitsServiceTest : public testing::Test {
protected:
    KORIVdxMagnitude_var Magnitude(const char* type) {
        const auto parameter = KORIVdxParameter_var::Adopt(service->CreateParameter(type));
        return KORIVdxMagnitude_var::Adopt(parameter ? parameter->GetMagnitude() : nullptr);
    }
    KORIVdxUnit_var Unit(const char* type) {
        return KORIVdxUnit_var::Adopt(Magnitude(type)->GetCurrentUnit());
    }

    KORVar<KORUnitsService> service = KORVar<KORUnitsService>::Adopt(new KORUnitsService);
};

TEST_F(KORUnitsServiceTest, KnowsEveryUnitTypeAndStartsWithItsStoredUnit) {
    for (const char* keyword : kKeywords) {
        ASSERT_TRUE(Magnitude(keyword)) << keyword;
        EXPECT_EQ(KORUnicodeString(keyword), Magnitude(keyword)->GetName());
        EXPECT_EQ(3.5, Unit(keyword)->ConvertToStored(3.5)) << keyword;
    }
    EXPECT_EQ(std::size(kKeywords), KORUnitTypes().size());
}

TEST_F(KORUnitsServiceTest, ConvertsByThePublishedFactors) {
    for (const auto& [type, symbol, value, stored] : kPublished) {
        ASSERT_TRUE(service->SetCurrentUnit(type, symbol)) << type << " " << symbol;
        EXPECT_DOUBLE_EQ(stored, Unit(type)->ConvertToStored(value)) << type << " " << symbol;
        EXPECT_EQ(KORUnicodeString(symbol), Unit(type)->GetSymbol());
    }
}

TEST_F(KORUnitsServiceTest, ConvertsPsiExactly) {
    EXPECT_TRUE(service->SetCurrentUnit("PRESSURE", "psi"));

    EXPECT_EQ(6894.757293168361, Unit("PRESSURE")->ConvertToStored(1.0));
}

TEST_F(KORUnitsServiceTest, NamesNoUnitOfATypeTwice) {
    for (const KORUnitType& type : KORUnitTypes()) {
        for (const KORUnit& unit : type.units)
            EXPECT_EQ(&unit, KORFindUnit(type, unit.symbol)) << unit.symbol;
    }
}

TEST_F(KORUnitsServiceTest, KnowsNoOtherUnitTypes) {
    EXPECT_EQ(nullptr, service->CreateParameter("TEMPERATURE"));
    EXPECT_EQ(nullptr, service->CreateParameter(""));
}

TEST_F(KORUnitsServiceTest, RefusesUnknownUnitsAndKeepsTheCurrentOne) {
    EXPECT_TRUE(service->SetCurrentUnit("PRESSURE", "MPa"));

    EXPECT_FALSE(service->SetCurrentUnit("PRESSURE", "mm"));
    EXPECT_FALSE(service->SetCurrentUnit("PRESURE", "Pa"));

    EXPECT_EQ(KORUnicodeString("MPa"), Unit("PRESSURE")->GetSymbol());
}

TEST_F(KORUnitsServiceTest, ShowsAMagnitudeInTheUnitSetLast) {
    const auto pressure = Magnitude("PRESSURE");
    const auto before = KORIVdxUnit_var::Adopt(pressure->GetCurrentUnit());

    EXPECT_TRUE(service->SetCurrentUnit("PRESSURE", "GPa"));

    EXPECT_EQ(1e9, KORIVdxUnit_var::Adopt(pressure->GetCurrentUnit())->ConvertToStored(1.0));
    EXPECT_EQ(1.0, before->ConvertToStored(1.0));
    EXPECT_EQ(KORUnicodeString("m"), Unit("LENGTH")->GetSymbol());
}

TEST_F(KORUnitsServiceTest, LivesAsLongAsAMagnitudeOfIt) {
    auto pressure = Magnitude("PRESSURE");
    EXPECT_EQ(2, service->References());
    service->SetCurrentUnit("PRESSURE", "ksi");
    service = nullptr;

    EXPECT_EQ(KORUnicodeString("ksi"), KORIVdxUnit_var::Adopt(pressure->GetCurrentUnit())->GetSymbol());
}

TEST(KORPlatformUnits, AreInThePlatformsServices) {
    KORPlatform platform(".");
    const auto units = KORIVdxUnits_var::Of(platform.Services().units);

    ASSERT_TRUE(units);
    EXPECT_EQ(static_cast<KORIVdxUnits*>(&platform.Units()), units.Get());
    const KORPlatform second(".");
    EXPECT_TRUE(platform.Units().SetCurrentUnit("PRESSURE", "MPa"));
}

TEST(KORUnitsService, ForgetsAChoice) {
    KORPlatform platform(".");
    const KORUnitType& pressure = *KORFindUnitType("PRESSURE");
    ASSERT_TRUE(platform.Units().SetCurrentUnit("PRESSURE", "MPa"));

    platform.Units().ForgetCurrentUnit(pressure);

    EXPECT_FALSE(platform.Units().IsChosen(pressure));
    EXPECT_EQ("Pa", platform.Units().CurrentUnit(pressure).symbol);
}

}  // namespace
