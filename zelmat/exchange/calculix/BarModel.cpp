#include "zelmat/exchange/calculix/BarModel.h"

#include "zelmat/exchange/DeckText.h"

namespace zelmat {

namespace {

std::string Line(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) line += (line.empty() ? "" : ", ") + word;
    return line + "\n";
}

std::string ForBar(const std::string& text, int bar) {
    std::string filled;
    for (const char character : text) {
        if (character == '%') {
            filled += std::to_string(bar);
        } else {
            filled += character;
        }
    }
    return filled;
}

}  // namespace

int BarModel::Add(double temperature, int cubes) {
    bars_.push_back({nextNode_, nextElement_, cubes, temperature});
    nextNode_ += 4 * (cubes + 1);
    nextElement_ += cubes;
    const int bar = static_cast<int>(bars_.size());
    initial_ += Line({NodeSet(bar), DeckNumber(temperature)});
    return bar;
}

void BarModel::SetTemperature(int bar, double temperature) {
    temperatures_ += Line({NodeSet(bar), DeckNumber(temperature)});
}

/// Nodes lie four by four along x: (y, z) = (0, 0), (1, 0), (1, 1), (0, 1).
int BarModel::Node(const Bar& bar, int x, int y, int z) const {
    return bar.firstNode + 4 * x + (z == 0 ? y : 3 - y);
}

int BarModel::FarNode(int bar) const {
    const Bar& one = bars_[Index(bar)];
    return Node(one, one.cubes, 1, 1);
}

std::vector<int> BarModel::Nodes(int bar, Face face) const {
    const Bar& one = bars_[Index(bar)];
    std::vector<int> nodes;
    for (int x = 0; x <= one.cubes; ++x) {
        for (int y = 0; y <= 1; ++y) {
            for (int z = 0; z <= 1; ++z) {
                const std::array<bool, 6> on = {x == 0, x == one.cubes, y == 0, y == 1, z == 0, z == 1};
                if (on[static_cast<std::size_t>(face)]) nodes.push_back(Node(one, x, y, z));
            }
        }
    }
    return nodes;
}

void BarModel::Prescribe(int bar, Face face, int freedom, double value) {
    const std::string number = std::to_string(freedom);
    for (const int node : Nodes(bar, face)) {
        boundary_ += Line({std::to_string(node), number, number, DeckNumber(value)});
    }
}

void BarModel::Ramp(int bar, Face face, int freedom, double from, double to, double time) {
    const std::string name = "A" + std::to_string(++ramps_), number = std::to_string(freedom);
    amplitudes_ +=
        "*AMPLITUDE, NAME=" + name + "\n" + Line({"0.", DeckNumber(from), DeckNumber(time), DeckNumber(to)});
    ramped_ += "*BOUNDARY, AMPLITUDE=" + name + "\n";
    for (const int node : Nodes(bar, face)) ramped_ += Line({std::to_string(node), number, number, "1."});
}

void BarModel::Shear(int bar, double amount, int moving, int height) {
    constexpr std::array<Face, 3> kLow = {X0, Y0, Z0}, kHigh = {X1, Y1, Z1};
    const auto bottom = kLow[static_cast<std::size_t>(height)], top = kHigh[static_cast<std::size_t>(height)];
    const int third = 3 - moving - height;
    Prescribe(bar, bottom, moving + 1, 0.0);
    Prescribe(bar, top, moving + 1, amount);
    Prescribe(bar, kLow[static_cast<std::size_t>(third)], third + 1, 0.0);
    Prescribe(bar, bottom, height + 1, 0.0);
    Prescribe(bar, top, height + 1, 0.0);
}

void BarModel::HoldAtOrigin(int bar) {
    Prescribe(bar, X0, 1, 0.0);
    Prescribe(bar, Y0, 2, 0.0);
    Prescribe(bar, Z0, 3, 0.0);
}

void BarModel::EndStep(const std::string& procedure, const std::string& output) {
    steps_ += procedure;
    if (!temperatures_.empty()) steps_ += "*TEMPERATURE\n" + temperatures_;
    if (!boundary_.empty()) steps_ += "*BOUNDARY\n" + boundary_;
    steps_ += ramped_;
    for (std::size_t bar = 1; bar <= bars_.size(); ++bar) steps_ += ForBar(output, static_cast<int>(bar));
    steps_ += "*END STEP\n";
    boundary_.clear();
    ramped_.clear();
    temperatures_.clear();
}

std::string BarModel::Mesh() const {
    std::string nodes = "*NODE, NSET=NALL\n", elements;
    for (std::size_t at = 0; at < bars_.size(); ++at) {
        const Bar& bar = bars_[at];
        const int number = static_cast<int>(at) + 1;
        elements += "*ELEMENT, TYPE=C3D8, ELSET=" + ElementSet(number) + "\n";
        for (int x = 0; x <= bar.cubes; ++x) {
            for (const auto& [y, z] : {std::pair{0, 0}, {1, 0}, {1, 1}, {0, 1}}) {
                nodes += Line({std::to_string(Node(bar, x, y, z)), std::to_string(x),
                               std::to_string(y + 2 * static_cast<int>(at)), std::to_string(z)});
            }
            if (x == bar.cubes) break;
            std::vector<std::string> words = {std::to_string(bar.firstElement + x)};
            for (const auto& [dx, y, z] : {std::array{0, 0, 0},
                                           {1, 0, 0},
                                           {1, 1, 0},
                                           {0, 1, 0},
                                           {0, 0, 1},
                                           {1, 0, 1},
                                           {1, 1, 1},
                                           {0, 1, 1}}) {
                words.push_back(std::to_string(Node(bar, x + dx, y, z)));
            }
            elements += Line(words);
        }
    }
    std::string sets;
    for (std::size_t at = 0; at < bars_.size(); ++at) {
        const Bar& bar = bars_[at];
        const int number = static_cast<int>(at) + 1;
        sets +=
            "*NSET, NSET=" + NodeSet(number) + ", GENERATE\n" +
            Line({std::to_string(bar.firstNode), std::to_string(bar.firstNode + 4 * (bar.cubes + 1) - 1)}) +
            "*SOLID SECTION, ELSET=" + ElementSet(number) + ", MATERIAL=" + materialName_ + "\n";
    }
    return nodes + elements + material_ + sets;
}

std::string BarModel::Text() const {
    return Mesh() + amplitudes_ + "*INITIAL CONDITIONS, TYPE=TEMPERATURE\n" + initial_ + steps_;
}

}  // namespace zelmat
