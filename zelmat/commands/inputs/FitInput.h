#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/cards/MeasuredCsv.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/mechanics/fit/TestCurve.h"
#include "zelmat/mechanics/plastic/HardeningTable.h"
#include "zelmat/mechanics/plastic/StressStrain.h"

namespace zelmat {

class Arguments;

/// Points of a metal's hardening at one temperature.
struct HardeningCurve {
    std::vector<mechanics::StressStrain> points;  ///< plastic strain, true stress in Pa
    std::optional<double> temperature;            ///< K; nothing: it is not said
};

/// What a fit is made to: `CARD|DOC [MATERIAL]`, or files of measured points, alone or behind the material
/// that they are of, with the options that choose among the points.
class FitInput {
public:
    void Declare(Arguments& line);

    const std::string& Path() const { return what_.front(); }
    /// Which of a document's materials; empty: not said.
    std::string Wanted() const { return what_.size() > 1 ? what_[1] : std::string(); }

    /// Takes the options apart and reads what was given; with a material, that one is CARD|DOC MATERIAL.
    /// False, and findings, when something is wrong.
    bool Read(CommandContext& context, std::optional<Material> material = std::nullopt);

    const std::string& Name() const { return name_; }  ///< of what holds the points: the material or files
    const Place& Where() const { return place_; }

    /// Whether it holds plastic strains, or a plastic block and no tests of a rubber.
    bool IsHardening() const;

    /// Stretches and nominal stresses by specimen, SI. Empty, and findings, when there are none.
    std::vector<mechanics::TestCurve> Curves(Findings& findings) const;

    /// The one that there is, or that `--temperature` chooses. Nothing, and findings, when there is none.
    std::optional<HardeningCurve> Hardening(CommandContext& context) const;

private:
    struct Limits {
        std::optional<mechanics::LoadingMode> mode;  ///< nothing: of every mode
        double lower, upper;
    };
    struct Weight {
        std::optional<mechanics::LoadingMode> mode;
        double weight;
    };
    struct Measured {
        std::string file;
        MeasuredCsv points;
    };

    bool ReadModes(Findings& findings);
    bool ReadLimits(Findings& findings);
    bool ReadWeights(Findings& findings);
    bool ReadOptions(Findings& findings);
    bool ReadFiles(const std::vector<std::string>& paths, const std::optional<std::string>& first,
                   Findings& findings);
    bool RefuseOptionsOfTests(Findings& findings) const;
    void RefuseModesWithoutTests(const std::vector<mechanics::TestCurve>& curves, Findings& findings) const;
    void Restrict(std::vector<mechanics::TestCurve>& curves) const;
    bool AddHardening(const Material& material, std::vector<mechanics::HardeningPoint>& points, Place& place,
                      Findings& findings) const;
    bool AddHardening(const Measured& measured, std::vector<mechanics::HardeningPoint>& points,
                      Findings& findings) const;
    std::optional<double> OneTemperature(const std::vector<mechanics::HardeningPoint>& points,
                                         const Place& place, CommandContext& context) const;

    std::vector<std::string> what_;
    CardReading how_;
    std::vector<std::string> modeTexts_, limitTexts_, weightTexts_;
    std::string temperatureText_;

    std::vector<mechanics::LoadingMode> modes_;
    std::vector<Limits> limits_;
    std::vector<Weight> weights_;
    std::optional<double> temperature_;
    std::string name_;
    Place place_;
    std::optional<Material> material_;
    std::vector<Measured> measured_;
};

}  // namespace zelmat
