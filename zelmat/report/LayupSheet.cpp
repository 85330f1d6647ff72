#include "zelmat/report/LayupSheet.h"

#include <array>

#include "zelmat/layups/Millimetres.h"
#include "zelmat/mechanics/laminate/LaminateStiffness.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/LayupPictures.h"
#include "zelmat/properties/LaminateProperty.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/report/SheetParts.h"

namespace zelmat {

namespace {

void WriteLayers(HtmlWriter& html, const StoredLayup& layup, const UnitChoice& units) {
    const ShownQuantity length("length", units), angle("angle", units);
    std::vector<double> z, thicknesses, angles;
    for (const double at : layup.Interfaces())
        z.push_back(RoundedTo(length(WithoutNoiseOfSums(at)), kDerivedDigits));
    std::vector<std::string> numbers, materials;
    for (const StoredLayer& layer : layup.layers) {
        thicknesses.push_back(length(WithoutNoiseOfSums(layer.thickness)));
        angles.push_back(angle(layer.angle));
        numbers.push_back(std::to_string(numbers.size() + 1));
        materials.push_back(layer.material.value_or("–"));
    }
    const auto heights = NumberColumn(z);
    WriteColumns(
        html,
        "Layers from the bottom up; z from the middle plane, upwards; angles from the x axis to the fibre, "
        "counter-clockwise",
        {{"layer", numbers},
         {"material", materials},
         {TitleWithUnit("thickness", length.Unit()), NumberColumn(thicknesses)},
         {TitleWithUnit("angle", angle.Unit()), NumberColumn(angles)},
         {TitleWithUnit("z bottom", length.Unit()), {heights.begin(), heights.end() - 1}},
         {TitleWithUnit("z top", length.Unit()), {heights.begin() + 1, heights.end()}}},
        "numbers layers");
}

/// Moduli in the unit of moduli, densities in theirs, ratios as they are.
std::string ConstantText(const std::string& name, double value, const UnitChoice& units) {
    const std::string stored = PlyConstantUnit(name);
    if (stored.empty() || stored == "-") return NumberText(value);
    const Quantity* quantity = stored == "Pa" ? FindQuantity("modulus") : FindQuantityStoredIn(stored);
    if (!quantity) return NumberText(value) + " " + stored;
    const ShownQuantity shown(*quantity, units);
    return NumberText(shown(value)) + " " + WrittenUnit(shown.Unit());
}

void WritePlies(HtmlWriter& html, const LayupCard& card, const UnitChoice& units) {
    for (const PlyMaterial& ply : card.materials) {
        if (ply.constants.empty()) continue;
        html.Text("h3", "Ply material " + ply.name, {{"dir", "auto"}});
        std::vector<ReportFact> facts;
        for (const auto& [name, value] : ply.constants)
            facts.push_back({name, ConstantText(name, value, units)});
        if (!ply.source.empty()) facts.push_back({"Source", ply.source});
        WriteFacts(html, facts);
    }
}

void WriteStiffness(HtmlWriter& html, const LayupCard& card, const UnitChoice& units) {
    const auto laminate = LaminateOf(card);
    const auto stiffness = laminate.Ok()
                               ? mechanics::StiffnessOf(*laminate)
                               : mechanics::Outcome<mechanics::LaminateStiffness>(laminate.Refused());
    if (!stiffness.Ok()) {
        html.Text("p", "No stiffness of the laminate: " + stiffness.Why() + ".");
        return;
    }
    const auto moduli = mechanics::ModuliOf(*stiffness);
    const ShownQuantity modulus("modulus", units);
    const mechanics::PlateModuli &membrane = moduli.membrane, &bending = moduli.bending;
    const auto column = [](const std::string& heading, double inPlane, double inBending) {
        const std::array values = {RoundedTo(inPlane, kDerivedDigits), RoundedTo(inBending, kDerivedDigits)};
        return SheetColumn{heading, NumberColumn(values)};
    };
    html.Text("h3", "Stiffness of the laminate");
    WriteColumns(html, "Derived by classical lamination theory, six digits",
                 {{"as a homogeneous plate", {"in its plane", "in bending"}},
                  column(TitleWithUnit("Ex", modulus.Unit()), modulus(membrane.ex), modulus(bending.ex)),
                  column(TitleWithUnit("Ey", modulus.Unit()), modulus(membrane.ey), modulus(bending.ey)),
                  column(TitleWithUnit("Gxy", modulus.Unit()), modulus(membrane.gxy), modulus(bending.gxy)),
                  column("νxy", membrane.nuxy, bending.nuxy)},
                 "numbers named");
    html.Text("p", moduli.coupled ? "B is not 0: stretching curves the laminate."
                                  : "B is 0: stretching does not curve the laminate.");
}

}  // namespace

void WriteLayupSheet(HtmlWriter& html, const ReportLayup& layup, const std::string& id,
                     const UnitChoice& units) {
    const LayupCard& card = layup.card;
    const StoredLayup stack = LayupOf(card);
    html.Open("section", {{"class", "sheet"}, {"id", id}, {"aria-labelledby", id + "-title"}});
    html.Text("h2", card.name, {{"id", id + "-title"}, {"dir", "auto"}});
    if (!card.description.empty()) html.Lines("p", card.description, {{"dir", "auto"}});
    const ShownQuantity length("length", units);
    std::vector<ReportFact> facts = {{"File", card.file}};
    for (const std::string& source : card.sources) facts.push_back({"Source", source});
    facts.push_back({"Layers", stack.LayerCount()});
    facts.push_back({"Thickness", length.Text(WithoutNoiseOfSums(stack.Thickness()), kDerivedDigits)});
    if (!stack.layers.empty()) {
        facts.push_back(
            {stack.IsOfOnePly() ? "Stacking sequence" : "Stacking sequence, angles only", stack.Notation()});
    }
    WriteFacts(html, facts);
    WritePicture(html, layup.stack, SpokenName(card.name) + ": a section through the stack with every layer.",
                 "The stack, a section seen along y");
    if (!stack.layers.empty()) WriteLayers(html, stack, units);
    WritePlies(html, card, units);
    WriteStiffness(html, card, units);
    for (const ReportPicture& picture : layup.pictures) WritePicture(html, picture);
    WriteEnd(html, layup.findings);
    html.Close("section");
}

}  // namespace zelmat
