#include "zelmat/commands/reports/LaminateReport.h"

#include <algorithm>

#include "zelmat/mechanics/laminate/LaminationParameters.h"
#include "zelmat/mechanics/laminate/PlyFailure.h"

namespace zelmat {

namespace {

using mechanics::Laminate;
using mechanics::LaminateLoad;
using mechanics::Matrix3;
using mechanics::Refusal;
using mechanics::Vector3;
using Numbers = std::vector<MaybeNumber>;

constexpr const char* kAxes[] = {"x", "y", "xy"};

/// Rows and columns x, y, xy.
ResultTable MatrixTable(const char* name, const char* title, const char* quantity, const Matrix3& matrix,
                        const Result& result) {
    ResultTable table(name, title);
    table.AddWords("row", "", {kAxes[0], kAxes[1], kAxes[2]});
    for (std::size_t column = 0; column < 3; ++column) {
        Numbers numbers;
        for (const Vector3& row : matrix) numbers.emplace_back(row[column]);
        table.AddNumbers(kAxes[column], kAxes[column], result.Of(quantity), numbers);
    }
    return table;
}

void TellModuli(const mechanics::LaminateStiffness& stiffness, Result& result) {
    const auto moduli = mechanics::ModuliOf(stiffness);
    const auto& [membrane, bending, coupled] = moduli;
    result.Say("coupled", "stretching curves it", coupled ? "yes: B is not 0" : "no: B is 0");
    ResultTable table("moduli", "Moduli of a homogeneous plate that is as stiff");
    table.AddWords("of", "of", {"membrane", "bending"});
    table.AddNumbers("Ex", "Ex", result.Of("modulus"), Numbers{membrane.ex, bending.ex});
    table.AddNumbers("Ey", "Ey", result.Of("modulus"), Numbers{membrane.ey, bending.ey});
    table.AddNumbers("Gxy", "Gxy", result.Of("modulus"), Numbers{membrane.gxy, bending.gxy});
    table.AddNumbers("nuxy", "nuxy", Numbers{membrane.nuxy, bending.nuxy});
    result.Add(std::move(table));
}

void TellParameters(const Laminate& laminate, Result& result) {
    const auto parameters = mechanics::LaminationParametersOf(laminate);
    if (!parameters.Ok()) {
        result.Note("no lamination parameters: " + parameters.Why());
        return;
    }
    ResultTable table("lamination_parameters", "Lamination parameters");
    table.AddWords("of", "of", {"membrane", "coupling", "bending"});
    constexpr const char* kNames[] = {"cos 2t", "sin 2t", "cos 4t", "sin 4t"};
    for (std::size_t i = 0; i < 4; ++i) {
        table.AddNumbers(kNames[i], kNames[i],
                         Numbers{parameters->membrane[i], parameters->coupling[i], parameters->bending[i]});
    }
    result.Add(std::move(table));
}

Numbers Three(const Vector3& vector) {
    return {vector[0], vector[1], vector[2]};
}

void TellExpansion(const Laminate& laminate, Result& result) {
    const auto expansion = mechanics::ExpansionOf(laminate);
    if (!expansion.Ok()) return result.Note("no free expansion: " + expansion.Why());
    ResultTable table("expansion", "Free expansion and curvature per temperature");
    table.AddWords("axis", "", {kAxes[0], kAxes[1], kAxes[2]});
    table.AddNumbers("expansion", "expansion", result.Of("expansion"), Three(expansion->strain));
    table.AddNumbers("curvature", "curvature", result.Of("thermal_curvature"), Three(expansion->curvature));
    result.Add(std::move(table));
}

/// Strains or stresses at the bottom and top of every ply.
struct PlyColumns {
    Numbers x, y, xy, one, two, both;

    void Add(const Vector3& inLaminate, const Vector3& inPly) {
        x.emplace_back(inLaminate[0]);
        y.emplace_back(inLaminate[1]);
        xy.emplace_back(inLaminate[2]);
        one.emplace_back(inPly[0]);
        two.emplace_back(inPly[1]);
        both.emplace_back(inPly[2]);
    }
};

void TellPlies(const Laminate& laminate, const mechanics::LaminateResponse& response, Result& result) {
    Numbers layers, angles, heights;
    std::vector<std::string> places;
    PlyColumns strains, stresses;
    for (const auto& ply : response.plies) {
        for (const auto* point : {&ply.bottom, &ply.top}) {
            layers.emplace_back(static_cast<double>(ply.layer + 1));
            places.emplace_back(point == &ply.bottom ? "bottom" : "top");
            angles.emplace_back(laminate.layers[ply.layer].angle);
            heights.emplace_back(point->z);
            strains.Add(point->strain, point->plyStrain);
            stresses.Add(point->stress, point->plyStress);
        }
    }
    const auto make = [&](const char* name, const char* title, const char* sign, const char* quantity,
                          const PlyColumns& columns) {
        ResultTable table(name, title);
        table.AddNumbers("layer", "layer", layers);
        table.AddWords("place", "place", places);
        table.AddNumbers("angle", "angle", result.Of("angle"), angles);
        table.AddNumbers("z", "z", result.Of("length"), heights);
        const std::pair<const char*, const Numbers*> all[] = {{"x", &columns.x},   {"y", &columns.y},
                                                              {"xy", &columns.xy}, {"1", &columns.one},
                                                              {"2", &columns.two}, {"12", &columns.both}};
        for (const auto& [axis, numbers] : all) {
            table.AddNumbers(std::string(sign) + "_" + axis, std::string(sign) + " " + axis,
                             result.Of(quantity), *numbers);
        }
        result.Add(std::move(table));
    };
    make("ply_strains", "Ply strains, shear as engineering strain; 1 along the fibre", "strain", "strain",
         strains);
    make("ply_stresses", "Ply stresses; 1 along the fibre", "stress", "stress", stresses);
}

std::optional<Refusal> TellFailure(const Laminate& laminate, const LaminateLoad& load, Result& result) {
    using enum mechanics::FailureCriterion;
    std::vector<std::string> criteria, places;
    Numbers layers, indices, factors;
    for (const auto criterion : {MAXIMUM_STRESS, TSAI_HILL, TSAI_WU}) {
        const auto failure = mechanics::FirstPlyFailure(laminate, load, criterion);
        if (!failure.Ok()) return Refusal{failure.Why()};
        criteria.emplace_back(Keyword(criterion));
        const bool any = failure->has_value();
        places.emplace_back(!any ? "-" : (*failure)->atTop ? "top" : "bottom");
        layers.push_back(any ? MaybeNumber(static_cast<double>((*failure)->layer + 1)) : std::nullopt);
        indices.push_back(any ? MaybeNumber((*failure)->measure.index) : std::nullopt);
        factors.push_back(any ? (*failure)->measure.loadFactor : std::nullopt);
    }
    ResultTable table("failure", "First ply failure; the whole load may grow by the load factor");
    table.AddWords("criterion", "criterion", criteria);
    table.AddNumbers("layer", "layer", layers);
    table.AddWords("place", "place", places);
    table.AddNumbers("index", "index", indices);
    table.AddNumbers("load_factor", "load factor", factors);
    result.Add(std::move(table));
    return std::nullopt;
}

}  // namespace

std::optional<Refusal> TellLaminate(const Laminate& laminate, Result& result) {
    const auto stiffness = mechanics::StiffnessOf(laminate);
    if (!stiffness.Ok()) return Refusal{stiffness.Why()};
    result.Add("thickness", "thickness", "length", stiffness->thickness);
    result.Add("mass_per_area", "mass per area", "area_density", stiffness->massPerArea);
    result.Add(
        MatrixTable("A", "A: forces per length over strains", "force_per_length", stiffness->a, result));
    result.Add(
        MatrixTable("B", "B: forces per length over curvatures", "moment_per_length", stiffness->b, result));
    result.Add(MatrixTable("D", "D: moments per length over curvatures", "moment", stiffness->d, result));
    result.Add(MatrixTable("a", "a of the inverse: strains over forces per length", "membrane_compliance",
                           stiffness->aInverse, result));
    result.Add(MatrixTable("b", "b of the inverse: strains over moments per length", "coupling_compliance",
                           stiffness->bInverse, result));
    result.Add(MatrixTable("d", "d of the inverse: curvatures over moments per length", "bending_compliance",
                           stiffness->dInverse, result));
    TellModuli(*stiffness, result);
    TellParameters(laminate, result);
    TellExpansion(laminate, result);
    return std::nullopt;
}

std::optional<Refusal> TellLoaded(const Laminate& laminate, const LaminateLoad& load, Result& result) {
    const auto response = mechanics::RespondTo(laminate, load);
    if (!response.Ok()) return Refusal{response.Why()};
    ResultTable middle("middle_plane", "Middle plane under the load");
    middle.AddWords("axis", "", {kAxes[0], kAxes[1], kAxes[2]});
    middle.AddNumbers("force", "force", result.Of("force_per_length"), Three(load.force));
    middle.AddNumbers("moment", "moment", result.Of("moment_per_length"), Three(load.moment));
    middle.AddNumbers("strain", "strain", result.Of("strain"), Three(response->strain));
    middle.AddNumbers("curvature", "curvature", result.Of("curvature"), Three(response->curvature));
    result.Add("temperature_change", "change of temperature", "temperature_difference",
               load.temperatureChange);
    result.Add(std::move(middle));
    TellPlies(laminate, *response, result);
    const bool strengths = std::all_of(laminate.materials.begin(), laminate.materials.end(),
                                       [](const auto& ply) { return ply.strength.has_value(); });
    if (strengths) return TellFailure(laminate, load, result);
    result.Note("no failure: not all plies have the strengths Xt, Xc, Yt, Yc and S");
    return std::nullopt;
}

}  // namespace zelmat
