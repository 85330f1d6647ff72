#include "zelmat/pictures/HyperelasticPictures.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/mechanics/fit/FitRanking.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"
#include "zelmat/mechanics/hyperelastic/Stability.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/PropertyPictures.h"
#include "zelmat/properties/HyperelasticProperty.h"
#include "zelmat/properties/TestCurves.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::LoadingMode;
using mechanics::StrainEnergy;
using mechanics::TestCurve;

constexpr LoadingMode kStretched[] = {LoadingMode::UNIAXIAL, LoadingMode::EQUIBIAXIAL, LoadingMode::PLANAR};
constexpr int kDigits = 4;

/// Where a curve is drawn.
struct Drawn {
    double from, to;
};

/// A fit at one temperature, with the tests beside it.
class Response {
public:
    Response(const HyperelasticAt& at, std::vector<TestCurve> tests, const UnitChoice& units)
        : energy_(*at.energy), tests_(std::move(tests)), stress_("stress", units) {
        for (const TestCurve& test : tests_) {
            for (const auto& point : test.points) {
                least_ = std::min(least_, point.nominalStress);
                greatest_ = std::max(greatest_, point.nominalStress);
            }
        }
    }

    const std::string& Unit() const { return stress_.Unit(); }

    void Add(LoadingMode mode, std::size_t color, Picture& picture) const {
        AddTest(mode, color, picture);
        const Drawn drawn = Range(mode);
        const auto limits = mechanics::FindStabilityLimits(energy_, mechanics::StabilityCriterion::DRUCKER,
                                                           mode, mechanics::DefaultStabilityRange(mode));
        const double lower =
            limits.stableAtRest ? limits.compression.value_or(drawn.from - 1.0) : mechanics::AtRest(mode);
        const double upper =
            limits.stableAtRest ? limits.tension.value_or(drawn.to + 1.0) : mechanics::AtRest(mode);
        const std::string name(Keyword(mode));
        AddCurve(
            mode, {std::max(drawn.from, lower), std::min(drawn.to, upper)},
            {.label = name, .style = Test(mode) ? SeriesStyle::PLAIN : SeriesStyle::LINE, .color = color},
            picture);
        if (lower > drawn.from) AddUnstable(mode, {drawn.from, lower}, lower, color, picture);
        if (upper < drawn.to) AddUnstable(mode, {upper, drawn.to}, upper, color, picture);
    }

private:
    const TestCurve* Test(LoadingMode mode) const {
        const auto found = std::find_if(tests_.begin(), tests_.end(),
                                        [&](const TestCurve& test) { return test.mode == mode; });
        return found == tests_.end() || found->points.empty() ? nullptr : &*found;
    }

    /// A little beyond the mode's own test; without one as far as the shortest of the others, or to where
    /// rubber usually works.
    Drawn Range(LoadingMode mode) const {
        constexpr double kUsualLower = 0.6, kUsualUpper = 2.5, kUsualShear = 2.0, kBeyond = 1.08;
        if (mode == LoadingMode::SIMPLE_SHEAR) return {0.0, kUsualShear};
        if (const TestCurve* test = Test(mode)) {
            const auto [least, most] =
                std::minmax_element(test->points.begin(), test->points.end(),
                                    [](const auto& a, const auto& b) { return a.stretch < b.stretch; });
            return {std::min(1.0, least->stretch), 1.0 + kBeyond * (most->stretch - 1.0)};
        }
        double shortest = tests_.empty() ? kUsualUpper : std::numeric_limits<double>::max();
        for (const TestCurve& test : tests_) {
            for (const auto& point : test.points) shortest = std::min(shortest, std::max(point.stretch, 1.5));
        }
        return {tests_.empty() ? kUsualLower : 1.0, shortest};
    }

    void AddTest(LoadingMode mode, std::size_t color, Picture& picture) const {
        const TestCurve* test = Test(mode);
        if (!test) return;
        Series points{
            .label = std::string(Keyword(mode)) + ", test", .style = SeriesStyle::POINTS, .color = color};
        for (const auto& point : test->points) {
            points.points.push_back({point.stretch, stress_(point.nominalStress)});
        }
        picture.series.push_back(std::move(points));
    }

    /// A part of a curve; where the potential ends, and far above the tests, it ends, too.
    void AddCurve(LoadingMode mode, const Drawn& drawn, Series series, Picture& picture) const {
        constexpr int kSteps = 120;
        for (int i = 0; i <= kSteps; ++i) {
            const double x = drawn.from + (drawn.to - drawn.from) * i / kSteps;
            const auto response = mechanics::Respond(energy_, mode, x);
            const bool seen = response.Ok() && IsNearTheTests(response->nominalStress);
            series.points.push_back(
                {x, seen ? stress_(response->nominalStress) : std::numeric_limits<double>::quiet_NaN()});
        }
        picture.series.push_back(std::move(series));
    }

    /// What lies far from them would make them small.
    bool IsNearTheTests(double stress) const {
        const double room = 0.4 * (greatest_ - least_);
        return tests_.empty() || (stress >= least_ - room && stress <= greatest_ + room);
    }

    void AddUnstable(LoadingMode mode, const Drawn& drawn, double limit, std::size_t color,
                     Picture& picture) const {
        AddCurve(mode, drawn, {.label = "", .style = SeriesStyle::DASHED, .color = color}, picture);
        const auto response = mechanics::Respond(energy_, mode, limit);
        if (!response.Ok()) return;
        picture.series.push_back({.label = std::string(Keyword(mode)) + ": unstable " +
                                           (drawn.from == limit ? "from " : "up to ") +
                                           NumberText(RoundedTo(limit, kDigits)),
                                  .style = SeriesStyle::LIMIT,
                                  .color = color,
                                  .points = {{limit, stress_(response->nominalStress)}}});
    }

    const StrainEnergy& energy_;
    std::vector<TestCurve> tests_;
    ShownQuantity stress_;
    double least_ = 0.0, greatest_ = 0.0;  // stress of the tests
};

/// The row next to 20 degC; nothing where there is no choice.
std::optional<double> TemperatureOf(const HyperelasticProperty& property) {
    if (!property.Coefficients().Range()) return std::nullopt;
    const auto fromRoom = [](const auto& row) {
        constexpr double kRoom = 293.15;
        return std::abs(row.temperature - kRoom);
    };
    const auto& rows = property.Coefficients().Rows();
    const auto nearest = std::min_element(
        rows.begin(), rows.end(), [&](const auto& a, const auto& b) { return fromRoom(a) < fromRoom(b); });
    return nearest->temperature;
}

void Finish(const Material& material, const Block& fit, bool tests, Picture& picture) {
    const bool dashed = std::any_of(picture.series.begin(), picture.series.end(),
                                    [](const Series& series) { return series.style == SeriesStyle::DASHED; });
    picture.notes.emplace_back(dashed ? "Dashed: not stable by Drucker's criterion."
                                      : "Stable by Drucker's criterion as far as it is drawn.");
    if (tests) {
        picture.notes.emplace_back("Points: the tests on the card; lines: the potential.");
        AddTestSource(material, picture);
    }
    AddSourceNote(material, fit.tables.front(), picture);
}

std::string FitText(const Block& fit) {
    std::string text = FitName(fit);
    const auto order = fit.values.Get<int>("order");
    const auto model = fit.values.Get<std::string>("model");
    const auto known = model ? mechanics::HyperelasticModelOf(*model) : std::nullopt;
    if (known && order && mechanics::HasOrder(*known)) {
        text.insert(model->size(), ", order " + std::to_string(*order));
    }
    return text;
}

}  // namespace

void AddTestSource(const Material& material, Picture& picture) {
    std::vector<std::string> sources;
    for (const Block& block : material.information) {
        if (block.kind->name != "test_data") continue;
        for (const Table& table : block.tables) {
            const std::string source = SourceText(material, table);
            if (!source.empty() && std::find(sources.begin(), sources.end(), source) == sources.end())
                sources.push_back(source);
        }
    }
    if (!sources.empty()) picture.notes.push_back("Source of the tests: " + WordList(sources));
}

mechanics::Outcome<std::vector<Picture>> ResponsePictures(const Material& material, const Block& fit,
                                                          const UnitChoice& units) {
    const auto property = HyperelasticProperty::Of(fit);
    if (!property.Ok()) return property.Refused();
    const auto temperature = TemperatureOf(*property);
    const auto at = property->At(temperature, mechanics::OutsidePolicy::CONSTANT);
    if (!at.Ok()) return at.Refused();
    const auto tests = TestCurvesOf(material);
    const Response response(*at, tests, units);

    std::string what = "Hyperelastic, " + FitText(fit);
    if (temperature)
        what += ", at " + WrittenUnit(ShownQuantity("temperature", units).Text(*temperature, kDigits));
    const std::string name = "hyperelastic-" + PlainName(*fit.values.Get<std::string>("model"));
    Picture stretched{.name = name,
                      .title = material.name,
                      .what = what + ": nominal stress over stretch",
                      .x = {.title = "stretch"},
                      .y = {.title = "nominal stress", .unit = response.Unit()},
                      .legend = "mode"};
    for (std::size_t i = 0; i < std::size(kStretched); ++i) response.Add(kStretched[i], i, stretched);
    Finish(material, fit, !tests.empty(), stretched);
    Picture sheared{.name = name + "-shear",
                    .title = material.name,
                    .what = what + ": shear stress over amount of shear",
                    .x = {.title = "amount of shear"},
                    .y = {.title = "shear stress", .unit = response.Unit()}};
    response.Add(LoadingMode::SIMPLE_SHEAR, 0, sheared);
    if (sheared.series.size() == 1) sheared.series.front().label.clear();  // which one needs no legend
    Finish(material, fit, false, sheared);
    return std::vector<Picture>{std::move(stretched), std::move(sheared)};
}

Picture FitsPicture(const Material& material, const std::vector<Block>& fits, const UnitChoice& units) {
    Picture picture{
        .name = "hyperelastic-fits",
        .title = material.name,
        .what = "The card's fits beside its tests: RMS of the relative deviations of stress",
        .kind = PictureKind::BARS,
        .x = {.title = "relative deviation, RMS", .unit = units.For(*FindQuantity("number")).Spelling()}};
    const auto data = mechanics::TakeTestData(TestCurvesOf(material), mechanics::DeviationMeasure::RELATIVE);
    if (!data.Ok()) return picture;
    const ShownQuantity number("number", units);
    for (const Block& fit : fits) {
        const auto property = HyperelasticProperty::Of(fit);
        if (!property.Ok()) continue;
        const auto at = property->At(TemperatureOf(*property), mechanics::OutsidePolicy::CONSTANT);
        if (!at.Ok()) continue;
        const auto deviation = mechanics::DeviationOf(*at->energy, data->points);
        if (deviation && deviation->rmsRelative) {
            picture.bars.push_back({FitText(fit), number(*deviation->rmsRelative)});
        } else {
            picture.notes.push_back(FitText(fit) + ": no value at all points of the tests.");
        }
    }
    AddTestSource(material, picture);
    std::stable_sort(picture.bars.begin(), picture.bars.end(),
                     [](const PictureBar& a, const PictureBar& b) { return a.value < b.value; });
    return picture;
}

Picture RankingPicture(const Material& material) {
    Picture picture{.name = "hyperelastic-ranking",
                    .title = material.name,
                    .what = "All potentials fitted to the tests: RMS of the relative deviations of stress",
                    .kind = PictureKind::BARS,
                    .x = {.title = "relative deviation, RMS"}};
    const auto tests = TestCurvesOf(material);
    if (tests.empty()) return picture;
    const auto ranking = mechanics::FitAllModels(tests, mechanics::DeviationMeasure::RELATIVE);
    for (const auto& fit : ranking.fits) {
        std::string label(Keyword(fit.model));
        if (mechanics::HasOrder(fit.model)) label += ", order " + std::to_string(fit.order);
        if (fit.deviation.rmsRelative) picture.bars.push_back({label, *fit.deviation.rmsRelative});
    }
    AddTestSource(material, picture);
    for (const auto& failed : ranking.failed) {
        picture.notes.push_back(std::string(Keyword(failed.model)) + ": " + failed.why + ".");
    }
    return picture;
}

}  // namespace zelmat
