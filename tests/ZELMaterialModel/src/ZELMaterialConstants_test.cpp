// The constants that no operation of the module uses: they are there for its callers, and nothing else holds
// what they say.

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"

#include <gmock/gmock.h>

#include "platform/analysis/KORUnitsService.h"

using testing::ElementsAre;

TEST(ZELMaterialConstants, ClassifyTheMaterialsOfLayers) {
    EXPECT_EQ(ZELMaterialKind::ISOTROPIC, "ISOTROPIC");
    EXPECT_EQ(ZELMaterialKind::ORTHOTROPIC2D, "ORTHOTROPIC2D");
    EXPECT_EQ(ZELMaterialKind::IMPORTEDMATERIAL, "IMPORTEDMATERIAL");
    EXPECT_EQ(ZELMaterialKind::ORTHOTROPIC3D, "ORTHOTROPIC3D");
    EXPECT_EQ(ZELMaterialKind::UNDEFINED, "UNDEFINED");
    EXPECT_EQ(ZELMaterialKind::UNDEFINED2, "UNDEFINED");
    EXPECT_NE(&ZELMaterialKind::UNDEFINED, &ZELMaterialKind::UNDEFINED2) << "two constants, one text";
}

TEST(ZELMaterialConstants, NameTheKindsOfUserRoutines) {
    EXPECT_EQ(ZELKeyword::MECHANICAL, "MECHANICAL");
    EXPECT_EQ(ZELKeyword::THERMAL, "THERMAL");
}

TEST(ZELMaterialConstants, NameUnitTypesAsTheUnitsServiceDoes) {
    using namespace ZELUnit;
    const KORUnicodeString types[] = {Pressure,
                                      Acceleration,
                                      Angle,
                                      AngularAcceleration,
                                      AngularStiffness,
                                      AngularVelocity,
                                      TranslationalVelocity,
                                      ConvectiveFilmCoeff,
                                      Density,
                                      Force,
                                      HeatCapacity,
                                      HeatFlux,
                                      BodyHeatFlux,
                                      HeatRate,
                                      InverseTemperature,
                                      Length,
                                      Mass,
                                      MassLinearDensity,
                                      MassSurfaceDensity,
                                      MassVolumeDensity,
                                      Moment,
                                      StiffnessConstant,
                                      Temprtre,
                                      TemperatureDifference,
                                      ThermalConductivity,
                                      Time,
                                      Frequency,
                                      HertzSquare,
                                      Area,
                                      Inertia,
                                      InertiaMoment,
                                      DampingConstant,
                                      AngularDamping,
                                      Speed,
                                      InversePressure,
                                      VolForce,
                                      Meter,
                                      Kilogram,
                                      Second,
                                      Kelvin,
                                      Energy,
                                      Volume};
    std::vector<std::string> texts;
    for (const KORUnicodeString& type : types) texts.emplace_back(type.View());

    EXPECT_THAT(
        texts,
        ElementsAre("PRESSURE", "ACCELERATION", "ANGLE", "ANGULAR ACCELERATION", "ANGULAR STIFFNESS",
                    "ANGULAR VELOCITY", "TRANSLATIONAL VELOCITY", "CONVECTIVE FILM COEFF", "DENSITY", "FORCE",
                    "HEAT CAPACITY", "HEAT FLUX", "BODY HEAT FLUX", "HEAT RATE", "INVERSE TEMPERATURE",
                    "LENGTH", "MASS", "MASS LINEAR DENSITY", "MASS SURFACE DENSITY", "MASS VOLUME DENSITY",
                    "MOMENT", "STIFFNESS CONSTANT", "TEMPRTRE", "TEMPERATURE DIFFERENCE",
                    "THERMAL CONDUCTIVITY", "TIME", "FREQUENCY", "HERTZSQUARE", "AREA", "INERTIA",
                    "INERTIAMOMENT", "DAMPING CONSTANT", "ANGULAR DAMPING", "SPEED", "INVERSE PRESSURE",
                    "VOLFORCE", "METER", "KILOGRAM", "SECOND", "KELVIN", "ENERGY", "VOLUME"));
    for (const std::string& text : texts) EXPECT_NE(KORFindUnitType(text.c_str()), nullptr) << text;
}
