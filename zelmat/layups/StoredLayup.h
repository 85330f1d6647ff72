#pragma once

#include <optional>
#include <string>
#include <vector>

#include "framework/KORStatus.h"
#include "zelmat/layups/StackingNotation.h"

namespace zelmat {

/// A layer as the document holds it.
struct StoredLayer {
    std::optional<std::string> material;  ///< its visible name; nothing when the layer has none
    double thickness = 0.0;               ///< m
    double angle = 0.0;                   ///< deg

    bool operator==(const StoredLayer&) const = default;
};

/// A layup as the document holds it: everything is read back from there.
struct StoredLayup {
    std::string name;                 ///< its visible name
    std::vector<StoredLayer> layers;  ///< the bottom one first
    bool valid = false;               ///< as the analysis framework is told
    HRESULT verdict = S_OK;           ///< the status that came with it
    bool unused = true;               ///< no composite section of its property set references it

    std::string LayerCount() const;  ///< "8 layers"
    double Thickness() const;        ///< of all layers, m

    /// z of every interface from the middle plane of the laminate, the bottom face first, m: one more than
    /// there are layers.
    std::vector<double> Interfaces() const;

    /// Whether all layers are of one material and one thickness, so that the angles say it all.
    bool IsOfOnePly() const;
    std::string Notation() const;  ///< of the angles; empty without layers
};

}  // namespace zelmat
