#include "zelmat/layups/LayupDrawing.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

#include "zelmat/layups/Millimetres.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

// Pixels.
constexpr double kTop = 60.0;
constexpr double kStackLeft = 150.0;
constexpr double kStackWidth = 260.0;
constexpr double kStackRight = kStackLeft + kStackWidth;
constexpr double kWidth = 760.0;
constexpr double kLabelStep = 15.0;  ///< between two labels that stand close
constexpr double kLeast = 300.0;     ///< height of a stack
constexpr std::size_t kMostLabels = 200;

constexpr const char* kColors[] = {"#cfe3f5", "#f6e2c3", "#d8eccb", "#f3d0d7", "#e0d5f0", "#d5e8e6"};

/// To a hundredth of a pixel.
std::string Px(double value) {
    constexpr double kSteps = 100.0;
    const double rounded = std::round(value * kSteps) / kSteps;
    return NumberText(rounded == 0.0 ? 0.0 : rounded);
}

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char symbol : text) {
        switch (symbol) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                // XML has no control characters; a tab or a new line in a name is a blank here.
                escaped += static_cast<unsigned char>(symbol) < 0x20 ? ' ' : symbol;
        }
    }
    return escaped;
}

/// Heights at which labels stand so that none covers the next: near the wanted ones, which go down the
/// picture, and inside the limits as far as they fit.
std::vector<double> Spread(std::vector<double> wanted, double bottom) {
    for (std::size_t i = 1; i < wanted.size(); ++i) {
        wanted[i] = std::max(wanted[i], wanted[i - 1] + kLabelStep);
    }
    for (std::size_t i = wanted.size(); i-- > 0;) {
        wanted[i] = std::min(wanted[i], bottom);
        bottom = wanted[i] - kLabelStep;
    }
    return wanted;
}

/// 1, 2 or 5 times a power of ten, at most as long as that.
double RoundLength(double longest) {
    const double power = std::pow(10.0, std::floor(std::log10(longest)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * power <= longest) return factor * power;
    }
    return power;
}

class Drawing {
public:
    Drawing(const StoredLayup& layup, const std::string& title) : layup_(layup), title_(title) {
        const std::size_t count = layup.layers.size();
        every_ = std::max<std::size_t>(1, (count + kMostLabels - 1) / kMostLabels);
        const std::size_t labels = count / every_ + 2;
        height_ = std::max(kLeast, static_cast<double>(labels) * kLabelStep);
        z_ = layup.Interfaces();
        scale_ = layup.Thickness() > 0.0 ? height_ / layup.Thickness() : 0.0;
    }

    std::string Text() {
        Head();
        Patterns();
        Layers();
        Labels();
        Heights();
        Scale();
        text_ << "</svg>\n";
        return text_.str();
    }

private:
    double Y(double z) const { return kTop + (z_.back() - z) * scale_; }
    double Bottom() const { return kTop + height_; }
    bool IsLabelled(std::size_t layer) const {
        return layer % every_ == 0 || layer + 1 == layup_.layers.size();
    }

    void Write(double x, double y, const char* attributes, const std::string& text) {
        text_ << "  <text x=\"" << Px(x) << "\" y=\"" << Px(y) << "\" " << attributes << '>' << Escaped(text)
              << "</text>\n";
    }
    void Line(double x1, double y1, double x2, double y2, const char* color) {
        text_ << "  <line x1=\"" << Px(x1) << "\" y1=\"" << Px(y1) << "\" x2=\"" << Px(x2) << "\" y2=\""
              << Px(y2) << "\" stroke=\"" << color << "\"/>\n";
    }

    void Head() {
        const std::string width = Px(kWidth);
        const std::string height = Px(Bottom() + 70.0);
        text_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\"" << height
              << "\" viewBox=\"0 0 " << width << ' ' << height
              << "\" font-family=\"sans-serif\" font-size=\"12\">\n"
              << "  <rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
        Write(20.0, 24.0, "font-size=\"16\"", title_);
        std::string facts = layup_.LayerCount() + ", " + Millimetres(layup_.Thickness()) +
                            " mm thick; z from the middle plane";
        if (every_ > 1) facts += "; every " + std::to_string(every_) + "th layer is labelled";
        Write(20.0, 44.0, "fill=\"#555\"", facts);
    }

    /// One hatching per angle: lines along the fibres, seen from above. The picture's y axis points down.
    void Patterns() {
        for (const StoredLayer& layer : layup_.layers) {
            patterns_.try_emplace(layer.angle, "angle" + std::to_string(patterns_.size() + 1));
        }
        text_ << "  <defs>\n";
        for (const auto& [angle, id] : patterns_) {
            text_ << "    <pattern id=\"" << id
                  << "\" width=\"6\" height=\"6\" patternUnits=\"userSpaceOnUse\" "
                     "patternTransform=\"rotate("
                  << NumberText(0.0 - angle) << ")\"><line x1=\"0\" y1=\"3\" x2=\"6\" y2=\"3\" "
                  << "stroke=\"#445\" stroke-width=\"0.7\"/></pattern>\n";
        }
        text_ << "  </defs>\n";
    }

    void Layers() {
        std::map<std::optional<std::string>, const char*> colors;
        for (std::size_t i = 0; i < layup_.layers.size(); ++i) {
            const StoredLayer& layer = layup_.layers[i];
            const char* next = kColors[colors.size() % std::size(kColors)];
            const char* color = colors.try_emplace(layer.material, next).first->second;
            Box(z_[i], z_[i + 1], color, "");
            Box(z_[i], z_[i + 1], "url(#" + patterns_.at(layer.angle) + ")", " stroke=\"#223\"");
        }
    }
    void Box(double below, double above, const std::string& fill, const char* attributes) {
        text_ << "  <rect x=\"" << Px(kStackLeft) << "\" y=\"" << Px(Y(above)) << "\" width=\""
              << Px(kStackWidth) << "\" height=\"" << Px(Y(below) - Y(above)) << "\" fill=\"" << fill << "\""
              << attributes << "/>\n";
    }

    /// Right of the stack, from the top down.
    void Labels() {
        std::vector<std::size_t> labelled;
        std::vector<double> wanted;
        for (std::size_t i = layup_.layers.size(); i-- > 0;) {
            if (!IsLabelled(i)) continue;
            labelled.push_back(i);
            wanted.push_back((Y(z_[i]) + Y(z_[i + 1])) / 2.0);
        }
        const std::vector<double> heights = Spread(wanted, Bottom());
        for (std::size_t label = 0; label < labelled.size(); ++label) {
            const StoredLayer& layer = layup_.layers[labelled[label]];
            Line(kStackRight, wanted[label], kStackRight + 30.0, heights[label], "#999");
            Write(kStackRight + 35.0, heights[label] + 4.0, "text-anchor=\"start\"",
                  std::to_string(labelled[label] + 1) + ": " + NumberText(layer.angle) + "°, " +
                      layer.material.value_or("no material") + ", " + Millimetres(layer.thickness) + " mm");
        }
    }

    /// Left of the stack: the z of the interfaces, from the top down.
    void Heights() {
        std::vector<double> labelled;
        std::vector<double> wanted;
        for (std::size_t i = z_.size(); i-- > 0;) {
            if (i + 1 < z_.size() && !IsLabelled(i)) continue;
            labelled.push_back(z_[i]);
            wanted.push_back(Y(z_[i]));
        }
        const std::vector<double> heights = Spread(wanted, Bottom() + kLabelStep);
        for (std::size_t label = 0; label < labelled.size(); ++label) {
            Line(kStackLeft - 30.0, heights[label], kStackLeft, wanted[label], "#999");
            Write(kStackLeft - 35.0, heights[label] + 4.0, "text-anchor=\"end\"",
                  "z = " + Millimetres(labelled[label]) + " mm");
        }
    }

    void Scale() {
        if (scale_ == 0.0) return;
        const double length = RoundLength(kStackWidth / scale_);
        const double y = Bottom() + 45.0;
        Line(kStackLeft, y, kStackLeft + length * scale_, y, "black");
        Line(kStackLeft, y - 4.0, kStackLeft, y + 4.0, "black");
        Line(kStackLeft + length * scale_, y - 4.0, kStackLeft + length * scale_, y + 4.0, "black");
        Write(kStackLeft, y + 17.0, "fill=\"#555\"", "through the thickness: " + Millimetres(length) + " mm");
    }

    const StoredLayup& layup_;
    const std::string& title_;
    std::size_t every_ = 1;  ///< of so many layers one carries a label
    double height_ = kLeast;
    double scale_ = 0.0;  ///< pixels per metre of thickness
    std::vector<double> z_;
    std::map<double, std::string> patterns_;
    std::ostringstream text_;
};

}  // namespace

std::string LayupDrawing(const StoredLayup& layup, const std::string& title) {
    return Drawing(layup, title).Text();
}

}  // namespace zelmat
