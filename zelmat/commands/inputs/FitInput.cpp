#include "zelmat/commands/inputs/FitInput.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/MeasuredTests.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/properties/TestCurves.h"
#include "zelmat/properties/UsedBlock.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::HardeningPoint;
using mechanics::LoadingMode;
using mechanics::TestCurve;

/// A temperature below absolute zero, of points that have none.
constexpr double kNotSaid = -1.0;

/// "planar=1:3" or "1:3": what stands before the "=" is a mode.
struct ByMode {
    std::optional<LoadingMode> mode;
    std::string text;
    bool good = true;
};

ByMode SplitByMode(const std::string& text, const char* option, Findings& findings) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) return {{}, text};
    const auto mode = mechanics::LoadingModeOf(text.substr(0, equals));
    if (!mode) {
        findings.Add(UsageFinding(option, "no-such-mode", QuotedText(text.substr(0, equals)) + " is no mode",
                                  {std::string("expected ") + kTestModes}));
    }
    return {mode, text.substr(equals + 1), mode.has_value()};
}

std::optional<double> NumberIn(const std::string& text, const char* option, Findings& findings) {
    const auto number = ReadNumber(text);
    if (number) return *number;
    findings.Add(UsageFinding(option, "wrong-number", number.Error().text));
    return std::nullopt;
}

Finding DataFinding(Place place, const char* code, std::string text, std::vector<std::string> details = {}) {
    return {FindingKind::ERROR, std::move(place), code, std::move(text), std::move(details)};
}

}  // namespace

void FitInput::Declare(Arguments& line) {
    line.Add("CARD|DOC|CSV", what_,
             "Material card or document and one of its materials, or CSV files of measured points, "
             "or both; - is standard input")
        .Required();
    line.Add("--mode", modeTexts_,
             std::string("Mode of each CSV file, or the modes that count of a card: ") + kTestModes)
        .AtCommas();
    line.Add("--range", limitTexts_, "Stretches that count: 1:4, or of one mode planar=1:4");
    line.Add("--weight", weightTexts_, "Weight of the tests of a mode: equibiaxial=2");
    AddNumberOption(line, "--temperature", temperatureText_,
                    "Which hardening curve of several, or of what temperature a CSV file is: 20degC");
    DeclareCardReading(line, how_);
}

bool FitInput::ReadModes(Findings& findings) {
    for (const std::string& text : modeTexts_) {
        const auto mode = mechanics::LoadingModeOf(text);
        if (!mode) {
            findings.Add(UsageFinding("--mode", "no-such-mode", QuotedText(text) + " is no mode",
                                      {std::string("expected ") + kTestModes}));
            return false;
        }
        modes_.push_back(*mode);
    }
    return true;
}

bool FitInput::ReadLimits(Findings& findings) {
    for (const std::string& text : limitTexts_) {
        const ByMode split = SplitByMode(text, "--range", findings);
        const std::size_t colon = split.text.find(':');
        if (!split.good) return false;
        if (colon == std::string::npos) {
            findings.Add(UsageFinding("--range", "wrong-range", QuotedText(text) + " is no range",
                                      {"FROM:TO, as in 1:4 or planar=1:4"}));
            return false;
        }
        const auto lower = NumberIn(split.text.substr(0, colon), "--range", findings);
        const auto upper = NumberIn(split.text.substr(colon + 1), "--range", findings);
        if (!lower || !upper) return false;
        if (*lower > *upper) {
            findings.Add(UsageFinding("--range", "wrong-range", QuotedText(text) + " ends before it begins"));
            return false;
        }
        limits_.push_back({split.mode, *lower, *upper});
    }
    return true;
}

bool FitInput::ReadWeights(Findings& findings) {
    for (const std::string& text : weightTexts_) {
        const ByMode split = SplitByMode(text, "--weight", findings);
        const auto weight = split.good ? NumberIn(split.text, "--weight", findings) : std::nullopt;
        if (!weight) return false;
        weights_.push_back({split.mode, *weight});
    }
    return true;
}

bool FitInput::ReadOptions(Findings& findings) {
    temperature_ = OptionNumberIfGiven("--temperature", temperatureText_, "temperature", findings);
    if (std::count(what_.begin(), what_.end(), "-") > 1) {
        findings.Add(UsageFinding("CARD|DOC|CSV", "given-twice", "standard input can be read only once"));
    }
    return ReadModes(findings) && ReadLimits(findings) && ReadWeights(findings) && !findings.HasErrors();
}

bool FitInput::Read(CommandContext& context, std::optional<Material> material) {
    Findings& findings = context.findings;
    if (!ReadOptions(findings)) return false;
    const std::string& path = what_.front();
    place_ = {ShownPath(path), 0};
    if (material) {
        material_ = std::move(material);
    } else {
        GivenFile given = OpenGiven(path, context.options, findings);
        if (given.text && MeasuredCsv::IsOne(*given.text)) return ReadFiles(what_, given.text, findings);
        if (!given.document && !given.text) return false;
        GivenMaterials choice;
        choice.Set(path, Wanted(), how_);
        auto materials = MaterialsIn(std::move(given), path, findings, how_);
        material_ = findings.HasErrors() ? std::nullopt : choice.OneOf(std::move(materials), findings);
    }
    if (!material_) return false;
    name_ = material_->name;
    if (what_.size() <= 2) return true;
    place_ = {ShownPath(what_[2]), 0};
    return ReadFiles({what_.begin() + 2, what_.end()}, {}, findings);
}

/// `first`: the text of the first one, where it has been read already.
bool FitInput::ReadFiles(const std::vector<std::string>& paths, const std::optional<std::string>& first,
                         Findings& findings) {
    if (modes_.size() > 1 && modes_.size() != paths.size()) {
        findings.Add(UsageFinding(
            "--mode", "modes-and-files",
            std::to_string(modes_.size()) + " modes for " + std::to_string(paths.size()) + " files",
            {"one mode for all files, or one for each"}));
        return false;
    }
    for (const std::string& path : paths) {
        const auto text = first && path == paths.front() ? first : ReadText(path, findings);
        if (!text) return false;
        auto points = MeasuredCsv::Read(*text, ShownPath(path), how_, findings);
        if (!points) return false;
        measured_.push_back({ShownPath(path), std::move(*points)});
    }
    name_ = WordList(measured_, [](const Measured& measured) { return measured.file; });
    return true;
}

/// A limit or weight of a mode without tests would change nothing, and the user would not know.
void FitInput::RefuseModesWithoutTests(const std::vector<TestCurve>& curves, Findings& findings) const {
    const auto refuse = [&](const char* option, const std::optional<LoadingMode>& mode) {
        if (!mode || std::any_of(curves.begin(), curves.end(),
                                 [&](const TestCurve& curve) { return curve.mode == *mode; }))
            return;
        findings.Add(UsageFinding(option, "no-such-tests",
                                  "there is no " + std::string(mechanics::Keyword(*mode)) + " test"));
    };
    for (const Limits& limits : limits_) refuse("--range", limits.mode);
    for (const Weight& weight : weights_) refuse("--weight", weight.mode);
}

void FitInput::Restrict(std::vector<TestCurve>& curves) const {
    for (TestCurve& curve : curves) {
        for (const Limits& limits : limits_) {
            if (limits.mode && *limits.mode != curve.mode) continue;
            curve.lower = limits.lower;
            curve.upper = limits.upper;
        }
        for (const Weight& weight : weights_) {
            if (!weight.mode || *weight.mode == curve.mode) curve.weight *= weight.weight;
        }
    }
}

bool FitInput::IsHardening() const {
    if (!measured_.empty()) {
        return measured_.front().points.Numbers(MeasuredColumn::PLASTIC_STRAIN) != nullptr;
    }
    return TestCurvesOf(*material_).empty() && material_->Find("plastic");
}

std::vector<TestCurve> FitInput::Curves(Findings& findings) const {
    std::vector<TestCurve> curves;
    if (measured_.empty()) {
        curves = TestCurvesOf(*material_);
        if (!modes_.empty()) {
            std::erase_if(curves, [this](const TestCurve& curve) {
                return std::find(modes_.begin(), modes_.end(), curve.mode) == modes_.end();
            });
        }
        if (curves.empty()) {
            findings.Add(DataFinding(
                place_, "no-tests",
                QuotedText(name_) + (modes_.empty() ? " has no test_data" : " has no tests in these modes"),
                {"uniaxial, equibiaxial or planar in test_data, or a CSV file"}));
        }
    }
    for (std::size_t at = 0; at < measured_.size(); ++at) {
        const auto mode =
            modes_.empty() ? std::nullopt : std::optional(modes_[std::min(at, modes_.size() - 1)]);
        const auto more = MeasuredTests(measured_[at].points, measured_[at].file, mode, findings);
        curves.insert(curves.end(), more.begin(), more.end());
    }
    if (!findings.HasErrors()) RefuseModesWithoutTests(curves, findings);
    if (findings.HasErrors()) return {};
    Restrict(curves);
    return curves;
}

/// The temperature whose curve counts: the only one, or the one that was asked for.
std::optional<double> FitInput::OneTemperature(const std::vector<HardeningPoint>& points, const Place& place,
                                               CommandContext& context) const {
    std::set<double> all;
    for (const HardeningPoint& point : points) all.insert(point.temperature);
    const auto near = [this](double at) { return temperature_ && std::abs(at - *temperature_) < 1e-6; };
    const auto found = std::find_if(all.begin(), all.end(), near);
    if (found != all.end()) return *found;
    if (all.size() == 1 && !temperature_) return *all.begin();
    const ShownQuantity shown("temperature", context.units);
    context.findings.Add(DataFinding(
        place, "which-temperature",
        temperature_ ? "there is no curve at this temperature" : "there are curves at several temperatures",
        {"--temperature: " + WordList(all, [&](double at) { return WithUnit(shown(at), shown.Unit()); })}));
    return std::nullopt;
}

bool FitInput::AddHardening(const Material& material, std::vector<HardeningPoint>& points, Place& place,
                            Findings& findings) const {
    const auto block = UsedBlock(material, "plastic", findings);
    if (!block) return false;
    place.line = block->origin.Line();
    const auto hardening = HardeningOf(*block);
    const auto* table = hardening.Ok() ? std::get_if<mechanics::HardeningTable>(&hardening->law) : nullptr;
    if (table) {
        points = table->Rows();
        return true;
    }
    findings.Add(DataFinding(place, "no-curve",
                             hardening.Ok() ? "johnson-cook is a law already" : hardening.Why(),
                             {"a CSV file of YieldStress [MPa],PlasticStrain [-] behind the material"}));
    return false;
}

/// Points whose temperature is not said have that of `--temperature`.
bool FitInput::AddHardening(const Measured& measured, std::vector<HardeningPoint>& points,
                            Findings& findings) const {
    const auto* strain = measured.points.Numbers(MeasuredColumn::PLASTIC_STRAIN);
    const auto* stress = measured.points.Numbers(MeasuredColumn::TRUE_STRESS);
    const auto* temperature = measured.points.Numbers(MeasuredColumn::TEMPERATURE);
    if (!strain || !stress) {
        findings.Add(DataFinding({measured.file, 0}, "no-curve",
                                 "a law of metals is fitted to plastic strains and true stresses",
                                 {"YieldStress [MPa],PlasticStrain [-]", "zelmat true-curve makes them"}));
        return false;
    }
    for (std::size_t row = 0; row < measured.points.Rows(); ++row) {
        points.push_back(
            {.stress = (*stress)[row],
             .plasticStrain = (*strain)[row],
             .temperature = temperature ? (*temperature)[row] : temperature_.value_or(kNotSaid)});
    }
    return true;
}

/// They would change nothing of a hardening curve, and the user would not know.
bool FitInput::RefuseOptionsOfTests(Findings& findings) const {
    const std::array<std::pair<const char*, bool>, 3> options = {
        {{"--mode", !modes_.empty()}, {"--range", !limits_.empty()}, {"--weight", !weights_.empty()}}};
    for (const auto& [option, given] : options) {
        if (!given) continue;
        findings.Add(UsageFinding(option, "not-for-this-model",
                                  "a hardening curve has no modes, and all of its points count alike"));
    }
    return findings.HasErrors();
}

std::optional<HardeningCurve> FitInput::Hardening(CommandContext& context) const {
    if (RefuseOptionsOfTests(context.findings)) return std::nullopt;
    std::vector<HardeningPoint> points;
    Place place = place_;
    if (measured_.empty() && !AddHardening(*material_, points, place, context.findings)) return std::nullopt;
    for (const Measured& measured : measured_) {
        if (!AddHardening(measured, points, context.findings)) return std::nullopt;
    }
    const auto one = OneTemperature(points, place, context);
    if (!one) return std::nullopt;
    HardeningCurve curve{.points = {}, .temperature = one};
    if (*one == kNotSaid) curve.temperature.reset();
    for (const HardeningPoint& point : points) {
        if (point.temperature == *one) curve.points.push_back({point.plasticStrain, point.stress});
    }
    return curve;
}

}  // namespace zelmat
