#include "platform/analysis/KORUnitTypes.h"

#include <algorithm>
#include <numbers>

namespace {

// Exact by definition: the international inch, foot and pound, the standard acceleration of free fall, the
// thermochemical and the International Table calorie, and the psi that follows from pound and inch.
constexpr double kInch = 0.0254;
constexpr double kFoot = 0.3048;
constexpr double kPound = 0.45359237;
constexpr double kGravity = 9.80665;
constexpr double kPoundForce = kPound * kGravity;
constexpr double kPsi = 6894.757293168361;
constexpr double kBtu = 1055.05585262;
constexpr double kDegree = std::numbers::pi / 180.0;
constexpr double kTurn = 2.0 * std::numbers::pi;
constexpr double kFahrenheit = 5.0 / 9.0;

constexpr KORUnit kPressure[] = {{"Pa", 1.0},          {"kPa", 1e3},     {"MPa", 1e6},  {"GPa", 1e9},
                                 {"bar", 1e5},         {"mbar", 1e2},    {"psi", kPsi}, {"ksi", 1e3 * kPsi},
                                 {"Mpsi", 1e6 * kPsi}, {"atm", 101325.0}};
constexpr KORUnit kInversePressure[] = {{"1/Pa", 1.0},   {"1/kPa", 1e-3},       {"1/MPa", 1e-6},
                                        {"1/GPa", 1e-9}, {"1/psi", 1.0 / kPsi}, {"1/ksi", 1e-3 / kPsi}};
constexpr KORUnit kAcceleration[] = {{"m/s2", 1.0}, {"mm/s2", 1e-3}, {"ft/s2", kFoot}, {"gn", kGravity}};
constexpr KORUnit kAngle[] = {{"rad", 1.0}, {"deg", kDegree}, {"turn", kTurn}};
constexpr KORUnit kAngularAcceleration[] = {{"rad/s2", 1.0}, {"deg/s2", kDegree}};
constexpr KORUnit kAngularStiffness[] = {{"N m/rad", 1.0}, {"N mm/rad", 1e-3}, {"N m/deg", 1.0 / kDegree}};
constexpr KORUnit kAngularVelocity[] = {{"rad/s", 1.0}, {"deg/s", kDegree}, {"rpm", kTurn / 60.0}};
constexpr KORUnit kVelocity[] = {
    {"m/s", 1.0}, {"mm/s", 1e-3}, {"km/h", 1.0 / 3.6}, {"ft/s", kFoot}, {"mph", 5280.0 * kFoot / 3600.0}};
constexpr KORUnit kFilmCoefficient[] = {{"W/(m2 K)", 1.0}, {"kW/(m2 K)", 1e3}, {"W/(mm2 K)", 1e6}};
constexpr KORUnit kDensity[] = {{"kg/m3", 1.0},
                                {"g/cm3", 1e3},
                                {"t/mm3", 1e12},
                                {"lb/in3", kPound / (kInch * kInch * kInch)},
                                {"lb/ft3", kPound / (kFoot * kFoot * kFoot)}};
constexpr KORUnit kForce[] = {{"N", 1.0}, {"kN", 1e3}, {"MN", 1e6}, {"lbf", kPoundForce}, {"kgf", kGravity}};
constexpr KORUnit kHeatCapacity[] = {{"J/(kg K)", 1.0},
                                     {"kJ/(kg K)", 1e3},
                                     {"mJ/(t K)", 1e-6},
                                     {"Btu/(lb degF)", kBtu / (kPound * kFahrenheit)}};
constexpr KORUnit kHeatFlux[] = {{"W/m2", 1.0}, {"kW/m2", 1e3}, {"W/mm2", 1e6}};
constexpr KORUnit kBodyHeatFlux[] = {{"W/m3", 1.0}, {"kW/m3", 1e3}, {"W/mm3", 1e9}};
constexpr KORUnit kHeatRate[] = {{"W", 1.0}, {"mW", 1e-3}, {"kW", 1e3}, {"Btu/h", kBtu / 3600.0}};
constexpr KORUnit kInverseTemperature[] = {{"1/K", 1.0}, {"1/degC", 1.0}, {"1/degF", 1.0 / kFahrenheit}};
constexpr KORUnit kLength[] = {{"m", 1.0},  {"mm", 1e-3},  {"cm", 1e-2}, {"um", 1e-6},
                               {"km", 1e3}, {"in", kInch}, {"ft", kFoot}};
constexpr KORUnit kMass[] = {{"kg", 1.0}, {"g", 1e-3}, {"mg", 1e-6}, {"t", 1e3}, {"lb", kPound}};
constexpr KORUnit kLinearDensity[] = {{"kg/m", 1.0}, {"g/mm", 1.0}, {"lb/ft", kPound / kFoot}};
constexpr KORUnit kSurfaceDensity[] = {{"kg/m2", 1.0}, {"g/m2", 1e-3}, {"lb/ft2", kPound / (kFoot * kFoot)}};
constexpr KORUnit kMoment[] = {{"N m", 1.0},
                               {"N mm", 1e-3},
                               {"kN m", 1e3},
                               {"lbf in", kPoundForce* kInch},
                               {"lbf ft", kPoundForce* kFoot}};
constexpr KORUnit kStiffness[] = {
    {"N/m", 1.0}, {"N/mm", 1e3}, {"kN/mm", 1e6}, {"lbf/in", kPoundForce / kInch}};
constexpr KORUnit kTemperature[] = {
    {"K", 1.0}, {"degC", 1.0, 273.15}, {"degF", kFahrenheit, 459.67 * kFahrenheit}, {"degR", kFahrenheit}};
constexpr KORUnit kTemperatureDifference[] = {
    {"K", 1.0}, {"degC", 1.0}, {"degF", kFahrenheit}, {"degR", kFahrenheit}};
constexpr KORUnit kConductivity[] = {{"W/(m K)", 1.0},
                                     {"W/(mm K)", 1e3},
                                     {"mW/(m K)", 1e-3},
                                     {"Btu/(h ft degF)", kBtu / (3600.0 * kFoot * kFahrenheit)}};
constexpr KORUnit kTime[] = {{"s", 1.0}, {"ms", 1e-3}, {"us", 1e-6}, {"min", 60.0}, {"h", 3600.0}};
constexpr KORUnit kFrequency[] = {{"Hz", 1.0}, {"kHz", 1e3}, {"MHz", 1e6}};
constexpr KORUnit kFrequencySquare[] = {{"Hz2", 1.0}, {"kHz2", 1e6}};
constexpr KORUnit kArea[] = {
    {"m2", 1.0}, {"mm2", 1e-6}, {"cm2", 1e-4}, {"in2", kInch* kInch}, {"ft2", kFoot* kFoot}};
constexpr KORUnit kAreaInertia[] = {
    {"m4", 1.0}, {"mm4", 1e-12}, {"cm4", 1e-8}, {"in4", kInch* kInch* kInch* kInch}};
constexpr KORUnit kMassInertia[] = {{"kg m2", 1.0}, {"kg mm2", 1e-6}, {"lb ft2", kPound* kFoot* kFoot}};
constexpr KORUnit kDamping[] = {{"N s/m", 1.0}, {"N s/mm", 1e3}};
constexpr KORUnit kAngularDamping[] = {{"N m s/rad", 1.0}, {"N mm s/rad", 1e-3}};
constexpr KORUnit kForcePerVolume[] = {{"N/m3", 1.0}, {"N/mm3", 1e9}};
constexpr KORUnit kMeter[] = {{"m", 1.0}};
constexpr KORUnit kKilogram[] = {{"kg", 1.0}};
constexpr KORUnit kSecond[] = {{"s", 1.0}};
constexpr KORUnit kKelvin[] = {{"K", 1.0}};
constexpr KORUnit kEnergy[] = {{"J", 1.0},     {"mJ", 1e-3},  {"kJ", 1e3},   {"MJ", 1e6},
                               {"cal", 4.184}, {"Btu", kBtu}, {"kWh", 3.6e6}};
constexpr KORUnit kVolume[] = {{"m3", 1.0},
                               {"mm3", 1e-9},
                               {"cm3", 1e-6},
                               {"l", 1e-3},
                               {"in3", kInch* kInch* kInch},
                               {"ft3", kFoot* kFoot* kFoot}};

constexpr KORUnitType kTypes[] = {
    {"PRESSURE", kPressure},
    {"ACCELERATION", kAcceleration},
    {"ANGLE", kAngle},
    {"ANGULAR ACCELERATION", kAngularAcceleration},
    {"ANGULAR STIFFNESS", kAngularStiffness},
    {"ANGULAR VELOCITY", kAngularVelocity},
    {"TRANSLATIONAL VELOCITY", kVelocity},
    {"CONVECTIVE FILM COEFF", kFilmCoefficient},
    {"DENSITY", kDensity},
    {"FORCE", kForce},
    {"HEAT CAPACITY", kHeatCapacity},
    {"HEAT FLUX", kHeatFlux},
    {"BODY HEAT FLUX", kBodyHeatFlux},
    {"HEAT RATE", kHeatRate},
    {"INVERSE TEMPERATURE", kInverseTemperature},
    {"LENGTH", kLength},
    {"MASS", kMass},
    {"MASS LINEAR DENSITY", kLinearDensity},
    {"MASS SURFACE DENSITY", kSurfaceDensity},
    {"MASS VOLUME DENSITY", kDensity},
    {"MOMENT", kMoment},
    {"STIFFNESS CONSTANT", kStiffness},
    {"TEMPRTRE", kTemperature},  // spelled this way by everyone who asks for it
    {"TEMPERATURE DIFFERENCE", kTemperatureDifference},
    {"THERMAL CONDUCTIVITY", kConductivity},
    {"TIME", kTime},
    {"FREQUENCY", kFrequency},
    {"HERTZSQUARE", kFrequencySquare},
    {"AREA", kArea},
    {"INERTIA", kAreaInertia},
    {"INERTIAMOMENT", kMassInertia},
    {"DAMPING CONSTANT", kDamping},
    {"ANGULAR DAMPING", kAngularDamping},
    {"SPEED", kVelocity},
    {"INVERSE PRESSURE", kInversePressure},
    {"VOLFORCE", kForcePerVolume},
    {"METER", kMeter},
    {"KILOGRAM", kKilogram},
    {"SECOND", kSecond},
    {"KELVIN", kKelvin},
    {"ENERGY", kEnergy},
    {"VOLUME", kVolume},
};

}  // namespace

std::span<const KORUnitType> KORUnitTypes() {
    return kTypes;
}

const KORUnitType* KORFindUnitType(std::string_view keyword) {
    const auto* found = std::ranges::find(kTypes, keyword, &KORUnitType::keyword);
    return found != std::end(kTypes) ? found : nullptr;
}

const KORUnit* KORFindUnit(const KORUnitType& type, std::string_view symbol) {
    const auto found = std::ranges::find(type.units, symbol, &KORUnit::symbol);
    return found != type.units.end() ? &*found : nullptr;
}
