#include "zelmat/materials/HardeningMeaning.h"

#include <algorithm>

#include "zelmat/materials/OverTemperature.h"
#include "zelmat/mechanics/plastic/StressStrain.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

using mechanics::StressStrain;

constexpr const char* kStress = "yield_stress";
constexpr const char* kStrain = "plastic_strain";
constexpr const char* kTemperature = "temperature";

/// A plastic strain below this share of the elastic strain is none: cards round their strains.
constexpr double kNoPlasticStrain = 0.01;

struct Measures {
    bool engineering;
    bool total;
};

Measures MeasuresOf(const Block& block) {
    return {block.values.Get<std::string>("stress") == "engineering",
            block.values.Get<std::string>("strain") == "total"};
}

/// Young's modulus, and Poisson's ratio behind it, over temperature.
mechanics::Outcome<mechanics::TemperatureTable> ElasticityOf(const Material& material) {
    const Block* elastic = material.Find("elastic");
    if (!elastic || elastic->tables.empty() || elastic->tables.front().Rows() == 0) {
        return mechanics::Refusal{"the material has no elastic block"};
    }
    return OverTemperature(elastic->tables.front());
}

/// A point of a curve as it is stored: stress, and plastic strain.
StressStrain Stored(const StressStrain& given, const Measures& measures, double modulus) {
    StressStrain whole = given;
    if (!measures.total) whole.strain += given.stress / modulus;
    if (measures.engineering) whole = mechanics::TrueFromEngineering(whole);
    return {mechanics::PlasticStrain(whole, modulus), whole.stress};
}

/// Converts the curves of a table one after the other.
class Curves {
public:
    Curves(const Block& block, const Material& material, Findings& findings)
        : measures_(MeasuresOf(block)),
          elasticity_(ElasticityOf(material)),
          material_(material),
          findings_(findings),
          given_(block.tables.front()) {}

    std::optional<Table> Convert() {
        Table table = given_;
        for (Column& column : table.columns) column.values.clear();
        const auto& temperatures = given_.Find(kTemperature)->values;
        for (std::size_t begin = 0; begin < given_.Rows();) {
            std::size_t end = begin;
            while (end < given_.Rows() && temperatures[end] == temperatures[begin]) ++end;
            if (!ConvertCurve(begin, end, table)) return std::nullopt;
            begin = end;
        }
        if (!converted_.empty()) ReportConversion();
        findings_.Add(leftOut_);
        table.origin = Origin([origin = given_.origin, rows = rows_](std::size_t row) {
            return row == Origin::kWhole ? origin.Line() : origin.Line(rows[row]);
        });
        return table;
    }

private:
    struct Converted {
        double temperature, modulus;
    };

    bool ConvertCurve(std::size_t begin, std::size_t end, Table& table) {
        const double temperature = given_.Find(kTemperature)->values[begin];
        const auto elastic = elasticity_.Ok()
                                 ? elasticity_->At(temperature, mechanics::OutsidePolicy::REFUSE)
                                 : mechanics::Outcome<mechanics::TableValue>(elasticity_.Refused());
        if (!elastic.Ok() || !(elastic->values.front() > 0.0)) {
            return Fail(begin, "no-youngs-modulus",
                        "the curve of plastic at " + NumberText(temperature) +
                            " K cannot be converted without Young's modulus there",
                        {elastic.Ok() ? "it is not above 0" : elastic.Why()});
        }
        const double modulus = elastic->values.front();
        std::vector<StressStrain> points;
        for (std::size_t row = begin; row < end; ++row) {
            points.push_back(Stored({given_.Find(kStrain)->values[row], given_.Find(kStress)->values[row]},
                                    measures_, modulus));
        }
        const std::size_t yield = YieldPoint(points, modulus);
        if (yield == points.size()) {
            return Fail(begin, "no-yield-point",
                        "the curve of plastic at " + NumberText(temperature) +
                            " K begins beyond yield, at plastic strain " + NumberText(points[0].strain),
                        {"give the yield point as its first point"});
        }
        if (yield > 0) ReportLeftOut(begin, yield, temperature);
        converted_.push_back({temperature, modulus});
        points[yield].strain = 0.0;
        for (std::size_t at = yield; at < points.size(); ++at) {
            rows_.push_back(begin + at);
            for (Column& column : table.columns) {
                const bool stress = column.kind.name == kStress;
                const bool strain = column.kind.name == kStrain;
                column.values.push_back(stress   ? points[at].stress
                                        : strain ? points[at].strain
                                                 : temperature);
            }
        }
        return true;
    }

    /// The last point before plastic strain; as many as there are points when there is none.
    static std::size_t YieldPoint(const std::vector<StressStrain>& points, double modulus) {
        std::size_t yield = points.size();
        for (std::size_t at = 0; at < points.size(); ++at) {
            if (points[at].strain > kNoPlasticStrain * points[at].stress / modulus) break;
            yield = at;
        }
        return yield;
    }

    /// One note for all curves: a table over temperature has one for each of its temperatures.
    void ReportConversion() {
        const auto byTemperature = std::minmax_element(
            converted_.begin(), converted_.end(),
            [](const Converted& a, const Converted& b) { return a.temperature < b.temperature; });
        const auto byModulus =
            std::minmax_element(converted_.begin(), converted_.end(),
                                [](const Converted& a, const Converted& b) { return a.modulus < b.modulus; });
        const double lowest = byTemperature.first->temperature, highest = byTemperature.second->temperature;
        const double softest = byModulus.first->modulus, stiffest = byModulus.second->modulus;
        const bool one = converted_.size() == 1;
        findings_.Add({FindingKind::NOTE,
                       {material_.file, given_.origin.Line(0)},
                       "hardening-converted",
                       (one ? "the curve of plastic at " + NumberText(lowest) + " K was"
                            : CountText(converted_.size(), "curve") + " of plastic from " +
                                  NumberText(lowest) + " K to " + NumberText(highest) + " K were") +
                           " converted to true stress over plastic strain",
                       {std::string(measures_.engineering ? "engineering" : "true") + " stress over " +
                            (measures_.total ? "total" : "plastic") + " strain given",
                        "Young's modulus " + (softest == stiffest ? "" : NumberText(softest) + " to ") +
                            WithUnit(stiffest, "Pa")}});
    }

    void ReportLeftOut(std::size_t begin, std::size_t dropped, double temperature) {
        leftOut_.Add({FindingKind::WARNING,
                      {material_.file, given_.origin.Line(begin)},
                      "before-yield",
                      CountText(dropped, "point") + " of the curve of plastic at " + NumberText(temperature) +
                          " K before yield " + (dropped == 1 ? "was" : "were") + " left out",
                      {"the first stored one is the yield point"}});
    }

    bool Fail(std::size_t row, const char* code, std::string text, std::vector<std::string> details) {
        findings_.Add({FindingKind::ERROR,
                       {material_.file, given_.origin.Line(row)},
                       code,
                       std::move(text),
                       std::move(details)});
        return false;
    }

    Measures measures_;
    mechanics::Outcome<mechanics::TemperatureTable> elasticity_;
    const Material& material_;
    Findings& findings_;
    const Table& given_;
    std::vector<std::size_t> rows_;     // the given row of each converted one
    Findings leftOut_;                  // what is told after the conversion as a whole
    std::vector<Converted> converted_;  // a curve each
};

}  // namespace

bool IsOtherHardening(const Block& block) {
    if (block.kind->name != "plastic" || block.tables.empty()) return false;
    const Measures measures = MeasuresOf(block);
    return (measures.engineering || measures.total) && block.tables.front().Find(kStrain) != nullptr;
}

std::optional<Block> ToTrueOverPlastic(const Block& block, const Material& material, Findings& findings) {
    auto table = Curves(block, material, findings).Convert();
    if (!table) return std::nullopt;
    Block stored = block;
    stored.tables = {std::move(*table)};
    return stored;
}

}  // namespace zelmat
