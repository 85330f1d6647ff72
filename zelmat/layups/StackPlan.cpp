#include "zelmat/layups/StackPlan.h"

#include <algorithm>
#include <cmath>

namespace zelmat {

namespace {

using Layers = std::vector<StoredLayer>;

constexpr std::size_t kDrawnOneByOne = 64;
constexpr std::size_t kLongestRepeat = 16;     ///< plies
constexpr std::size_t kDrawnAtEitherEnd = 24;  ///< plies, of a stack that repeats too little

// Pixels.
constexpr double kThinnest = 18.0;  ///< of a ply: a line of text stands beside it
constexpr double kLeftOut = 40.0;   ///< of the box for plies that are left out

/// How often the plies from `first` on follow on themselves.
std::size_t Repeats(const Layers& layers, std::size_t first, std::size_t period) {
    std::size_t end = first + period;
    while (end < layers.size() && layers[end] == layers[end - period]) ++end;
    return (end - first) / period;
}

/// The repeat that covers most, the shortest of those; single plies else.
std::vector<DrawnGroup> Grouped(const Layers& layers) {
    std::vector<DrawnGroup> groups;
    for (std::size_t first = 0; first < layers.size(); first += groups.back().AllLayers()) {
        groups.push_back({.first = first, .layers = 1, .times = 1});
        if (layers.size() <= kDrawnOneByOne) continue;
        DrawnGroup& best = groups.back();
        for (std::size_t period = 1; period <= kLongestRepeat && first + period < layers.size(); ++period) {
            const std::size_t times = Repeats(layers, first, period);
            if (times > 1 && times * period > best.AllLayers()) {
                best.layers = period;
                best.times = times;
            }
        }
    }
    return groups;
}

std::size_t PliesToDraw(const std::vector<DrawnGroup>& groups) {
    std::size_t plies = 0;
    for (const DrawnGroup& group : groups) plies += group.layers;
    return plies;
}

/// How many groups from an end on draw no more plies than an end may have.
template <class Iterator>
std::size_t GroupsOfAnEnd(Iterator at, Iterator end) {
    std::size_t groups = 0;
    for (std::size_t plies = 0; at != end; ++at, ++groups) {
        plies += at->layers;
        if (plies > kDrawnAtEitherEnd) break;
    }
    return groups;
}

/// Keeps both ends; the index of the group that stands for the middle.
std::size_t LeaveOutTheMiddle(std::vector<DrawnGroup>& groups) {
    const std::size_t below = GroupsOfAnEnd(groups.begin(), groups.end());
    const std::size_t above = GroupsOfAnEnd(groups.rbegin(), groups.rend());
    const auto from = groups.begin() + static_cast<std::ptrdiff_t>(below);
    const auto to = groups.end() - static_cast<std::ptrdiff_t>(above);
    DrawnGroup middle{.first = from->first, .layers = to->first - from->first, .times = 1};
    groups.insert(groups.erase(from, to), std::move(middle));
    return below;
}

/// Turns thicknesses into pixels.
class Heights {
public:
    Heights(const Layers& layers, const StackPlan& plan) {
        double thickest = 0.0;
        for (const DrawnGroup& group : plan.groups) {
            for (const DrawnPly& ply : group.plies) {
                const double thickness = layers[ply.layer].thickness;
                thinnest_ = plies_ == 0 ? thickness : std::min(thinnest_, thickness);
                thickest = std::max(thickest, thickness);
                total_ += thickness;
                ++plies_;
            }
        }
        if (plies_ == 0 || !(thinnest_ > 0.0)) return;
        const double count = static_cast<double>(plies_);
        constexpr double kPleasant = 40.0, kLow = 120.0, kHigh = 320.0, kHighest = 640.0;
        scale_ = std::max(std::clamp(count * kPleasant, kLow, kHigh) / total_, kThinnest / thinnest_);
        constexpr double kNearlyEven = 1.2;
        toScale_ = total_ * scale_ <= kHighest || thickest <= kNearlyEven * thinnest_;
        if (toScale_) return;
        scale_ = kThinnest / thinnest_;
        constexpr double kCutLow = 36.0, kCutHigh = 140.0;
        tallest_ = std::clamp(kHighest / count, kCutLow, kCutHigh);
    }

    bool ToScale() const { return toScale_; }
    bool CutsShort(double thickness) const { return !toScale_ && thickness * scale_ > tallest_; }
    double Of(double thickness) const {
        if (toScale_) return thickness * scale_;
        return std::clamp(thickness * scale_, kThinnest, tallest_);
    }

private:
    std::size_t plies_ = 0;
    double total_ = 0.0;
    double thinnest_ = 0.0;
    double scale_ = 0.0;  // pixels per metre
    double tallest_ = kThinnest;
    bool toScale_ = false;
};

void Place(StackPlan& plan, const Layers& layers) {
    const Heights heights(layers, plan);
    plan.toScale = heights.ToScale();
    for (DrawnGroup& group : plan.groups) {
        group.bottom = plan.height;
        for (DrawnPly& ply : group.plies) {
            const double thickness = layers[ply.layer].thickness;
            ply.bottom = plan.height;
            ply.height = heights.Of(thickness);
            ply.cutShort = heights.CutsShort(thickness);
            plan.height += ply.height;
        }
        if (group.plies.empty()) plan.height += kLeftOut;
        group.height = plan.height - group.bottom;
        if (group.plies.size() != group.AllLayers()) plan.toScale = false;
    }
}

}  // namespace

double StackPlan::HeightOf(double z, const std::vector<double>& interfaces) const {
    for (const DrawnGroup& group : groups) {
        const double low = interfaces[group.first];
        const double high = interfaces[group.first + group.AllLayers()];
        if (z > high && &group != &groups.back()) continue;
        const double share = high > low ? std::clamp((z - low) / (high - low), 0.0, 1.0) : 0.0;
        return group.bottom + group.height * share;
    }
    return 0.0;
}

StackPlan PlanStack(const StoredLayup& layup) {
    StackPlan plan;
    plan.groups = Grouped(layup.layers);
    std::size_t leftOut = plan.groups.size();
    if (PliesToDraw(plan.groups) > kDrawnOneByOne) leftOut = LeaveOutTheMiddle(plan.groups);
    for (std::size_t i = 0; i < plan.groups.size(); ++i) {
        DrawnGroup& group = plan.groups[i];
        for (std::size_t ply = 0; i != leftOut && ply < group.layers; ++ply) {
            group.plies.push_back(
                {.layer = group.first + ply, .bottom = 0.0, .height = 0.0, .cutShort = false});
        }
    }
    Place(plan, layup.layers);
    return plan;
}

}  // namespace zelmat
