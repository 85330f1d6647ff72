#include "zelmat/commands/LayupReport.h"

#include "zelmat/layups/Millimetres.h"
#include "zelmat/materials/StatusText.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

constexpr const char* kNoMaterial = "(none)";
constexpr const char* kConvention =
    "layers from the bottom up; z from the middle plane, upwards; angles from the x axis to the fibre, "
    "counter-clockwise";

std::string WhatTheSequenceIs(const StoredLayup& stored) {
    return stored.IsOfOnePly() ? "stacking sequence" : "stacking sequence, angles only";
}

void PrintHead(std::ostream& out, const LayupCard& card, const StoredLayup& stored) {
    out << card.name << '\n';
    if (!card.description.empty()) out << card.description << '\n';
    for (const std::string& source : card.sources) out << "source: " << source << '\n';
    out << '\n'
        << stored.name << ": " << stored.LayerCount() << ", " << Millimetres(stored.Thickness())
        << " mm thick\n";
    if (stored.layers.empty()) return;
    out << WhatTheSequenceIs(stored) << ": " << stored.Notation() << "\n\n" << kConvention << '\n';
}

void PrintLayers(std::ostream& out, const StoredLayup& stored) {
    if (stored.layers.empty()) return;
    const std::vector<double> z = stored.Interfaces();
    TablePrinter printer(
        {"layer", "material", "thickness [mm]", "angle [deg]", "z bottom [mm]", "z top [mm]"});
    printer.SetLeft(1);
    for (std::size_t i = 0; i < stored.layers.size(); ++i) {
        const StoredLayer& layer = stored.layers[i];
        printer.AddRow({std::to_string(i + 1), Printable(layer.material.value_or(kNoMaterial)),
                        Millimetres(layer.thickness), NumberText(layer.angle), Millimetres(z[i]),
                        Millimetres(z[i + 1])});
    }
    printer.Print(out);
}

void PrintMaterials(std::ostream& out, const LayupCard& card) {
    bool first = true;
    for (const PlyMaterial& material : card.materials) {
        if (material.constants.empty()) continue;
        if (first) out << "\nPly materials, for reference: the layup keeps a link to the material\n";
        first = false;
        out << "  " << Printable(material.name) << ": "
            << WordList(material.constants,
                        [](const auto& constant) {
                            return constant.first + " = " +
                                   WithUnit(constant.second, PlyConstantUnit(constant.first));
                        })
            << '\n';
        if (!material.source.empty()) out << "    source: " << Printable(material.source) << '\n';
    }
}

ordered_json Measure(double value, const char* unit) {
    return {{"value", value}, {"unit", unit}};
}

ordered_json Layers(const StoredLayup& stored) {
    ordered_json layers = ordered_json::array();
    for (const StoredLayer& layer : stored.layers) {
        layers.push_back({{"layer", layers.size() + 1},
                          {"material", layer.material ? ordered_json(*layer.material) : ordered_json()},
                          {"thickness", Measure(layer.thickness, "m")},
                          {"angle", Measure(layer.angle, "deg")}});
    }
    return layers;
}

ordered_json Materials(const LayupCard& card) {
    ordered_json materials = ordered_json::array();
    for (const PlyMaterial& material : card.materials) {
        ordered_json constants = ordered_json::object();
        for (const auto& [name, value] : material.constants) {
            constants[name] = Measure(value, PlyConstantUnit(name).c_str());
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

void PrintLayup(std::ostream& out, const LayupCard& card, const StoredLayup& stored) {
    PrintHead(out, card, stored);
    PrintLayers(out, stored);
    out << "\nvalid: " << (stored.valid ? "yes" : "no") << '\n'
        << "used by a composite section: " << (stored.unused ? "no" : "yes") << '\n';
    PrintMaterials(out, card);
}

ordered_json ToJson(const LayupCard& card, const StoredLayup& stored) {
    return {{"name", card.name},
            {"description", card.description},
            {"source", card.sources},
            {"layup", stored.name},
            {"notation", stored.Notation()},
            {"one_ply", stored.IsOfOnePly()},
            {"convention", kConvention},
            {"layers", Layers(stored)},
            {"interfaces", {{"z", stored.Interfaces()}, {"unit", "m"}}},
            {"total_thickness", Measure(stored.Thickness(), "m")},
            {"valid", stored.valid},
            {"used", !stored.unused},
            {"ply_materials", Materials(card)}};
}

}  // namespace zelmat
