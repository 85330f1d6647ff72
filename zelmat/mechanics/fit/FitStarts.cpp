#include "zelmat/mechanics/fit/FitStarts.h"

#include <Eigen/Dense>
#include <algorithm>
#include <array>
#include <cmath>

#include "zelmat/mechanics/fit/LinearLeastSquares.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

namespace zelmat::mechanics {

namespace {

using enum HyperelasticModel;
using Columns = std::vector<std::vector<double>>;

constexpr std::array kExponents = {-20.0, -10.0, -6.0, -4.0, -3.0, -2.0, -1.0, -0.4, 0.4,
                                   0.8,   1.3,   2.0,  2.8,  4.0,  5.5,  8.0,  12.0, 20.0};
constexpr std::size_t kBest = 8;  ///< starts that are taken from the top of the list
constexpr std::size_t kMore = 4;  ///< and those spread over its best tenth

/// A start with the deviation that it has before anything is moved.
struct Candidate {
    double sum;
    std::vector<double> coefficients;
};

/// The weighted derivatives of the stress by the coefficients, one column a coefficient; none where the
/// potential ends before a point.
Columns StressColumns(HyperelasticModel model, int order, const std::vector<double>& coefficients,
                      const std::vector<FitPoint>& points, const std::vector<double>& weights) {
    const auto energy = MakeStrainEnergy(model, order, coefficients);
    if (!energy.Ok()) return {};
    Columns columns(coefficients.size(), std::vector<double>(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto slopes = NominalStressByCoefficient(**energy, points[i].mode, points[i].stretch);
        if (slopes.empty()) return {};
        for (std::size_t k = 0; k < slopes.size(); ++k) columns[k][i] = weights[i] * slopes[k];
    }
    return columns;
}

std::vector<double> WeightedStresses(const std::vector<FitPoint>& points,
                                     const std::vector<double>& weights) {
    std::vector<double> stresses;
    for (std::size_t i = 0; i < points.size(); ++i) stresses.push_back(weights[i] * points[i].nominalStress);
    return stresses;
}

double SumOfSquares(const Columns& columns, const std::vector<double>& factors,
                    const std::vector<double>& target) {
    double sum = 0.0;
    for (std::size_t i = 0; i < target.size(); ++i) {
        double deviation = target[i];
        for (std::size_t k = 0; k < factors.size(); ++k) deviation -= factors[k] * columns[k][i];
        sum += deviation * deviation;
    }
    return sum;
}

std::vector<std::vector<double>> Selected(std::vector<Candidate> candidates) {
    std::erase_if(candidates, [](const Candidate& candidate) { return !std::isfinite(candidate.sum); });
    std::sort(candidates.begin(), candidates.end(),
              [](const Candidate& a, const Candidate& b) { return a.sum < b.sum; });
    std::vector<std::vector<double>> starts;
    const std::size_t step = std::max<std::size_t>(1, candidates.size() / (10 * kMore));
    for (std::size_t i = 0; i < candidates.size() && starts.size() < kBest + kMore;
         i += starts.size() < kBest ? 1 : step) {
        starts.push_back(candidates[i].coefficients);
    }
    return starts;
}

/// Every choice of `order` exponents of the grid, by its normal equations, which are parts of one matrix.
class OgdenGrid {
public:
    OgdenGrid(int order, const std::vector<FitPoint>& points, const std::vector<double>& weights)
        : order_(order) {
        const auto target = WeightedStresses(points, weights);
        const auto rows = static_cast<Eigen::Index>(points.size());
        Eigen::MatrixXd columns(rows, static_cast<Eigen::Index>(kExponents.size()));
        for (std::size_t k = 0; k < kExponents.size(); ++k) {
            const auto column = StressColumns(OGDEN, 1, {1.0, kExponents[k]}, points, weights).front();
            columns.col(static_cast<Eigen::Index>(k)) =
                Eigen::Map<const Eigen::VectorXd>(column.data(), rows);
        }
        lengths_ = columns.colwise().norm();
        columns = columns * lengths_.cwiseInverse().asDiagonal();
        const Eigen::Map<const Eigen::VectorXd> right(target.data(), rows);
        products_ = columns.transpose() * columns;
        right_ = columns.transpose() * right;
        square_ = right.squaredNorm();
    }

    std::vector<Candidate> Candidates() {
        Choose(0);
        return std::move(candidates_);
    }

private:
    void Choose(Eigen::Index from) {
        if (static_cast<int>(chosen_.size()) == order_) {
            Solve();
            return;
        }
        for (Eigen::Index k = from; k < products_.cols(); ++k) {
            chosen_.push_back(k);
            Choose(k + 1);
            chosen_.pop_back();
        }
    }

    void Solve() {
        const Eigen::MatrixXd part = products_(chosen_, chosen_);
        const Eigen::VectorXd right = right_(chosen_);
        const Eigen::VectorXd factors = part.ldlt().solve(right);
        std::vector<double> coefficients;
        double modulus = 0.0;
        for (std::size_t i = 0; i < chosen_.size(); ++i) {
            const double mu = factors(static_cast<Eigen::Index>(i)) / lengths_(chosen_[i]);
            modulus += mu;
            coefficients.push_back(mu);
            coefficients.push_back(kExponents[static_cast<std::size_t>(chosen_[i])]);
        }
        const double sum = square_ - 2.0 * right.dot(factors) + factors.dot(part * factors);
        if (modulus > 0.0) candidates_.push_back({.sum = sum, .coefficients = std::move(coefficients)});
    }

    int order_;
    Eigen::VectorXd lengths_;
    Eigen::MatrixXd products_;
    Eigen::VectorXd right_;
    double square_ = 0.0;
    std::vector<Eigen::Index> chosen_;
    std::vector<Candidate> candidates_;
};

std::vector<Candidate> ArrudaBoyceGrid(const std::vector<FitPoint>& points,
                                       const std::vector<double>& weights) {
    const auto target = WeightedStresses(points, weights);
    std::vector<Candidate> candidates;
    for (const double locking : {1.05, 1.3, 1.7, 2.2, 3.0, 4.0, 5.0, 6.5, 9.0, 15.0, 50.0}) {
        const auto columns = StressColumns(ARRUDA_BOYCE, 1, {1.0, locking}, points, weights);
        const auto mu = SolveLinear({columns[0]}, target);
        candidates.push_back(
            {.sum = SumOfSquares({columns[0]}, mu, target), .coefficients = {mu[0], locking}});
    }
    return candidates;
}

/// The greatest (1 - beta)(I1 - 3) + beta (I2 - 3) of all points.
double GreatestInvariant(const std::vector<FitPoint>& points, double beta) {
    double greatest = 0.0;
    for (const FitPoint& point : points) {
        const auto stretches = PointOn(point.mode, point.stretch).stretches;
        greatest = std::max(greatest, (1.0 - beta) * stretches.first + beta * stretches.second);
    }
    return greatest;
}

std::vector<Candidate> VanDerWaalsGrid(const std::vector<FitPoint>& points,
                                       const std::vector<double>& weights) {
    const auto target = WeightedStresses(points, weights);
    std::vector<Candidate> candidates;
    for (const double beta : {0.0, 0.01, 0.05, 0.2, 0.5, 0.9}) {
        const double greatest = GreatestInvariant(points, beta);
        for (const double drawn : {0.03, 0.1, 0.25, 0.4, 0.55, 0.7, 0.8, 0.88, 0.94, 0.98}) {
            const double locking = std::sqrt(3.0 + greatest / (drawn * drawn));
            const auto columns = StressColumns(VAN_DER_WAALS, 1, {1.0, locking, 0.0, beta}, points, weights);
            if (columns.empty()) continue;
            const Columns linear = {columns[0], columns[2]};  // by mu, and by mu a
            auto factors = SolveLinear(linear, target);
            if (factors[1] < 0.0) factors = {SolveLinear({columns[0]}, target)[0], 0.0};
            candidates.push_back({.sum = SumOfSquares(linear, factors, target),
                                  .coefficients = {factors[0], locking, factors[1] / factors[0], beta}});
        }
    }
    return candidates;
}

}  // namespace

std::vector<std::vector<double>> FitStarts(HyperelasticModel model, int order,
                                           const std::vector<FitPoint>& points,
                                           const std::vector<double>& residualWeights) {
    if (model == OGDEN) return Selected(OgdenGrid(order, points, residualWeights).Candidates());
    if (model == ARRUDA_BOYCE) return Selected(ArrudaBoyceGrid(points, residualWeights));
    if (model == VAN_DER_WAALS) return Selected(VanDerWaalsGrid(points, residualWeights));
    const std::vector<double> none(CoefficientNames(model, order).size(), 0.0);
    return {SolveLinear(StressColumns(model, order, none, points, residualWeights),
                        WeightedStresses(points, residualWeights))};
}

}  // namespace zelmat::mechanics
