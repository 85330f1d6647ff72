#include "zelmat/layups/StoredLayup.h"

#include <algorithm>

namespace zelmat {

std::string StoredLayup::LayerCount() const {
    return std::to_string(layers.size()) + (layers.size() == 1 ? " layer" : " layers");
}

double StoredLayup::Thickness() const {
    double sum = 0.0;
    for (const StoredLayer& layer : layers) sum += layer.thickness;
    return sum;
}

std::vector<double> StoredLayup::Interfaces() const {
    const double middle = Thickness() / 2.0;
    std::vector<double> heights = {-middle};
    double below = 0.0;
    for (const StoredLayer& layer : layers) {
        below += layer.thickness;
        heights.push_back(below - middle);
    }
    return heights;
}

bool StoredLayup::IsOfOnePly() const {
    return std::all_of(layers.begin(), layers.end(), [this](const StoredLayer& layer) {
        return layer.material == layers.front().material && layer.thickness == layers.front().thickness;
    });
}

std::string StoredLayup::Notation() const {
    StackingSequence angles;
    for (const StoredLayer& layer : layers) angles.push_back(layer.angle);
    return angles.empty() ? "" : WriteStackingNotation(angles);
}

}  // namespace zelmat
