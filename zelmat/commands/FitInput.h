#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/cards/MeasuredCsv.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/GivenMaterials.h"
#include "zelmat/mechanics/fit/TestCurve.h"
#include "zelmat/mechanics/plastic/StressStrain.h"

namespace zelmat {

/// What a fit is made to: `CARD|DOC [MATERIAL]`, or files of measured points, with the options that choose
/// among the points.
class FitInput {
public:
    void Declare(CLI::App& line);

    const std::string& Path() const { return what_.front(); }
    /// Which of a document's materials; empty: not said.
    std::string Wanted() const { return what_.size() > 1 ? what_[1] : std::string(); }

    /// Takes the options apart and reads what was given; with a material, that one is what was given. False,
    /// and findings, when something is wrong.
    bool Read(CommandContext& context, std::optional<Material> material = std::nullopt);

    const std::string& Name() const { return name_; }  ///< of the material, or of the file
    const Place& Where() const { return place_; }
    const std::optional<Material>& Given() const { return material_; }  ///< nothing for files of points

    /// Whether it holds plastic strains, or a plastic block and no tests of a rubber.
    bool IsHardening() const;

    /// Stretches and nominal stresses by specimen, SI. Empty, and findings, when there are none.
    std::vector<mechanics::TestCurve> Curves(Findings& findings) const;

    /// Plastic strains and true stresses of one temperature. Empty, and findings, when there are none.
    std::vector<mechanics::StressStrain> Hardening(Findings& findings) const;

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
    bool ReadFiles(CommandContext& context, const std::string& first);
    void AddCurves(const Measured& measured, std::optional<mechanics::LoadingMode> mode,
                   std::vector<mechanics::TestCurve>& curves, Findings& findings) const;
    void Restrict(std::vector<mechanics::TestCurve>& curves) const;
    std::optional<double> OneTemperature(const std::vector<double>& temperatures, const Place& place,
                                         Findings& findings) const;

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
