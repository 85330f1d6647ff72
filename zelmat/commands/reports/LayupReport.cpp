#include "zelmat/commands/reports/LayupReport.h"

#include <algorithm>

#include "zelmat/commands/frame/Shown.h"
#include "zelmat/layups/Millimetres.h"
#include "zelmat/materials/StatusText.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

Shown ShownConstant(const std::string& name, const UnitChoice& units) {
    return {*FindQuantity(PlyConstantQuantity(name)), units};
}

constexpr const char* kNoMaterial = "(none)";
constexpr const char* kConvention =
    "layers from the bottom up; z from the middle plane, upwards; angles from the x axis to the fibre, "
    "counter-clockwise";

std::string WhatTheSequenceIs(const StoredLayup& stored) {
    return stored.IsOfOnePly() ? "stacking sequence" : "stacking sequence, angles only";
}

void PrintHead(std::ostream& out, const LayupCard& card, const StoredLayup& stored, const Shown& length) {
    out << Printable(card.name) << '\n';
    if (!card.description.empty()) out << Printable(card.description) << '\n';
    for (const std::string& source : card.sources) out << "source: " << Printable(source) << '\n';
    out << '\n'
        << Printable(stored.name) << ": " << stored.LayerCount() << ", "
        << length.Text(WithoutNoiseOfSums(stored.Thickness())) << " thick\n";
    if (stored.layers.empty()) return;
    out << WhatTheSequenceIs(stored) << ": " << stored.Notation() << "\n\n" << kConvention << '\n';
}

void PrintLayers(std::ostream& out, const StoredLayup& stored, const Shown& length, const Shown& angle) {
    if (stored.layers.empty()) return;
    const std::vector<double> z = stored.Interfaces();
    std::vector<double> thicknesses, angles, bottoms, tops;
    for (std::size_t i = 0; i < stored.layers.size(); ++i) {
        thicknesses.push_back(length(WithoutNoiseOfSums(stored.layers[i].thickness)));
        angles.push_back(angle(stored.layers[i].angle));
        bottoms.push_back(length(WithoutNoiseOfSums(z[i])));
        tops.push_back(length(WithoutNoiseOfSums(z[i + 1])));
    }
    const auto thicknessTexts = NumberColumn(thicknesses), angleTexts = NumberColumn(angles);
    const auto bottomTexts = NumberColumn(bottoms), topTexts = NumberColumn(tops);
    const std::string in = " [" + length.Unit() + "]";
    TablePrinter printer({"layer", "material", "thickness" + in, "angle [" + angle.Unit() + "]",
                          "z bottom" + in, "z top" + in});
    printer.SetLeft(1);
    for (std::size_t i = 0; i < stored.layers.size(); ++i) {
        printer.AddRow({std::to_string(i + 1), stored.layers[i].material.value_or(kNoMaterial),
                        thicknessTexts[i], angleTexts[i], bottomTexts[i], topTexts[i]});
    }
    printer.Print(out);
}

void PrintMaterials(std::ostream& out, const LayupCard& card, const UnitChoice& units) {
    bool first = true;
    for (const PlyMaterial& material : card.materials) {
        if (material.constants.empty()) continue;
        if (first) out << "\nPly materials, for reference: the layup keeps a link to the material\n";
        first = false;
        out << "  " << Printable(material.name) << ": "
            << WordList(material.constants,
                        [&](const auto& constant) {
                            return constant.first + " = " +
                                   ShownConstant(constant.first, units).Text(constant.second);
                        })
            << '\n';
        if (!material.source.empty()) out << "    source: " << Printable(material.source) << '\n';
    }
}

ordered_json Layers(const StoredLayup& stored, const Shown& length, const Shown& angle) {
    ordered_json layers = ordered_json::array();
    for (const StoredLayer& layer : stored.layers) {
        layers.push_back({{"layer", layers.size() + 1},
                          {"material", layer.material ? ordered_json(*layer.material) : ordered_json()},
                          {"thickness", length.Json(layer.thickness)},
                          {"angle", angle.Json(layer.angle)}});
    }
    return layers;
}

ordered_json Materials(const LayupCard& card, const UnitChoice& units) {
    ordered_json materials = ordered_json::array();
    for (const PlyMaterial& material : card.materials) {
        ordered_json constants = ordered_json::object();
        for (const auto& [name, value] : material.constants) {
            constants[name] = ShownConstant(name, units).Json(value);
        }
        materials.push_back(
            {{"name", material.name}, {"constants", std::move(constants)}, {"source", material.source}});
    }
    return materials;
}

}  // namespace

void ReportValidity(const LayupCard& card, const StoredLayup& stored, Findings& findings) {
    if (stored.valid) return;
    const std::string status = StatusText(stored.verdict);
    const auto report = [&](int line, std::string text, const char* hint) {
        findings.Add(
            {FindingKind::ERROR, {card.file, line}, "invalid-layup", std::move(text), {status, hint}});
    };
    if (stored.layers.empty()) report(card.layersLine, "the layup has no layers", "give at least one");
    for (std::size_t i = 0; i < stored.layers.size(); ++i) {
        if (stored.layers[i].material) continue;
        report(card.layers[i].line, "layer " + std::to_string(i + 1) + " has no material",
               "name one of ply_materials");
    }
}

void PrintLayup(std::ostream& out, const LayupCard& card, const StoredLayup& stored,
                const UnitChoice& units) {
    const Shown length(*FindQuantity("length"), units);
    PrintHead(out, card, stored, length);
    PrintLayers(out, stored, length, Shown(*FindQuantity("angle"), units));
    out << "\nvalid: " << (stored.valid ? "yes" : "no") << '\n'
        << "used by a composite section: " << (stored.unused ? "no" : "yes") << '\n';
    PrintMaterials(out, card, units);
}

void PrintLayupList(std::ostream& out, const std::vector<StoredLayup>& layups) {
    TablePrinter printer({"#", "layup", "layers", "notation"});
    for (const std::size_t words : {1u, 3u}) printer.SetLeft(words);
    for (std::size_t at = 0; at < layups.size(); ++at) {
        const StoredLayup& layup = layups[at];
        printer.AddRow(
            {std::to_string(at + 1), layup.name, std::to_string(layup.layers.size()), layup.Notation()});
    }
    if (!layups.empty()) printer.Print(out);
    out << (layups.empty() ? "" : "\n") << "layups: " << layups.size() << '\n';
}

ordered_json ToJson(const LayupCard& card, const StoredLayup& stored, const UnitChoice& units) {
    const Shown length(*FindQuantity("length"), units);
    std::vector<double> interfaces = stored.Interfaces();
    std::ranges::transform(interfaces, interfaces.begin(), length);
    return {{"name", card.name},
            {"description", card.description},
            {"source", card.sources},
            {"layup", stored.name},
            {"notation", stored.Notation()},
            {"one_ply", stored.IsOfOnePly()},
            {"convention", kConvention},
            {"layers", Layers(stored, length, Shown(*FindQuantity("angle"), units))},
            {"interfaces", {{"z", std::move(interfaces)}, {"unit", length.Unit()}}},
            {"total_thickness", length.Json(stored.Thickness())},
            {"valid", stored.valid},
            {"used", !stored.unused},
            {"ply_materials", Materials(card, units)}};
}

}  // namespace zelmat
