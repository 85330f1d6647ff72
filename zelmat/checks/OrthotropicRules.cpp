#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/DerivedText.h"
#include "zelmat/properties/OtherNumbers.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr const char* kLempriere =
    "B. M. Lempriere, AIAA J. 6, 1968: Poisson's ratio in orthotropic materials";

/// Two axes of the material, counted from 1; of a modulus along an axis both are the same.
struct Axes {
    int one, other;
};

constexpr std::array<Axes, 3> kAlong = {{{1, 1}, {2, 2}, {3, 3}}};
constexpr std::array<Axes, 3> kAcross = {{{1, 2}, {1, 3}, {2, 3}}};

/// "12" and "XY"
std::array<std::string, 2> Suffixes(const Axes& axes) {
    const auto word = [&](char first) {
        std::string text(1, static_cast<char>(first + axes.one));
        if (axes.one != axes.other) text += static_cast<char>(first + axes.other);
        return text;
    };
    return {word('0'), word('X' - 1)};
}

/// The constant under any of these names with the axes behind it: "E1", "YoungsModulusX".
std::optional<double> Constant(const Material& material, const std::vector<std::string>& names,
                               const Axes& axes, const char* quantity) {
    std::vector<std::string> all;
    for (const std::string& suffix : Suffixes(axes)) {
        for (const std::string& name : names) all.push_back(name + suffix);
    }
    return OtherNumber(material, all, quantity);
}

std::optional<double> Modulus(const Material& material, int axis) {
    return Constant(material, {"E", "E_", "YoungsModulus", "YoungModulus"}, {axis, axis}, "modulus");
}

std::optional<double> Ratio(const Material& material, const Axes& axes) {
    return Constant(material, {"nu", "PoissonRatio", "PoissonsRatio"}, axes, "number");
}

std::optional<double> ShearModulus(const Material& material, const Axes& axes) {
    return Constant(material, {"G", "ShearModulus"}, axes, "modulus");
}

/// Where the constants stand: in what is for information, or nowhere that has a line.
int LineOf(const Material& material) {
    for (const Block& block : material.information) {
        if (block.kind->name == "other_properties") return block.origin.Line();
    }
    return 0;
}

void LookAtModuli(const Material& material, CheckReport& report) {
    const auto look = [&](const char* symbol, const Axes& axes, std::optional<double> modulus) {
        if (!modulus || *modulus > 0.0) return;
        report.Add(LineOf(material), symbol + Suffixes(axes)[0] + " is " + WithUnit(*modulus, "Pa"));
    };
    for (const Axes& axes : kAlong) look("E", axes, Modulus(material, axes.one));
    for (const Axes& axes : kAcross) look("G", axes, ShearModulus(material, axes));
}

void LookAtRatios(const Material& material, CheckReport& report) {
    for (const Axes& axes : kAcross) {
        const auto along = Modulus(material, axes.one), across = Modulus(material, axes.other);
        const auto ratio = Ratio(material, axes);
        if (!ratio || !along || !across || !(*along > 0.0 && *across > 0.0)) continue;
        const double most = std::sqrt(*along / *across);
        if (std::abs(*ratio) < most) continue;
        const auto pair = Suffixes(axes)[0];
        report.Add(LineOf(material), "nu" + pair + " is " + NumberText(*ratio),
                   {"sqrt(E" + pair.substr(0, 1) + "/E" + pair.substr(1) + ") is " + DerivedText(most, "-")});
    }
}

void LookAtTogether(const Material& material, CheckReport& report) {
    const auto e1 = Modulus(material, 1), e2 = Modulus(material, 2), e3 = Modulus(material, 3);
    const auto nu12 = Ratio(material, {1, 2}), nu13 = Ratio(material, {1, 3}), nu23 = Ratio(material, {2, 3});
    if (!e1 || !e2 || !e3 || !nu12 || !nu13 || !nu23 || !(*e1 > 0.0 && *e2 > 0.0 && *e3 > 0.0)) return;
    const double nu21 = *nu12 * *e2 / *e1, nu31 = *nu13 * *e3 / *e1, nu32 = *nu23 * *e3 / *e2;
    const double rest = 1.0 - *nu12 * nu21 - *nu23 * nu32 - *nu13 * nu31 - 2.0 * nu21 * nu32 * *nu13;
    if (rest > 0.0) return;
    report.Add(LineOf(material), "together the three Poisson's ratios give " + DerivedText(rest, "-"));
}

}  // namespace

CheckTopic OrthotropicRules() {
    return {.title = "Orthotropic constants",
            .rules = {
                {.code = "orthotropic-moduli",
                 .says = "The moduli E1, E2, E3, G12, G13 and G23 that a card keeps are positive.",
                 .bound = "has to be above 0",
                 .source = kLempriere,
                 .look = LookAtModuli},
                {.code = "orthotropic-ratios",
                 .says = "The Poisson's ratios that a card keeps beside orthotropic moduli obey "
                         "|nu_ij| < sqrt(E_i/E_j).",
                 .bound = "a positive strain energy is needed",
                 .source = kLempriere,
                 .look = LookAtRatios},
                {.code = "orthotropic-determinant",
                 .says = "Three moduli and three Poisson's ratios obey 1 - nu12 nu21 - nu23 nu32 - nu31 nu13 "
                         "- 2 nu21 nu32 nu13 > 0.",
                 .bound = "has to be above 0",
                 .source = kLempriere,
                 .look = LookAtTogether},
            }};
}

}  // namespace zelmat
