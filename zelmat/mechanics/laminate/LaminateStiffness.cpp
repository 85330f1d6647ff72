#include "zelmat/mechanics/laminate/LaminateStiffness.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>

#include "zelmat/mechanics/laminate/PlyStiffness.h"

namespace zelmat::mechanics {

namespace {

constexpr double kRounding = 1e-15;

/// A sum of matrices that knows how great its summands were.
class MatrixSum {
public:
    void Add(const Matrix3& matrix, double factor) {
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t k = 0; k < 3; ++k) {
                sum_[i][k] += matrix[i][k] * factor;
                greatest_ = std::max(greatest_, std::abs(matrix[i][k] * factor));
            }
        }
        ++count_;
    }

    Matrix3 Rounded() const {
        Matrix3 sum = sum_;
        for (Vector3& row : sum) {
            for (double& entry : row) {
                if (std::abs(entry) <= kRounding * count_ * greatest_) entry = 0.0;
            }
        }
        return sum;
    }

private:
    Matrix3 sum_{};
    double greatest_ = 0.0;
    double count_ = 0.0;
};

Eigen::Matrix3d ToEigen(const Matrix3& matrix) {
    Eigen::Matrix3d copy;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            copy(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(k)) = matrix[i][k];
        }
    }
    return copy;
}

Matrix3 FromEigen(const Eigen::Matrix3d& matrix) {
    Matrix3 copy{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            copy[i][k] = matrix(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(k));
        }
    }
    return copy;
}

/// Block by block, so that the very different sizes of A, B and D do not meet in one matrix.
void Invert(LaminateStiffness& stiffness) {
    const Eigen::Matrix3d a = ToEigen(stiffness.a), b = ToEigen(stiffness.b), d = ToEigen(stiffness.d);
    const Eigen::Matrix3d a1 = a.inverse();
    const Eigen::Matrix3d d1 = (d - b * a1 * b).inverse();
    const Eigen::Matrix3d b1 = -a1 * b * d1;
    stiffness.aInverse = FromEigen(a1 - b1 * b * a1);
    stiffness.bInverse = FromEigen(b1);
    stiffness.dInverse = FromEigen(d1);
}

std::optional<double> MassPerArea(const Laminate& laminate) {
    double mass = 0.0;
    for (const Layer& layer : laminate.layers) {
        const auto density = laminate.materials[layer.material].density;
        if (!density) return std::nullopt;
        mass += *density * layer.thickness;
    }
    return mass;
}

}  // namespace

Outcome<LaminateStiffness> StiffnessOf(const Laminate& laminate) {
    if (const auto fault = LaminateFault(laminate)) return *fault;
    const auto z = Interfaces(laminate);
    MatrixSum a, b, d;
    for (std::size_t k = 0; k < laminate.layers.size(); ++k) {
        const Layer& layer = laminate.layers[k];
        const Matrix3 stiffness = RotatedStiffness(laminate.materials[layer.material].elastic, layer.angle);
        const double t = layer.thickness, middle = 0.5 * (z[k] + z[k + 1]);
        a.Add(stiffness, t);
        b.Add(stiffness, t * middle);
        d.Add(stiffness, t * (middle * middle + t * t / 12.0));
    }
    LaminateStiffness stiffness{};
    stiffness.thickness = z.back() - z.front();
    stiffness.a = a.Rounded();
    stiffness.b = b.Rounded();
    stiffness.d = d.Rounded();
    stiffness.massPerArea = MassPerArea(laminate);
    Invert(stiffness);
    return stiffness;
}

LaminateModuli ModuliOf(const LaminateStiffness& stiffness) {
    const double h = stiffness.thickness, bending = h * h * h / 12.0;
    const auto moduli = [](const Matrix3& c, double size) {
        return PlateModuli{.ex = 1.0 / (size * c[0][0]),
                           .ey = 1.0 / (size * c[1][1]),
                           .gxy = 1.0 / (size * c[2][2]),
                           .nuxy = -c[0][1] / c[0][0]};
    };
    const bool coupled = std::any_of(stiffness.b.begin(), stiffness.b.end(), [](const Vector3& row) {
        return std::any_of(row.begin(), row.end(), [](double entry) { return entry != 0.0; });
    });
    return {.membrane = moduli(stiffness.aInverse, h),
            .bending = moduli(stiffness.dInverse, bending),
            .coupled = coupled};
}

}  // namespace zelmat::mechanics
