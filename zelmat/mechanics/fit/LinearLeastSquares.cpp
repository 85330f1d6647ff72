#include "zelmat/mechanics/fit/LinearLeastSquares.h"

#include <Eigen/Dense>

namespace zelmat::mechanics {

std::vector<double> SolveLinear(const std::vector<std::vector<double>>& columns,
                                const std::vector<double>& target) {
    const auto count = static_cast<Eigen::Index>(columns.size());
    if (count == 0) return {};
    const auto rows = static_cast<Eigen::Index>(target.size());
    Eigen::MatrixXd matrix(rows, count);
    Eigen::VectorXd scale(count);
    for (Eigen::Index k = 0; k < count; ++k) {
        matrix.col(k) = Eigen::Map<const Eigen::VectorXd>(columns[static_cast<std::size_t>(k)].data(), rows);
        const double length = matrix.col(k).norm();
        scale(k) = length > 0.0 ? length : 1.0;
        matrix.col(k) /= scale(k);
    }
    const Eigen::Map<const Eigen::VectorXd> right(target.data(), rows);
    const Eigen::VectorXd solution =
        (matrix.completeOrthogonalDecomposition().solve(right).array() / scale.array()).matrix();
    return {solution.data(), solution.data() + count};
}

}  // namespace zelmat::mechanics
