#pragma once

#include <string>

namespace zelmat {

/// A rectangle of a picture, in pixels; y points down.
struct PictureBox {
    double left, top, width, height;
};

/// The hatching of a ply as the data of an SVG path: lines along its fibres as seen from above, at an angle
/// in degrees from the direction to the right, counter-clockwise. They begin and end inside the box, clear of
/// its edges, so that neighbours of one angle stay two; one goes through the middle of the box.
std::string PlyHatching(const PictureBox& box, double angle);

/// A number of pixels, to a hundredth.
std::string Pixels(double value);

}  // namespace zelmat
