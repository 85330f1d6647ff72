#include "zelmat/layups/LayupDrawing.h"

#include <algorithm>
#include <cmath>

#include "zelmat/layups/LayupLegend.h"
#include "zelmat/layups/Millimetres.h"
#include "zelmat/layups/StackPlan.h"
#include "zelmat/layups/SvgSheet.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WrappedText.h"

namespace zelmat {

namespace {

// Pixels.
constexpr double kMargin = 20.0;
constexpr double kWidth = 980.0;
constexpr double kNumbersRight = 160.0;  ///< where the z of the interfaces end
constexpr double kAxis = 170.0;          ///< the axis z
constexpr double kStackLeft = 232.0;
constexpr double kStackWidth = 250.0;
constexpr double kStackRight = kStackLeft + kStackWidth;
constexpr double kLegendLeft = 745.0;
constexpr double kFont = 12.0;
constexpr double kLine = 16.0;  ///< from one line of text to the next

constexpr const char* kGrey = "fill=\"#555\"";
constexpr const char* kHatching = "stroke=\"#333\" stroke-width=\"1\" fill=\"none\"";
constexpr const char* kEdge = "stroke=\"#222\" stroke-width=\"1.2\"";

/// What an analyst reads off a picture.
constexpr int kDigits = 6;

class Drawing {
public:
    Drawing(const StoredLayup& layup, const LayupPicture& picture)
        : layup_(layup),
          picture_(picture),
          legend_(layup, picture.isotropic),
          plan_(PlanStack(layup)),
          z_(layup.Interfaces()),
          length_("length", picture.units) {}

    std::string Text() {
        Head();
        double end = stackBottom_;
        if (!layup_.layers.empty()) {
            Plies();
            Interfaces();
            MiddlePlane();
            SectionAxes();
            constexpr double kSectionAxes = 112.0;
            end = std::max(stackBottom_ + kSectionAxes, Legend());
        }
        constexpr double kEms = 60.0;  // as much of a name as somebody would read out
        return sheet_.Finished(kWidth, end + kMargin, ShortenedText(Printable(picture_.title), kEms, 1.0));
    }

private:
    double Y(double above) const { return stackBottom_ - above; }
    PictureBox Box(double bottom, double height) const {
        return {kStackLeft, Y(bottom + height), kStackWidth, height};
    }

    double Shown(double metres) const { return RoundedTo(length_(WithoutNoiseOfSums(metres)), kDigits); }
    std::string Length(double metres) const { return length_.Text(WithoutNoiseOfSums(metres), kDigits); }

    void Head() {
        constexpr double kTitleFont = 17.0 * 1.15, kTitleLine = 21.0;  // bold letters are wider
        constexpr std::size_t kTitleLines = 3, kFactLines = 3;
        const auto title =
            WrappedText(Printable(picture_.title), kWidth - 2.0 * kMargin, kTitleFont, kTitleLines);
        sheet_.Texts(kMargin, kMargin + 12.0, kTitleLine, "font-size=\"17\" font-weight=\"bold\"", title);
        const double below = kMargin + 14.0 + kTitleLine * static_cast<double>(title.size());
        const auto facts = WrappedText(Facts(), kWidth - 2.0 * kMargin, kFont, kFactLines);
        sheet_.Texts(kMargin, below, kLine, kGrey, facts);
        constexpr double kRoomForTheAxis = 52.0;
        top_ = below + kLine * static_cast<double>(facts.size()) + kRoomForTheAxis;
        stackBottom_ = top_ + plan_.height;
    }

    std::string Facts() const {
        if (layup_.layers.empty()) return "no layers";
        std::string facts = layup_.LayerCount() + ", " + Length(layup_.Thickness()) + " thick";
        const bool drawnOnce = std::any_of(plan_.groups.begin(), plan_.groups.end(),
                                           [](const DrawnGroup& group) { return group.times > 1; });
        if (drawnOnce) facts += "; plies that repeat are drawn once";
        if (IsAnyCutShort()) {
            facts += "; not to scale, thick plies are cut short";
        } else if (plan_.toScale) {
            facts += "; to scale through the thickness";
        }
        return facts;
    }
    bool IsAnyCutShort() const {
        for (const DrawnGroup& group : plan_.groups) {
            for (const DrawnPly& ply : group.plies) {
                if (ply.cutShort) return true;
            }
        }
        return false;
    }

    void Plies() {
        for (const DrawnGroup& group : plan_.groups) {
            for (const DrawnPly& ply : group.plies) Ply(group, ply);
            if (group.plies.empty()) LeftOut(group);
            if (group.times > 1) Bracket(group);
        }
    }

    void Ply(const DrawnGroup& group, const DrawnPly& ply) {
        const StoredLayer& layer = layup_.layers[ply.layer];
        const LegendMaterial& material = legend_.Of(layer);
        const PictureBox box = Box(ply.bottom, ply.height);
        sheet_.Rectangle(box, std::string("class=\"ply\" fill=\"") + material.color + "\" " + kEdge);
        if (!material.isotropic) sheet_.Path(PlyHatching(box, layer.angle), kHatching);
        const double middle = box.top + box.height / 2.0;
        if (ply.cutShort) Break(middle);
        sheet_.Text(kStackRight + 14.0, middle + 4.0, "", Label(group, ply, layer, material));
    }

    std::string Label(const DrawnGroup& group, const DrawnPly& ply, const StoredLayer& layer,
                      const LegendMaterial& material) const {
        std::string label = Numbers(group, ply.layer) + ": ";
        label += material.isotropic ? "isotropic" : NumberText(RoundedTo(layer.angle, kDigits)) + "°";
        if (!material.name) {
            label += ", no material";
        } else if (legend_.Materials().size() > 1) {
            label += ", " + material.mark;
        }
        return label + ", " + Length(layer.thickness);
    }

    /// "3", "3, 7", "3, 7, 11", "3, 7, …, 4999"
    static std::string Numbers(const DrawnGroup& group, std::size_t layer) {
        constexpr std::size_t kAllNamed = 3;
        std::string numbers = std::to_string(layer + 1);
        const auto number = [&](std::size_t time) { return std::to_string(layer + 1 + time * group.layers); };
        if (group.times > 1) numbers += ", " + number(1);
        if (group.times > kAllNamed) numbers += ", …";
        if (group.times >= kAllNamed) numbers += ", " + number(group.times - 1);
        return numbers;
    }

    /// The mark of something longer than it is drawn: two zigzags across, with nothing between.
    void Break(double middle) {
        constexpr double kHalfGap = 3.0, kStep = 6.25, kHalfHeight = 3.0;
        constexpr int kSteps = static_cast<int>(kStackWidth / kStep);
        const auto zigzag = [&](double y, int from, int to) {
            std::string points;
            for (int i = from; i != to; i += from < to ? 1 : -1) {
                points += (points.empty() && y < middle ? 'M' : 'L') + Pixels(kStackLeft + kStep * i) + ' ' +
                          Pixels(y + (i % 2 == 0 ? -kHalfHeight : kHalfHeight));
            }
            return points;
        };
        const std::string upper = zigzag(middle - kHalfGap, 0, kSteps + 1);
        std::string lower = zigzag(middle + kHalfGap, kSteps, -1);
        sheet_.Path(upper + lower + 'Z', "fill=\"white\" stroke=\"none\"");
        sheet_.Path(upper, "fill=\"none\" stroke=\"#222\"");
        lower.front() = 'M';
        sheet_.Path(lower, "fill=\"none\" stroke=\"#222\"");
    }

    void LeftOut(const DrawnGroup& group) {
        const PictureBox box = Box(group.bottom, group.height);
        sheet_.Rectangle(box, std::string("fill=\"#eee\" stroke-dasharray=\"4 3\" ") + kEdge);
        const std::size_t last = group.first + group.AllLayers();
        sheet_.Text(kStackRight + 14.0, box.top + box.height / 2.0 + 4.0, "",
                    std::to_string(group.first + 1) + " to " + std::to_string(last) +
                        " not drawn: " + Length(z_[last] - z_[group.first]));
    }

    /// Left of plies that are drawn once, with how often they are there.
    void Bracket(const DrawnGroup& group) {
        constexpr double kInside = 5.0, kOutside = 11.0, kClear = 2.0;
        const double low = Y(group.bottom) - kClear, high = Y(group.bottom + group.height) + kClear;
        sheet_.Path("M" + Pixels(kStackLeft - kInside) + ' ' + Pixels(high) + 'H' +
                        Pixels(kStackLeft - kOutside) + 'V' + Pixels(low) + 'H' +
                        Pixels(kStackLeft - kInside),
                    "stroke=\"#222\" fill=\"none\"");
        sheet_.Text(kStackLeft - kOutside - 4.0, (low + high) / 2.0 + 4.0, "text-anchor=\"end\"",
                    "×" + std::to_string(group.times));
    }

    /// Left of the stack: the axis z with the interfaces.
    void Interfaces() {
        std::vector<double> shown, heights;
        for (const DrawnGroup& group : plan_.groups) {
            shown.push_back(Shown(z_[group.first]));
            heights.push_back(group.bottom);
        }
        shown.push_back(Shown(z_.back()));
        heights.push_back(plan_.height);
        const auto numbers = NumberColumn(shown);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const double y = Y(heights[i]);
            sheet_.Line(kAxis - 5.0, y, kAxis, y, "stroke=\"#222\"");
            sheet_.Text(kNumbersRight, y + 4.0, "class=\"z\" text-anchor=\"end\"",
                        numbers[i].substr(numbers[i].find_first_not_of(' ')));
        }
        sheet_.Arrow(kAxis, stackBottom_ + 6.0, kAxis, top_ - 34.0);
        sheet_.Text(kAxis - 8.0, top_ - 28.0, "text-anchor=\"end\" font-weight=\"bold\"",
                    "z [" + length_.Unit() + "]");
        const double middle = kStackLeft + kStackWidth / 2.0;
        sheet_.Text(middle, top_ - 8.0, "text-anchor=\"middle\" font-weight=\"bold\"", "top");
        sheet_.Text(middle, stackBottom_ + 18.0, "text-anchor=\"middle\" font-weight=\"bold\"", "bottom");
    }

    void MiddlePlane() {
        const double y = Y(plan_.HeightOf(0.0, z_));
        sheet_.Line(kAxis, y, kStackRight + 8.0, y,
                    "class=\"middle\" stroke=\"#c00000\" stroke-width=\"1.6\" stroke-dasharray=\"14 4 3 4\"");
        sheet_.Text(kMargin, y + 4.0, "fill=\"#c00000\"", "middle plane");
    }

    /// Below the stack: how the section lies.
    void SectionAxes() {
        const double x = kStackLeft + 4.0, y = stackBottom_ + 84.0;
        constexpr double kLong = 34.0, kRadius = 4.5, kCross = 3.2;
        sheet_.Arrow(x, y, x + kLong, y);
        sheet_.Arrow(x, y, x, y - kLong);
        sheet_.Circle(x, y, kRadius, "fill=\"white\" stroke=\"#222\"");
        sheet_.Line(x - kCross, y - kCross, x + kCross, y + kCross, "stroke=\"#222\"");
        sheet_.Line(x - kCross, y + kCross, x + kCross, y - kCross, "stroke=\"#222\"");
        sheet_.Text(x + kLong + 4.0, y + 4.0, "font-weight=\"bold\"", "x");
        sheet_.Text(x + 6.0, y - kLong + 6.0, "font-weight=\"bold\"", "z");
        sheet_.Text(x - 16.0, y + 8.0, "font-weight=\"bold\"", "y");
        sheet_.Text(x + kLong + 26.0, y - 8.0, kGrey, "section, y points away from you;");
        sheet_.Text(x + kLong + 26.0, y + 8.0, kGrey, "the first layer is at the bottom");
    }

    /// Right of everything. The lower end.
    double Legend() {
        double y = top_ - 8.0;
        y = Materials(y) + 10.0;
        if (!legend_.Angles().empty()) y = SeenFromAbove(Angles(y) + 10.0);
        return y;
    }

    double Heading(double y, const std::string& text) {
        sheet_.Text(kLegendLeft, y, "font-weight=\"bold\"", text);
        return y + 10.0;
    }

    double Materials(double y) {
        constexpr std::size_t kMost = 20, kNameLines = 4;
        constexpr double kTextLeft = kLegendLeft + 34.0;
        y = Heading(y, "Materials");
        std::size_t left = legend_.Materials().size();
        for (const LegendMaterial& material : legend_.Materials()) {
            if (left + kMost == legend_.Materials().size()) break;
            --left;
            sheet_.Rectangle({kLegendLeft, y, 26.0, 15.0},
                             std::string("fill=\"") + material.color + "\" " + kEdge);
            const std::string name = material.name ? Printable(*material.name) : "no material";
            const auto lines =
                WrappedText(material.mark + "  " + name, kWidth - kMargin - kTextLeft, kFont, kNameLines);
            sheet_.Texts(kTextLeft, y + 12.0, kLine, "class=\"material\"", lines);
            y += 12.0 + kLine * static_cast<double>(lines.size());
            sheet_.Text(kTextLeft, y, kGrey,
                        std::string(material.isotropic ? "isotropic, " : "") + PliesText(material.plies) +
                            ", " + Length(material.thickness));
            y += 8.0;
        }
        if (left > 0) sheet_.Text(kTextLeft, y + 12.0, kGrey, "and " + CountText(left, "more material"));
        return y + (left > 0 ? kLine + 10.0 : 10.0);
    }

    static std::string PliesText(std::size_t plies) {
        return plies == 1 ? "1 ply" : std::to_string(plies) + " plies";
    }

    double Angles(double y) {
        constexpr std::size_t kMost = 16;
        y = Heading(y, "Angles");
        std::size_t left = legend_.Angles().size();
        for (const auto& [angle, plies] : legend_.Angles()) {
            if (left + kMost == legend_.Angles().size()) break;
            --left;
            const PictureBox swatch{kLegendLeft, y, 26.0, 20.0};
            sheet_.Rectangle(swatch, std::string("fill=\"white\" ") + kEdge);
            sheet_.Path(PlyHatching(swatch, angle), kHatching);
            sheet_.Text(kLegendLeft + 34.0, y + 14.0, "class=\"angle\"",
                        NumberText(RoundedTo(angle, kDigits)) + "°, " + PliesText(plies));
            y += 26.0;
        }
        if (left > 0)
            sheet_.Text(kLegendLeft + 34.0, y + 12.0, kGrey, "and " + CountText(left, "more angle"));
        return y + (left > 0 ? kLine + 10.0 : 10.0);
    }

    /// The axes in which hatchings and angles are meant.
    double SeenFromAbove(double y) {
        sheet_.Text(kLegendLeft, y, "font-weight=\"bold\"", "Hatching: the fibres from above");
        constexpr double kLong = 62.0, kTurn = 0.7, kArc = 44.0;
        const double x = kLegendLeft + 24.0, origin = y + kLong + 22.0;
        sheet_.Arrow(x, origin, x + kLong, origin);
        sheet_.Arrow(x, origin, x, origin - kLong);
        sheet_.Circle(x, origin, 4.5, "fill=\"white\" stroke=\"#222\"");
        sheet_.Circle(x, origin, 1.5, "fill=\"#222\"");
        sheet_.Text(x + kLong + 4.0, origin + 4.0, "font-weight=\"bold\"", "x");
        sheet_.Text(x + 7.0, origin - kLong + 8.0, "font-weight=\"bold\"", "y");
        sheet_.Text(x - 16.0, origin + 8.0, "font-weight=\"bold\"", "z");
        const double endX = x + kArc * std::cos(kTurn), endY = origin - kArc * std::sin(kTurn);
        sheet_.Line(x, origin, x + kLong * std::cos(kTurn), origin - kLong * std::sin(kTurn),
                    "stroke=\"#555\" stroke-dasharray=\"3 2\"");
        sheet_.Path("M" + Pixels(x + kArc) + ' ' + Pixels(origin) + "A44 44 0 0 0 " + Pixels(endX) + ' ' +
                        Pixels(endY),
                    "fill=\"none\" stroke=\"#555\"");
        sheet_.Text(endX + 22.0, endY - 2.0, kGrey, "positive angle");
        return origin + 12.0;
    }

    const StoredLayup& layup_;
    const LayupPicture& picture_;
    const LayupLegend legend_;
    const StackPlan plan_;
    const std::vector<double> z_;
    const ShownQuantity length_;
    double top_ = 0.0;          // of the stack
    double stackBottom_ = 0.0;  // y of its lower end
    SvgSheet sheet_;
};

}  // namespace

std::string LayupDrawing(const StoredLayup& layup, const LayupPicture& picture) {
    return Drawing(layup, picture).Text();
}

}  // namespace zelmat
