#include <algorithm>
#include <array>
#include <cmath>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Calculation.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/mechanics/elastic/IsotropicElasticity.h"
#include "zelmat/mechanics/laminate/PlyStiffness.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::ElasticConstant;
using mechanics::IsotropicElasticity;
using mechanics::OrthotropicPly;

constexpr const char* kPlace = "KEY=VALUE";

struct Key {
    const char* name;
    const char* quantity;
    const char* title;
};

constexpr std::array<Key, 11> kKeys = {{
    {"E", "modulus", "Young's modulus"},
    {"nu", "number", "Poisson's ratio"},
    {"G", "modulus", "shear modulus"},
    {"K", "modulus", "bulk modulus"},
    {"lambda", "modulus", "Lame's first constant"},
    {"M", "modulus", "P-wave modulus"},
    {"density", "density", "density"},
    {"E1", "modulus", "Young's modulus along the fibre"},
    {"E2", "modulus", "Young's modulus across the fibre"},
    {"nu12", "number", "contraction in 2 under stress in 1"},
    {"G12", "modulus", "shear modulus in the plane"},
}};

struct Given {
    std::string name;
    double value;
};

const Key* FindKey(const std::string& name) {
    const auto found = std::find_if(kKeys.begin(), kKeys.end(), [&](const Key& key) {
        return name == key.name || (name == "rho" && key.name == std::string("density"));
    });
    return found == kKeys.end() ? nullptr : &*found;
}

/// Rows of a table whose numbers have different units.
class Rows {
public:
    explicit Rows(const Result& result) : result_(result) {}

    void Add(const char* name, const char* title, const char* quantity, double stored) {
        const Shown shown = result_.Of(quantity);
        names_.emplace_back(name);
        titles_.emplace_back(title);
        values_.emplace_back(shown(stored));
        units_.push_back(shown.Unit());
    }
    ResultTable Table(const char* name) const {
        ResultTable table(name, "");
        table.AddWords("constant", "constant", names_);
        table.AddMixed("value", "value", values_);
        table.AddWords("unit", "unit", units_);
        table.AddWords("meaning", "meaning", titles_);
        return table;
    }

private:
    const Result& result_;
    std::vector<std::string> names_, titles_, units_;
    std::vector<MaybeNumber> values_;
};

/// Takes two constants of an isotropic material to the others, or looks at those of an orthotropic ply.
class Constants final : public Calculation {
public:
    void Declare(Arguments& line) override {
        line.Add("KEY=VALUE", given_,
                 "Two of E, nu, G, K, lambda, M, and a density for the wave speeds: E=210GPa nu=0.3; or "
                 "E1, E2, nu12 and G12 of a ply")
            .Required();
    }

protected:
    bool Compute(CommandContext& context, Result& result) override {
        const auto numbers = Read(context.findings);
        if (context.findings.HasErrors()) return false;
        const bool ply = std::any_of(numbers.begin(), numbers.end(), [](const Given& given) {
            return given.name.ends_with('1') || given.name.ends_with('2');
        });
        return ply ? OfPly(numbers, context.findings, result) : OfSolid(numbers, context.findings, result);
    }

private:
    std::vector<Given> Read(Findings& findings) const {
        std::vector<Given> numbers;
        std::vector<std::string> known;
        for (const Key& key : kKeys) known.emplace_back(key.name);
        for (const NamedText& piece : NamedTexts(given_)) {
            const Key* key = FindKey(piece.name);
            if (!key) {
                const std::string nearest = NearestName(piece.name, known);
                findings.Add(UsageFinding(
                    kPlace, "unknown-constant", "there is no constant " + QuotedText(piece.name),
                    {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"}));
                continue;
            }
            const auto number = OptionNumber(piece.name, piece.text, key->quantity, findings);
            const bool twice = std::any_of(numbers.begin(), numbers.end(),
                                           [&](const Given& given) { return given.name == key->name; });
            if (twice) findings.Add(UsageFinding(kPlace, "given-twice", piece.name + " is given twice"));
            if (number) numbers.push_back({key->name, *number});
        }
        return numbers;
    }

    static bool Refuse(Findings& findings, const char* code, std::string text,
                       std::vector<std::string> details = {}) {
        findings.Add({FindingKind::ERROR, {kPlace, 0}, code, std::move(text), std::move(details)});
        return false;
    }

    static bool OfSolid(const std::vector<Given>& numbers, Findings& findings, Result& result) {
        std::vector<mechanics::ElasticValue> values;
        std::optional<double> density;
        for (const Given& given : numbers) {
            if (const auto constant = mechanics::ElasticConstantOf(given.name)) {
                values.push_back({*constant, given.value});
            } else {
                density = given.value;
            }
        }
        if (values.size() != 2) {
            findings.Add(UsageFinding(
                kPlace, "two-constants",
                "two elastic constants fix an isotropic material, not " + std::to_string(values.size()),
                {"two of E, nu, G, K, lambda and M", "as in E=210GPa nu=0.3"}));
            return false;
        }
        const auto all = mechanics::IsotropicFrom(values[0], values[1]);
        if (!all.Ok()) return Refuse(findings, "impossible-constants", all.Why());
        Rows rows(result);
        for (const Key& key : kKeys) {
            if (const auto constant = mechanics::ElasticConstantOf(key.name)) {
                rows.Add(key.name, key.title, key.quantity, ValueOf(*all, *constant));
            }
        }
        if (density) {
            const auto speeds = mechanics::WaveSpeedsOf(*all, *density);
            if (!speeds.Ok()) return Refuse(findings, "impossible-density", speeds.Why());
            rows.Add("c_p", "speed of pressure waves in the bulk, sqrt(M/rho)", "velocity", speeds->pressure);
            rows.Add("c_s", "speed of shear waves, sqrt(G/rho)", "velocity", speeds->shear);
            rows.Add("c_bar", "speed along a thin rod, sqrt(E/rho)", "velocity", speeds->bar);
        }
        result.Say("material", "material", "isotropic; E > 0 and -1 < nu < 0.5 hold");
        result.Add(rows.Table("constants"));
        return true;
    }

    static double ValueOf(const IsotropicElasticity& all, ElasticConstant constant) {
        switch (constant) {
            case ElasticConstant::YOUNGS_MODULUS:
                return all.youngsModulus;
            case ElasticConstant::POISSONS_RATIO:
                return all.poissonsRatio;
            case ElasticConstant::SHEAR_MODULUS:
                return all.shearModulus;
            case ElasticConstant::BULK_MODULUS:
                return all.bulkModulus;
            case ElasticConstant::LAME_LAMBDA:
                return all.lameLambda;
            case ElasticConstant::P_WAVE_MODULUS:
                return all.pWaveModulus;
        }
        return 0.0;
    }

    static bool OfPly(const std::vector<Given>& numbers, Findings& findings, Result& result) {
        const auto find = [&](const char* name) {
            const auto found = std::find_if(numbers.begin(), numbers.end(),
                                            [&](const Given& given) { return given.name == name; });
            return found == numbers.end() ? std::nullopt : std::optional(found->value);
        };
        const auto e1 = find("E1"), e2 = find("E2"), nu12 = find("nu12"), g12 = find("G12");
        if (!e1 || !e2 || !nu12 || !g12 || numbers.size() != 4) {
            findings.Add(UsageFinding(kPlace, "four-constants",
                                      "a ply has E1, E2, nu12 and G12, and no others",
                                      {"as in E1=181GPa E2=10.3GPa nu12=0.28 G12=7.17GPa"}));
            return false;
        }
        const OrthotropicPly ply{.e1 = *e1, .e2 = *e2, .nu12 = *nu12, .g12 = *g12};
        if (const auto fault = mechanics::UnstablePly(ply)) {
            return Refuse(findings, "impossible-constants", fault->text);
        }
        Rows rows(result);
        for (const Given& given : numbers) {
            const Key& key = *FindKey(given.name);
            rows.Add(key.name, key.title, key.quantity, given.value);
        }
        const auto stiffness = mechanics::ReducedStiffness(ply);
        rows.Add("nu21", "contraction in 1 under stress in 2, nu12 E2/E1", "number",
                 ply.nu12 * ply.e2 / ply.e1);
        rows.Add("nu12_bound", "sqrt(E1/E2), which |nu12| has to be below", "number",
                 std::sqrt(ply.e1 / ply.e2));
        rows.Add("Q11", "plane-stress stiffness", "modulus", stiffness[0][0]);
        rows.Add("Q12", "plane-stress stiffness", "modulus", stiffness[0][1]);
        rows.Add("Q22", "plane-stress stiffness", "modulus", stiffness[1][1]);
        rows.Add("Q66", "plane-stress stiffness", "modulus", stiffness[2][2]);
        result.Say("material", "material", "orthotropic ply; E1, E2, G12 > 0 and |nu12| < sqrt(E1/E2) hold");
        result.Add(rows.Table("constants"));
        return true;
    }

    std::vector<std::string> given_;
};

}  // namespace

CommandKind ConstantsCommand() {
    return {
        .name = "constants",
        .brief = "convert elastic constants, give wave speeds, look at a ply's stability",
        .text =
            "Take two elastic constants of an isotropic material to all others: zelmat constants E=210GPa\n"
            "nu=0.3. With a density it gives the wave speeds. E1, E2, nu12 and G12 of a ply give its\n"
            "plane-stress stiffness. Constants of no stable material are refused.",
        .units = true,
        .csv = true,
        .make = &MakeCommand<Constants>};
}

}  // namespace zelmat
