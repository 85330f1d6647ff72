#include "zelmat/quantities/UnitWords.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zelmat {

namespace {

constexpr Dimension kPure;
constexpr Dimension kLength(Dimension::LENGTH);
constexpr Dimension kMass(Dimension::MASS);
constexpr Dimension kTime(Dimension::TIME);
constexpr Dimension kTemperature(Dimension::TEMPERATURE);
constexpr Dimension kCurrent(Dimension::CURRENT);
constexpr Dimension kAmount(Dimension::AMOUNT);
constexpr Dimension kAngle(Dimension::ANGLE);
constexpr Dimension kForce = kMass * kLength / kTime.ToThe(2);
constexpr Dimension kPressure = kForce / kLength.ToThe(2);
constexpr Dimension kEnergy = kForce * kLength;
constexpr Dimension kPower = kEnergy / kTime;
constexpr Dimension kVoltage = kPower / kCurrent;

constexpr long double kPi = 3.14159265358979323846264338327950288L;
constexpr long double kInch = 0.0254L;
constexpr long double kFoot = 0.3048L;
constexpr long double kPoundForce = 4.4482216152605L;  // 0.45359237 kg x 9.80665 m/s2
constexpr long double kKilogramForce = 9.80665L;

/// Which SI prefixes a word takes.
enum class Prefixes { NONE, ALL };

struct Entry {
    std::string_view word;
    Dimension dimension;
    UnitFactor factor;
    Prefixes prefixes = Prefixes::NONE;
    long double offset = 0.0L;
};

constexpr Entry kEntries[] = {
    // SI
    {"m", kLength, {}, Prefixes::ALL},
    {"g", kMass, {1.0L, 1000.0L}, Prefixes::ALL},
    {"s", kTime, {}, Prefixes::ALL},
    {"K", kTemperature, {}, Prefixes::ALL},
    {"A", kCurrent, {}, Prefixes::ALL},
    {"mol", kAmount, {}, Prefixes::ALL},
    {"rad", kAngle, {}, Prefixes::ALL},
    {"N", kForce, {}, Prefixes::ALL},
    {"Pa", kPressure, {}, Prefixes::ALL},
    {"J", kEnergy, {}, Prefixes::ALL},
    {"W", kPower, {}, Prefixes::ALL},
    {"V", kVoltage, {}, Prefixes::ALL},
    {"Ohm", kVoltage / kCurrent, {}, Prefixes::ALL},
    {"ohm", kVoltage / kCurrent, {}, Prefixes::ALL},
    {"S", kCurrent / kVoltage, {}, Prefixes::ALL},
    {"Hz", kPure / kTime, {}, Prefixes::ALL},
    // pure numbers
    {"strain", kPure, {}},
    {"millistrain", kPure, {1.0L, 1e3L}},
    {"microstrain", kPure, {1.0L, 1e6L}},
    {"ustrain", kPure, {1.0L, 1e6L}},
    {"percent", kPure, {1.0L, 100.0L}},
    {"permille", kPure, {1.0L, 1000.0L}},
    {"ppm", kPure, {1.0L, 1e6L}},
    // angles
    {"deg", kAngle, {kPi, 180.0L}},
    {"degree", kAngle, {kPi, 180.0L}},
    {"degrees", kAngle, {kPi, 180.0L}},
    {"radian", kAngle, {}},
    {"radians", kAngle, {}},
    {"gon", kAngle, {kPi, 200.0L}},
    {"grad", kAngle, {kPi, 200.0L}},
    // temperatures
    {"kelvin", kTemperature, {}},
    {"degK", kTemperature, {}},
    {"degC", kTemperature, {}, Prefixes::NONE, 273.15L},
    {"deg_C", kTemperature, {}, Prefixes::NONE, 273.15L},
    {"celsius", kTemperature, {}, Prefixes::NONE, 273.15L},
    {"Celsius", kTemperature, {}, Prefixes::NONE, 273.15L},
    {"degree_Celsius", kTemperature, {}, Prefixes::NONE, 273.15L},
    {"degF", kTemperature, {5.0L, 9.0L}, Prefixes::NONE, 45967.0L / 180.0L},
    {"deg_F", kTemperature, {5.0L, 9.0L}, Prefixes::NONE, 45967.0L / 180.0L},
    {"fahrenheit", kTemperature, {5.0L, 9.0L}, Prefixes::NONE, 45967.0L / 180.0L},
    {"Fahrenheit", kTemperature, {5.0L, 9.0L}, Prefixes::NONE, 45967.0L / 180.0L},
    {"degR", kTemperature, {5.0L, 9.0L}},
    {"rankine", kTemperature, {5.0L, 9.0L}},
    // lengths and times
    {"micron", kLength, {1.0L, 1e6L}},
    {"angstrom", kLength, {1.0L, 1e10L}},
    {"in", kLength, {kInch, 1.0L}},
    {"inch", kLength, {kInch, 1.0L}},
    {"mil", kLength, {kInch, 1000.0L}},
    {"thou", kLength, {kInch, 1000.0L}},
    {"uin", kLength, {kInch, 1e6L}},
    {"microinch", kLength, {kInch, 1e6L}},
    {"ft", kLength, {kFoot, 1.0L}},
    {"foot", kLength, {kFoot, 1.0L}},
    {"yd", kLength, {3.0L * kFoot, 1.0L}},
    {"sec", kTime, {}},
    {"min", kTime, {60.0L, 1.0L}},
    {"h", kTime, {3600.0L, 1.0L}},
    {"hr", kTime, {3600.0L, 1.0L}},
    {"L", kLength.ToThe(3), {1.0L, 1000.0L}, Prefixes::ALL},
    {"l", kLength.ToThe(3), {1.0L, 1000.0L}, Prefixes::ALL},
    {"cc", kLength.ToThe(3), {1.0L, 1e6L}},
    // masses
    {"t", kMass, {1000.0L, 1.0L}},
    {"tonne", kMass, {1000.0L, 1.0L}},
    {"lb", kMass, {0.45359237L, 1.0L}},
    {"lbm", kMass, {0.45359237L, 1.0L}},
    {"slug", kMass, {kPoundForce, kFoot}},
    {"slinch", kMass, {kPoundForce, kInch}},
    {"short_ton", kMass, {907.18474L, 1.0L}},
    {"long_ton", kMass, {1016.0469088L, 1.0L}},
    {"pcf", kMass / kLength.ToThe(3), {0.45359237L, kFoot* kFoot* kFoot}},
    // forces and pressures
    {"kgf", kForce, {kKilogramForce, 1.0L}},
    {"kp", kForce, {kKilogramForce, 1.0L}},
    {"lbf", kForce, {kPoundForce, 1.0L}},
    {"kip", kForce, {1000.0L * kPoundForce, 1.0L}},
    {"dyn", kForce, {1.0L, 1e5L}},
    {"Nm", kEnergy, {}, Prefixes::ALL},
    {"Nmm", kEnergy, {1.0L, 1000.0L}, Prefixes::ALL},
    {"psi", kPressure, {kPoundForce, kInch* kInch}},
    {"ksi", kPressure, {1000.0L * kPoundForce, kInch* kInch}},
    {"Msi", kPressure, {1e6L * kPoundForce, kInch* kInch}},
    {"psf", kPressure, {kPoundForce, kFoot* kFoot}},
    {"ksf", kPressure, {1000.0L * kPoundForce, kFoot* kFoot}},
    {"bar", kPressure, {1e5L, 1.0L}, Prefixes::ALL},
    {"atm", kPressure, {101325.0L, 1.0L}},
    {"Torr", kPressure, {101325.0L, 760.0L}},
    {"torr", kPressure, {101325.0L, 760.0L}},
    // energies
    {"cal_th", kEnergy, {4.184L, 1.0L}, Prefixes::ALL},
    {"cal_IT", kEnergy, {4.1868L, 1.0L}, Prefixes::ALL},
    {"Btu", kEnergy, {1055.05585262L, 1.0L}},
    {"BTU", kEnergy, {1055.05585262L, 1.0L}},
    {"Btu_IT", kEnergy, {1055.05585262L, 1.0L}},
    {"Btu_th", kEnergy, {1897.83047608L, 1.8L}},
};

struct Prefix {
    std::string_view letters;
    UnitFactor factor;
};

constexpr Prefix kPrefixes[] = {
    {"da", {10.0L, 1.0L}}, {"h", {100.0L, 1.0L}}, {"k", {1e3L, 1.0L}},  {"M", {1e6L, 1.0L}},
    {"G", {1e9L, 1.0L}},   {"T", {1e12L, 1.0L}},  {"P", {1e15L, 1.0L}}, {"E", {1e18L, 1.0L}},
    {"d", {1.0L, 10.0L}},  {"c", {1.0L, 100.0L}}, {"m", {1.0L, 1e3L}},  {"u", {1.0L, 1e6L}},
    {"n", {1.0L, 1e9L}},   {"p", {1.0L, 1e12L}},  {"f", {1.0L, 1e15L}}, {"a", {1.0L, 1e18L}},
};

constexpr std::string_view kDegC = "'degC' (a temperature) or 'coulomb' (a charge)";
constexpr std::string_view kDegF = "'degF' (a temperature) or 'farad' (a capacitance)";
constexpr std::string_view kTon = "'t' (1000 kg), 'short_ton' (2000 lb) or 'long_ton' (2240 lb)";
constexpr std::string_view kTonForce = "'kN', 'kip' or '1e3 kgf'";
constexpr std::string_view kPound = "'lb' (a mass) or 'lbf' (a force)";
constexpr std::string_view kOunce = "'g' (a mass), 'lbf' (a force) or 'L' (a volume)";
constexpr std::string_view kCalorie = "'cal_th' (4.184 J) or 'cal_IT' (4.1868 J)";
constexpr std::string_view kKilocalorie = "'kcal_th' (4184 J) or 'kcal_IT' (4186.8 J)";

constexpr AmbiguousWord kAmbiguous[] = {
    {"C", kDegC},           {"F", kDegF},           {"R", "'degR' (a temperature) or 'roentgen' (a dose)"},
    {"ton", kTon},          {"tons", kTon},         {"tonf", kTonForce},
    {"pound", kPound},      {"pounds", kPound},     {"oz", kOunce},
    {"ounce", kOunce},      {"ounces", kOunce},     {"cal", kCalorie},
    {"calorie", kCalorie},  {"Cal", kKilocalorie},  {"kcal", kKilocalorie},
    {"degree_C", "'degC'"}, {"degree_F", "'degF'"},
};

const Entry* FindEntry(std::string_view word) {
    const auto* found = std::find_if(std::begin(kEntries), std::end(kEntries),
                                     [&](const Entry& entry) { return entry.word == word; });
    return found == std::end(kEntries) ? nullptr : found;
}

bool EqualButForCapitals(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    });
}

}  // namespace

std::optional<UnitWord> FindUnitWord(std::string_view word) {
    if (const Entry* whole = FindEntry(word)) return UnitWord{whole->dimension, whole->factor, whole->offset};
    for (const Prefix& prefix : kPrefixes) {
        if (!word.starts_with(prefix.letters)) continue;
        const Entry* rest = FindEntry(word.substr(prefix.letters.size()));
        if (rest && rest->prefixes == Prefixes::ALL) {
            return UnitWord{rest->dimension, prefix.factor * rest->factor};
        }
    }
    return std::nullopt;
}

const AmbiguousWord* FindAmbiguousWord(std::string_view word) {
    const auto* found = std::find_if(std::begin(kAmbiguous), std::end(kAmbiguous),
                                     [&](const AmbiguousWord& one) { return one.word == word; });
    return found == std::end(kAmbiguous) ? nullptr : found;
}

std::string NearUnitWord(std::string_view word) {
    constexpr std::array<std::string_view, 14> kUsual = {"mm", "cm", "kg", "MPa", "GPa", "kPa", "kN",
                                                         "MN", "kJ", "mJ", "mW",  "kW",  "ms",  "um"};
    for (const std::string_view usual : kUsual) {
        if (EqualButForCapitals(usual, word)) return std::string(usual);
    }
    constexpr std::array<std::string_view, 5> kUsualPrefixes = {"", "k", "M", "G", "m"};
    for (const std::string_view prefix : kUsualPrefixes) {
        for (const Entry& entry : kEntries) {
            if (!prefix.empty() && entry.prefixes == Prefixes::NONE) continue;
            std::string whole = std::string(prefix) + std::string(entry.word);
            if (EqualButForCapitals(whole, word)) return whole;
        }
    }
    if (word.size() > 1 && word.back() == 's' && FindUnitWord(word.substr(0, word.size() - 1))) {
        return std::string(word.substr(0, word.size() - 1));
    }
    return {};
}

}  // namespace zelmat
