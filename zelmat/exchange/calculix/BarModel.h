#pragma once

#include <array>
#include <string>
#include <vector>

namespace zelmat {

/// A CalculiX model of separate bars, each a row of unit cubes (C3D8) along x with nodes and a temperature of
/// its own, all of one material. Nothing holds one to the other, so that one run answers for many loads.
class BarModel {
public:
    enum Face : int { X0, X1, Y0, Y1, Z0, Z1 };

    /// `materialName`: as its *MATERIAL card, which stands in `material`, says.
    BarModel(std::string material, std::string materialName)
        : material_(std::move(material)), materialName_(std::move(materialName)) {}

    /// A new bar; answers its number, from 1. Its temperature is its initial one and stays.
    int Add(double temperature, int cubes = 1);

    /// From now on (in the step that is being made) the bar has this temperature.
    void SetTemperature(int bar, double temperature);

    /// Degree of freedom (1 to 3 displacements, 11 temperature) of all nodes of a face.
    void Prescribe(int bar, Face face, int freedom, double value);

    /// The same, going from one value to another in a straight line over a time from the step's beginning.
    void Ramp(int bar, Face face, int freedom, double from, double to, double time);

    /// Simple shear: every node moves along one axis by `amount` of its height along another one, along which
    /// none moves; along the third the bar is free. Axes are 0 x, 1 y, 2 z.
    void Shear(int bar, double amount, int moving = 0, int height = 2);

    /// Rollers on the three faces at the origin: the bar strains freely and neither moves nor turns.
    void HoldAtOrigin(int bar);

    /// Closes a step with what was prescribed since the last one. `procedure`: its lines, as
    /// "*STEP\n*STATIC\n"; `output`: output requests, in which every "%" becomes a bar's number in turn.
    void EndStep(const std::string& procedure, const std::string& output);

    std::string Text() const;

    std::string ElementSet(int bar) const { return "E" + std::to_string(bar); }
    std::string NodeSet(int bar) const { return "N" + std::to_string(bar); }
    int Element(int bar) const { return bars_[Index(bar)].firstElement; }
    int LastElement(int bar) const { return Element(bar) + bars_[Index(bar)].cubes - 1; }
    int FarNode(int bar) const;  ///< where the faces X1, Y1 and Z1 meet

private:
    struct Bar {
        int firstNode, firstElement, cubes;
        double temperature;
    };

    static std::size_t Index(int bar) { return static_cast<std::size_t>(bar) - 1; }
    int Node(const Bar& bar, int x, int y, int z) const;
    std::vector<int> Nodes(int bar, Face face) const;
    std::string Mesh() const;

    std::string material_, materialName_;
    std::vector<Bar> bars_;
    int nextNode_ = 1, nextElement_ = 1;
    std::string initial_;  // temperatures
    std::string amplitudes_;
    int ramps_ = 0;         // so many amplitudes
    std::string boundary_;  // of the step that is being made
    std::string ramped_;
    std::string temperatures_;
    std::string steps_;
};

}  // namespace zelmat
