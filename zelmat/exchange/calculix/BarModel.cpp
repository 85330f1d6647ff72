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

void BarModel::Shear(int bar, double amount) {
    Prescribe(bar, Z0, 1, 0.0);
    Prescribe(bar, Z1, 1, amount);
    Prescribe(bar, Y0, 2, 0.0);
    Prescribe(bar, Z0, 3, 0.0);
    Prescribe(bar, Z1, 3, 0.0);
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
    for (std::size_t bar = 1; bar <= bars_.size(); ++bar) steps_ += ForBar(output, static_cast<int>(bar));
    steps_ += "*END STEP\n";
    boundary_.clear();
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
    return Mesh() + "*INITIAL CONDITIONS, TYPE=TEMPERATURE\n" + initial_ + steps_;
}

}  // namespace zelmat
