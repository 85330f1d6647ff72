#include "zelmat/mechanics/fit/Uncertainty.h"

#include <Eigen/Dense>
#include <cmath>

namespace zelmat::mechanics {

namespace {

using Matrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

constexpr double kStrong = 0.95;

/// Below this ratio of singular values (of columns of equal length) the data do not tell the parameters
/// apart.
constexpr double kSingular = 1e-10;

/// The columns of the parameters that were free to move.
Matrix FreeColumns(const std::vector<double>& rowMajor, const std::vector<bool>& fixed) {
    const auto columns = static_cast<Eigen::Index>(fixed.size());
    const Eigen::Map<const Matrix> all(rowMajor.data(), static_cast<Eigen::Index>(rowMajor.size()) / columns,
                                       columns);
    std::vector<Eigen::Index> free;
    for (Eigen::Index k = 0; k < columns; ++k) {
        if (!fixed[static_cast<std::size_t>(k)]) free.push_back(k);
    }
    return all(Eigen::all, free);
}

/// The columns brought to length 1, by the lengths that they had.
Eigen::VectorXd Normalise(Matrix& matrix) {
    Eigen::VectorXd lengths = matrix.colwise().norm();
    for (Eigen::Index k = 0; k < matrix.cols(); ++k) {
        if (lengths(k) == 0.0) lengths(k) = 1.0;
        matrix.col(k) /= lengths(k);
    }
    return lengths;
}

/// Judged by the coefficients themselves: a parameter may be the sum of two of them, which hides that they
/// act alike.
bool TellsApart(const LeastSquaresResult& result, const std::vector<double>& slopes) {
    const auto count = static_cast<Eigen::Index>(result.parameters.size());
    const Eigen::Map<const Matrix> bySlope(slopes.data(), count, count);
    const Eigen::Map<const Matrix> byParameter(
        result.residuals.jacobian.data(), static_cast<Eigen::Index>(result.residuals.values.size()), count);
    const Matrix byCoefficient = byParameter * bySlope.inverse();
    Matrix free =
        FreeColumns({byCoefficient.data(), byCoefficient.data() + byCoefficient.size()}, result.atBound);
    if (free.cols() == 0) return true;
    if (free.cols() > free.rows()) return false;
    Normalise(free);
    const Eigen::VectorXd singular = Eigen::JacobiSVD<Eigen::MatrixXd>(free).singularValues();
    return singular.minCoeff() > kSingular * singular.maxCoeff();
}

}  // namespace

Uncertainty UncertaintyOf(const LeastSquaresResult& result, const std::vector<double>& slopes) {
    const std::size_t parameters = result.parameters.size();
    const std::size_t coefficients = slopes.size() / parameters;
    Uncertainty uncertainty{.standardDeviations = std::vector<std::optional<double>>(coefficients),
                            .correlations = std::vector<std::vector<double>>(
                                coefficients, std::vector<double>(coefficients, 0.0))};

    uncertainty.distinguishable = TellsApart(result, slopes);
    Matrix jacobian = FreeColumns(result.residuals.jacobian, result.atBound);
    const Matrix bySlope = FreeColumns(slopes, result.atBound);
    if (!uncertainty.distinguishable || jacobian.cols() == 0 || jacobian.rows() <= jacobian.cols()) {
        return uncertainty;
    }
    const Eigen::VectorXd lengths = Normalise(jacobian);
    const Eigen::JacobiSVD<Eigen::MatrixXd> svd(jacobian, Eigen::ComputeThinV);
    const Eigen::VectorXd& singular = svd.singularValues();
    const double variance = result.sum / static_cast<double>(jacobian.rows() - jacobian.cols());
    const Eigen::MatrixXd root =
        bySlope * lengths.cwiseInverse().asDiagonal() * svd.matrixV() * singular.cwiseInverse().asDiagonal();
    const Eigen::MatrixXd covariance = root * root.transpose();
    for (std::size_t i = 0; i < coefficients; ++i) {
        if (result.atBound[i]) continue;
        const auto row = static_cast<Eigen::Index>(i);
        uncertainty.standardDeviations[i] = std::sqrt(variance * covariance(row, row));
        for (std::size_t k = 0; k < coefficients; ++k) {
            const auto column = static_cast<Eigen::Index>(k);
            const double size = std::sqrt(covariance(row, row) * covariance(column, column));
            if (size > 0.0 && !result.atBound[k])
                uncertainty.correlations[i][k] = covariance(row, column) / size;
        }
    }
    return uncertainty;
}

std::vector<Correlation> StrongCorrelations(const Uncertainty& uncertainty,
                                            const std::vector<std::string>& names) {
    std::vector<Correlation> strong;
    for (std::size_t i = 0; i < names.size(); ++i) {
        for (std::size_t k = i + 1; k < names.size(); ++k) {
            const double value = uncertainty.correlations[i][k];
            if (std::abs(value) > kStrong) strong.push_back({names[i], names[k], value});
        }
    }
    return strong;
}

}  // namespace zelmat::mechanics
